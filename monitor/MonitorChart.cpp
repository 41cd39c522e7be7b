// SPDX-License-Identifier: MIT
// Points, mark, mouse and keys of the chart.

#include "monitor/MonitorChart.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "monitor/GraphSettings.h"
#include "monitor/Notifications.h"
#include "monitor/TextConversion.h"

namespace kavlix::monitor {

using recording::ChartPoint;

namespace {

constexpr COLORREF kMarkColor = RGB(200, 0, 0);
constexpr int kMarkHalf = 4;  // pixels from the mark's centre to its edge
constexpr int kReach = 12;    // pixels from the pointer to the farthest point that counts as under it
constexpr int kFontSize = 90; // size of the texts, in tenths of a point

bool IsPoint(const ChartPoint& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

} // namespace

BEGIN_MESSAGE_MAP(CMonitorChart, CChartDraw)
    ON_WM_ERASEBKGND()

    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()

    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

bool CMonitorChart::CreateChild(CWnd& parent, UINT id) {
    AddDataset();
    SetTextFont(kFontSize, kFontFace);
    return Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), &parent, id) != FALSE;
}

void CMonitorChart::Show(ChartPicture picture) {
    const ChartPoint* const marked = Marked();
    const auto row = marked ? std::optional(marked->row) : std::nullopt;
    m_picture = std::move(picture);
    m_pointed.reset();
    std::vector<double> x;
    std::vector<double> y;
    for (const ChartPoint& point : m_picture.points) {
        x.push_back(point.x);
        y.push_back(point.y);
    }
    SetData(0, x.data(), y.data(), static_cast<int>(x.size()));
    SetColor(0, m_picture.color);
    ShowLine(0, m_picture.style != ChartStyle::Points);
    SetMarkerType(0, m_picture.style != ChartStyle::Lines ? CDataset::MarkerCircle : CDataset::MarkerNone);
    SetAutoXScale();
    SetAutoYScale();
    if (m_picture.xCovers.any)
        SetXScale(m_picture.xCovers.min, m_picture.xCovers.max);
    if (m_picture.yCovers.any)
        SetYScale(m_picture.yCovers.min, m_picture.yCovers.max);
    SetTitle(ToText(m_picture.title));
    SetXLabel(ToText(m_picture.xLabel));
    SetYLabel(ToText(m_picture.yLabel));
    Mark(row);
}

void CMonitorChart::Mark(std::optional<std::size_t> row) {
    m_marked.reset();
    const std::vector<ChartPoint>& points = m_picture.points;
    if (row) {
        // A row may have two entries: a gap, then its point.
        const auto found = std::find_if(
            std::lower_bound(points.begin(), points.end(), *row,
                             [](const ChartPoint& point, std::size_t wanted) { return point.row < wanted; }),
            points.end(), [row](const ChartPoint& point) { return point.row > *row || IsPoint(point); });
        if (found != points.end() && found->row == *row)
            m_marked = static_cast<std::size_t>(found - points.begin());
    }
    Redraw();
}

const ChartPoint* CMonitorChart::Marked() const {
    return m_marked ? &m_picture.points[*m_marked] : nullptr;
}

const ChartPoint* CMonitorChart::Pointed() const {
    return m_pointed ? &m_picture.points[*m_pointed] : nullptr;
}

std::optional<CPoint> CMonitorChart::PlaceOf(const ChartPoint& point) const {
    if (!IsPoint(point) || m_rectPlot.IsRectEmpty())
        return std::nullopt;
    double xMin = 0;
    double xMax = 1;
    double yMin = 0;
    double yMax = 1;
    double step = 0;
    GetXScale(xMin, xMax, step);
    GetYScale(yMin, yMax, step);
    const double x = m_rectPlot.left + (point.x - xMin) / (xMax - xMin) * (m_rectPlot.Width() - 1);
    const double y = m_rectPlot.bottom - 1 - (point.y - yMin) / (yMax - yMin) * (m_rectPlot.Height() - 1);
    constexpr double farthest = 32767; // largest coordinate of a window, in pixels
    if (!(std::abs(x) < farthest) || !(std::abs(y) < farthest))
        return std::nullopt;
    return CPoint(static_cast<int>(x), static_cast<int>(y));
}

std::optional<std::size_t> CMonitorChart::PointUnder(CPoint position) const {
    std::optional<std::size_t> nearest;
    LONG least = kReach * kReach + 1;
    for (std::size_t i = 0; i < m_picture.points.size(); ++i) {
        const auto place = PlaceOf(m_picture.points[i]);
        if (!place)
            continue;
        const CSize away = *place - position;
        if (std::abs(away.cx) > kReach || std::abs(away.cy) > kReach)
            continue;
        const LONG distance = away.cx * away.cx + away.cy * away.cy;
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

void CMonitorChart::DrawDatasets(CDC& dc) {
    CChartDraw::DrawDatasets(dc);
    const auto place = m_marked ? PlaceOf(m_picture.points[*m_marked]) : std::nullopt;
    if (!place)
        return;
    const int state = dc.SaveDC();
    dc.IntersectClipRect(&m_rectPlot);
    {
        CPen dots(PS_DOT, 1, kMarkColor);
        CPen* const before = dc.SelectObject(&dots);
        dc.SetBkMode(TRANSPARENT);
        dc.MoveTo(m_rectPlot.left, place->y);
        dc.LineTo(m_rectPlot.right, place->y);
        dc.MoveTo(place->x, m_rectPlot.top);
        dc.LineTo(place->x, m_rectPlot.bottom);
        dc.SelectObject(before);
    }
    CRect square(*place, *place);
    square.InflateRect(kMarkHalf, kMarkHalf, kMarkHalf + 1, kMarkHalf + 1);
    dc.FillSolidRect(square, kMarkColor);
    dc.RestoreDC(state);
}

BOOL CMonitorChart::OnEraseBkgnd(CDC*) {
    // OnPaint covers the whole window.
    return TRUE;
}

void CMonitorChart::OnLButtonDown(UINT nFlags, CPoint point) {
    SetFocus();
    CChartDraw::OnLButtonDown(nFlags, point);
    const auto found = PointUnder(point);
    if (!found)
        return;
    m_marked = found;
    Redraw();
    NotifyParent(*this, MCN_SELECTION);
}

void CMonitorChart::OnMouseMove(UINT nFlags, CPoint point) {
    if (!m_watchingLeave)
        m_watchingLeave = WatchMouseLeave(*this);
    CChartDraw::OnMouseMove(nFlags, point);
    Point(PointUnder(point));
}

void CMonitorChart::OnMouseLeave() {
    m_watchingLeave = false;
    Point({});
}

void CMonitorChart::Point(std::optional<std::size_t> point) {
    if (std::exchange(m_pointed, point) != point)
        NotifyParent(*this, MCN_POINTER);
}

void CMonitorChart::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == VK_RIGHT || nChar == VK_LEFT) {
        Step(nChar == VK_RIGHT ? 1 : -1);
    } else if (nChar == VK_ESCAPE && m_marked) {
        Mark({});
        NotifyParent(*this, MCN_SELECTION);
    } else {
        CChartDraw::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

UINT CMonitorChart::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}

/// Moves the mark to the next point (`direction` 1) or the previous one (-1). Without a mark, marks the first
/// or the last point.
void CMonitorChart::Step(int direction) {
    const auto count = static_cast<std::ptrdiff_t>(m_picture.points.size());
    std::ptrdiff_t at = direction > 0 ? -1 : count;
    if (m_marked)
        at = static_cast<std::ptrdiff_t>(*m_marked);
    do
        at += direction;
    while (at >= 0 && at < count && !IsPoint(m_picture.points[static_cast<std::size_t>(at)]));
    if (at < 0 || at >= count)
        return;
    m_marked = static_cast<std::size_t>(at);
    Redraw();
    NotifyParent(*this, MCN_SELECTION);
}

} // namespace kavlix::monitor
