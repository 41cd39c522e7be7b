// SPDX-License-Identifier: MIT
// ChartDrawState: paints reference lines and bands.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <utility>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartReferencesState.h"
#include "chartdraw/core/LabelPlaces.h"
#include "gdi/Colors.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"

using namespace kavlix;

namespace {

constexpr int kBandPale = 82;    // percent of the chart's background in a band
constexpr int kTextShade = 35;   // percent of black or white in a text
constexpr double kTextGap = 0.3; // text heights beside a text

/// Black on a light background and white on a dark one.
COLORREF ContrastTo(COLORREF background) {
    constexpr int kMiddle = 128 * 10;
    const int light = 3 * GetRValue(background) + 6 * GetGValue(background) + GetBValue(background);
    return light >= kMiddle ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

/// Fills a line, or its dashes, which begin at the left or lower end.
void FillLine(CDC& dc, const CRect& line, const ChartReference& item, CBrush& brush) {
    if (!item.isDashed) {
        dc.FillRect(line, &brush);
        return;
    }
    const int dash = std::max(6, 3 * item.size);
    const int period = dash + std::max(4, 2 * item.size);
    const bool isUpright = item.axis == CChartReferences::X;
    for (int i = 0; i < (isUpright ? line.Height() : line.Width()); i += period) {
        CRect part = line;
        if (isUpright) {
            part.bottom = line.bottom - i;
            part.top = std::max(part.bottom - dash, line.top);
        } else {
            part.left = line.left + i;
            part.right = std::min(part.left + dash, line.right);
        }
        dc.FillRect(part, &brush);
    }
}

Rect PlaceText(LabelPlaces& places, const ChartReference& item, const Rect& rect, int width, int height) {
    if (item.axis == CChartReferences::X)
        return item.isBand ? places.InColumns(rect.left, rect.right, width, height)
                           : places.BesideColumns(rect.left, rect.right, width, height);
    return item.isBand ? places.InRows(rect.top, rect.bottom, width, height)
                       : places.BesideRows(rect.top, rect.bottom, width, height);
}

} // namespace

CRect ChartReferencesState::RectOf(const ChartDrawState& state, const ChartReference& item) const {
    const CRect& plot = state.Plot();
    const bool isX = item.axis == CChartReferences::X;
    if (!item.isShown || plot.IsRectEmpty() || !state.HasAxis(item.axis))
        return CRect(0, 0, 0, 0);
    const AxisMap map = state.Map(item.axis);
    // An infinite value, and one without a position on a logarithmic axis, lies at the end of the axis.
    const auto position = [&](double value) {
        const double lowest = -kCoordinateLimit;
        const double highest = kCoordinateLimit;
        const double exact = map.ExactPosition(value);
        if (exact == exact)
            return static_cast<int>(std::clamp(exact, lowest, highest));
        return static_cast<int>((value > 0) == map.IsAscending() ? highest : lowest);
    };
    int low = position(item.from);
    int high = position(item.to);
    if (!item.isBand) {
        if (!map.Position(item.from))
            return CRect(0, 0, 0, 0);
        low -= item.size / 2;
        high = low + item.size;
    } else {
        if (low > high)
            std::swap(low, high);
        ++high; // a band holds the pixels of both values
    }
    CRect rect = isX ? CRect(low, plot.top, high, plot.bottom) : CRect(plot.left, low, plot.right, high);
    rect.IntersectRect(rect, plot);
    return rect;
}

void ChartDrawState::DrawBands(CDC& dc) {
    const ChartReferencesState& state = *references.m_State;
    for (const ChartReference& item : state.items) {
        const CRect rect = item.isBand ? state.RectOf(*this, item) : CRect(0, 0, 0, 0);
        if (rect.IsRectEmpty())
            continue;
        CBrush brush;
        brush.CreateSolidBrush(MixColors(item.color, chart.m_BkColor, kBandPale));
        dc.FillRect(rect, &brush);
    }
}

void ChartDrawState::DrawReferenceLines(CDC& dc) {
    const ChartReferencesState& state = *references.m_State;
    if (state.items.empty() || Plot().IsRectEmpty())
        return;
    for (const ChartReference& item : state.items)
        if (!item.isBand) {
            CBrush brush;
            brush.CreateSolidBrush(item.color);
            FillLine(dc, state.RectOf(*this, item), item, brush);
        }
    DrawReferenceTexts(dc);
}

void ChartDrawState::DrawReferenceTexts(CDC& dc) {
    ChartReferencesState& state = *references.m_State;
    CFont font;
    MakeTextFont(font);
    SavedDcGuard saved(dc);
    Select(dc, font);
    dc.IntersectClipRect(Plot());
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.SetBkMode(TRANSPARENT);
    state.texts.SetFont(chart.m_FontPixels, chart.m_FontFace);

    const int gap = std::max(static_cast<int>(kTextGap * TextHeight()), 1);
    CRect area = Plot();
    area.DeflateRect(gap, 1);
    LabelPlaces places(ToRect(area), gap);
    CRect behindLegend;
    if (behindLegend.IntersectRect(legend.GetRect(), Plot()))
        places.Block(ToRect(behindLegend));
    for (std::size_t i = 0; i < state.items.size(); ++i) {
        const ChartReference& item = state.items[i];
        const CRect rect = state.RectOf(*this, item);
        if (rect.IsRectEmpty() || item.text.IsEmpty())
            continue;
        const CString& text = state.texts.ShortenedTo(dc, i, item.text, area.Width());
        const int width = std::min(state.texts.Width(dc, i, item.text), static_cast<int>(area.Width()));
        const Rect place = PlaceText(places, item, ToRect(rect), width, TextHeight());
        if (place == Rect{})
            continue;
        // A rim of one pixel keeps the text readable over data, of which it hides little.
        dc.SetTextColor(item.isBand ? MixColors(item.color, chart.m_BkColor, kBandPale) : chart.m_BkColor);
        for (const CPoint by : {CPoint(-1, 0), CPoint(1, 0), CPoint(0, -1), CPoint(0, 1)})
            DrawTextAt(dc, place.left + static_cast<int>(by.x), place.top + static_cast<int>(by.y), text);
        dc.SetTextColor(MixColors(item.color, ContrastTo(chart.m_BkColor), kTextShade));
        DrawTextAt(dc, place.left, place.top, text);
    }
}
