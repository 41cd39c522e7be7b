// SPDX-License-Identifier: MIT
// ChartDrawState: paints the legend.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <initializer_list>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartLegendState.h"
#include "gdi/Colors.h"
#include "gdi/Guards.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"

using namespace kavlix;

namespace {

constexpr int kPale = 55;      // percent of the background in the texts of hidden datasets
constexpr int kHighlight = 82; // percent of the background behind the row under the mouse
constexpr int kWidestSwatchLine = 8;
constexpr int kSwatchMarkerHalf = 3;

void DrawPath(CDC& dc, std::initializer_list<CPoint> points) {
    dc.Polyline(points.begin(), static_cast<int>(points.size()));
}

/// The bars of a swatch, from left to right.
template <class Draw> void ForBars(const CRect& box, Draw draw) {
    constexpr int kBars = 3;
    const int step = std::max(box.Width() / kBars, 2);
    const int heights[kBars] = {box.Height() * 2 / 3, box.Height(), box.Height() / 2};
    for (int i = 0; i < kBars; ++i)
        draw(CRect(CPoint(box.left + i * step, box.bottom - heights[i]), CSize(step - 1, heights[i])));
}

template <class Draw> void WithPen(CDC& dc, int size, COLORREF color, Draw draw) {
    CPen pen;
    pen.CreatePen(PS_SOLID, size, color);
    const SelectGuard selected(dc, pen.GetSafeHandle());
    draw();
}

/// The bars or the filled area of a dataset; for a dataset without line and marker a box of its colour.
void DrawSwatchArea(CDC& dc, const CRect& box, const ChartDrawState::ChartDataset& dataset, COLORREF fill) {
    const bool isFill = dataset.style == CChartDraw::StyleFill;
    const bool isBars = dataset.style == CChartDraw::StyleBars;
    if (!isFill && !isBars && (dataset.showLine || HasShape(dataset.markerType)))
        return;
    CBrush brush;
    brush.CreateSolidBrush(fill);
    if (isBars)
        ForBars(box, [&](const CRect& bar) { dc.FillRect(bar, &brush); });
    else
        dc.FillRect(isFill ? CRect(box.left, box.CenterPoint().y, box.right, box.bottom) : box, &brush);
}

/// A piece of a line with the pen that is selected, which is `size` pixels wide.
void DrawSwatchLine(CDC& dc, const CRect& box, CChartDraw::DrawStyle style, int size) {
    const CPoint middle = box.CenterPoint();
    const int left = static_cast<int>(box.left) + size / 2; // round ends extend by half of the line's width
    const int right = static_cast<int>(box.right) - size / 2;
    const int rise = static_cast<int>(box.Height()) / 4;
    if (style == CChartDraw::StyleImpulses)
        ForBars(box, [&](const CRect& bar) {
            DrawPath(dc, {CPoint(bar.CenterPoint().x, bar.top), CPoint(bar.CenterPoint().x, bar.bottom)});
        });
    else if (style == CChartDraw::StyleStep)
        DrawPath(dc, {CPoint(left, middle.y + rise), CPoint(middle.x, middle.y + rise),
                      CPoint(middle.x, middle.y - rise), CPoint(right, middle.y - rise)});
    else
        DrawPath(dc, {CPoint(left, middle.y), CPoint(right, middle.y)});
}

} // namespace

void ChartLegendState::DrawSwatch(CDC& dc, const CRect& box, const ChartDrawState::ChartDataset& dataset,
                                  COLORREF fill) {
    const SelectGuard hollow(dc, ::GetStockObject(NULL_BRUSH));
    if (!dataset.visible) {
        WithPen(dc, 1, dataset.color, [&] { dc.Rectangle(box); });
        return;
    }
    DrawSwatchArea(dc, box, dataset, fill);
    if (dataset.showLine && dataset.style != CChartDraw::StyleBars) {
        const int widest = std::clamp(static_cast<int>(box.Height()), 1, kWidestSwatchLine);
        const int size = std::clamp(dataset.lineSize, 1, widest);
        WithPen(dc, size, dataset.color, [&] { DrawSwatchLine(dc, box, dataset.style, size); });
    }
    const CPoint middle = box.CenterPoint();
    if (HasShape(dataset.markerType))
        WithPen(dc, 1, dataset.color,
                [&] { DrawMarker(dc, dataset.markerType, middle.x, middle.y, kSwatchMarkerHalf, 1); });
}

void ChartDrawState::DrawLegend(CDC& dc) {
    const ChartLegendState& state = *legend.m_State;
    if (state.rect.IsRectEmpty())
        return;
    CBrush brush;
    brush.CreateSolidBrush(state.background);
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, state.border);
    CFont font;
    MakeTextFont(font);
    SavedDcGuard saved(dc);
    Select(dc, brush);
    Select(dc, pen);
    Select(dc, font);
    dc.Rectangle(state.rect);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    dc.IntersectClipRect(state.rect); // texts on a printer can be wider than those that were measured
    for (int i = 0; i < state.layout.Count(); ++i) {
        const ChartLegendState::Row& row = state.rows[static_cast<std::size_t>(i)];
        if (row.dataset >= DatasetCount())
            break;
        const ChartDrawState::ChartDataset& dataset = Dataset(row.dataset);
        const CRect place = ToCRect(state.layout.Row(i)) + state.rect.TopLeft();
        if (row.dataset == state.highlighted) {
            CBrush highlight;
            highlight.CreateSolidBrush(MixColors(dataset.color, state.background, kHighlight));
            dc.FillRect(place, &highlight);
        }
        CRect swatch(place.TopLeft(), CSize(state.swatchWidth, place.Height()));
        swatch.DeflateRect(1, place.Height() / 5);
        ChartLegendState::DrawSwatch(dc, swatch, dataset, FillColor(dataset));
        dc.SetTextColor(dataset.visible ? state.textColor
                                        : MixColors(state.textColor, state.background, kPale));
        DrawTextAt(dc, place.right - state.layout.TextRoom(i),
                   place.top + (place.Height() - TextHeight()) / 2, row.text);
    }
}
