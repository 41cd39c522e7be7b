// SPDX-License-Identifier: MIT
// CChartLegend: the list of the datasets: properties, layout and mouse.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartLegendState.h"
#include "gdi/ShapeConversion.h"

using namespace kavlix;

namespace {

// In text heights.
constexpr double kRowHeight = 1.15;
constexpr double kLegendSwatch = 1.6;
constexpr double kSwatchGap = 0.4; // between swatch and text
constexpr double kLegendPadding = 0.35;
constexpr double kLegendColumnGap = 0.8;
constexpr double kSmallestText = 3;
constexpr double kDistance = 0.5; // between the legend and the plot, or the plot's edges

// The room that a legend beside the plot leaves for axes and plot, in text heights.
constexpr double kSmallestWidth = 10;
constexpr double kSmallestHeight = 7;
constexpr int kMostPart = 3; // a legend takes at most this part of the room: one third

} // namespace

CChartLegend::CChartLegend(CChartDraw& chart) : m_State(std::make_unique<ChartLegendState>(chart)) {
}

CChartLegend::~CChartLegend() = default;

void CChartLegend::SetPlace(Place place) {
    m_State->place = place;
    m_State->chart.m_State->Changed();
}

CChartLegend::Place CChartLegend::GetPlace() const {
    return m_State->place;
}

void CChartLegend::SetInteractive(BOOL bInteractive) {
    m_State->isInteractive = bInteractive != FALSE;
    if (!m_State->isInteractive)
        m_State->highlighted = -1;
}

void CChartLegend::SetColors(COLORREF text, COLORREF background, COLORREF border) {
    m_State->textColor = text;
    m_State->background = background;
    m_State->border = border;
}

int CChartLegend::HitTest(CPoint point) const {
    if (!m_State->rect.PtInRect(point))
        return -1;
    const int row = m_State->layout.RowAt(ToPoint(point - m_State->rect.TopLeft()));
    const int dataset = row < 0 ? -1 : m_State->rows[static_cast<std::size_t>(row)].dataset;
    return dataset < m_State->chart.GetDatasetCount() ? dataset : -1;
}

CRect CChartLegend::GetRect() const {
    return m_State->rect;
}

void ChartLegendState::LayOut(CDC& dc, ChartDrawState& chartState, CSize most, LegendLayout::Order order) {
    const auto pixels = [&](double heights) { return static_cast<int>(heights * chartState.TextHeight()); };
    rows.clear();
    std::vector<int> widths;
    for (int i = 0; i < chartState.DatasetCount(); ++i) {
        const CString& name = chartState.Dataset(i).name;
        if (name.IsEmpty())
            continue;
        widths.push_back(names.Width(dc, rows.size(), name));
        rows.push_back({i, name});
    }
    swatchWidth = pixels(kLegendSwatch);
    const LegendSizes sizes = {std::max(pixels(kRowHeight), 1), swatchWidth + pixels(kSwatchGap),
                               pixels(kLegendPadding), pixels(kLegendColumnGap), pixels(kSmallestText)};
    layout = LegendLayout(widths, sizes, most.cx, most.cy, order);
    rect = CRect(0, 0, layout.Width(), layout.Height());
    for (int i = 0; i < layout.Count(); ++i) {
        const auto row = static_cast<std::size_t>(i);
        rows[row].text = names.ShortenedTo(dc, row, rows[row].text, layout.TextRoom(i));
    }
}

void ChartDrawState::LayOutLegend(CDC& dc, CRect& room) {
    ChartLegendState& state = *legend.m_State;
    state.rect.SetRectEmpty();
    state.names.SetFont(chart.m_FontPixels, chart.m_FontFace);
    const bool isBeside = state.place == CChartLegend::Right;
    if (!isBeside && state.place != CChartLegend::Bottom)
        return;
    const auto pixels = [&](double heights) { return static_cast<int>(heights * TextHeight()); };
    const auto most = [&](int length, double smallest) {
        return std::min(length / kMostPart, length - pixels(smallest)) - pixels(kDistance);
    };
    if (isBeside)
        state.LayOut(dc, *this, CSize(most(room.Width(), kSmallestWidth), room.Height()),
                     LegendLayout::Order::Down);
    else
        state.LayOut(dc, *this, CSize(room.Width(), most(room.Height(), kSmallestHeight)),
                     LegendLayout::Order::Across);
    if (state.layout.IsEmpty())
        return;
    state.rect.OffsetRect(isBeside ? CPoint(room.right - state.rect.Width(), room.top)
                                   : CPoint(room.left, room.bottom - state.rect.Height()));
    (isBeside ? room.right : room.bottom) -=
        pixels(kDistance) + (isBeside ? state.rect.Width() : state.rect.Height());
}

void ChartDrawState::PlaceLegend(CDC& dc) {
    ChartLegendState& state = *legend.m_State;
    CRect room = Plot();
    if (room.IsRectEmpty())
        state.rect.SetRectEmpty();
    if (room.IsRectEmpty() || state.place == CChartLegend::Hidden || state.place == CChartLegend::Right)
        return;
    if (state.place == CChartLegend::Bottom) { // centred below the plot
        const int centred = static_cast<int>(room.CenterPoint().x) - state.rect.Width() / 2;
        const int rightmost = static_cast<int>(room.right) - state.rect.Width();
        state.rect.OffsetRect(std::max(std::min(centred, rightmost) - static_cast<int>(state.rect.left), 0),
                              0);
        return;
    }
    const int distance = static_cast<int>(kDistance * TextHeight());
    room.DeflateRect(distance, distance);
    state.LayOut(dc, *this, CSize(room.Width() / 2, room.Height()), LegendLayout::Order::Down);
    const bool isLeft = state.place == CChartLegend::TopLeft || state.place == CChartLegend::BottomLeft;
    const bool isTop = state.place == CChartLegend::TopLeft || state.place == CChartLegend::TopRight;
    state.rect.OffsetRect(isLeft ? room.left : room.right - state.rect.Width(),
                          isTop ? room.top : room.bottom - state.rect.Height());
}

void ChartLegendState::DatasetRemoved(int dataset) {
    for (Row& row : rows)
        row.dataset = row.dataset == dataset ? -1 : row.dataset - (row.dataset > dataset ? 1 : 0);
    highlighted = -1;
}

bool ChartDrawState::IsHighlighted(int nDataset) const {
    return nDataset == legend.m_State->highlighted;
}

bool ChartDrawState::PressLegend(CPoint point) {
    if (!legend.m_State->isInteractive || !legend.m_State->rect.PtInRect(point))
        return false;
    NMCHARTDRAW record = {};
    record.nIndex = legend.HitTest(point);
    if (record.nIndex < 0)
        return true; // a press between two rows is not for the plot behind the legend
    bool& visible = Dataset(record.nIndex).visible;
    visible = !visible;
    Changed();
    chart.Redraw();
    record.hdr.code = CDN_DATASET;
    bool alive = true;
    Notify(record, alive);
    return true;
}

void ChartDrawState::HoverLegend(const CPoint* pPoint) {
    ChartLegendState& state = *legend.m_State;
    const int dataset = pPoint != nullptr && state.isInteractive ? legend.HitTest(*pPoint) : -1;
    if (dataset == state.highlighted)
        return;
    state.highlighted = dataset;
    chart.Redraw();
}
