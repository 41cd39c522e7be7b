// SPDX-License-Identifier: MIT
// Mark, mouse and keys of the chart. What it shows is in MonitorChartData.

#include "monitor/MonitorChart.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "monitor/Notifications.h"

namespace kavlix::monitor {

using recording::ChartPoint;

namespace {

constexpr COLORREF kMarkColor = RGB(200, 0, 0);
constexpr int kFontSize = 90; // size of the texts, in tenths of a point

bool IsPoint(const ChartPoint& point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

} // namespace

BEGIN_MESSAGE_MAP(CMonitorChart, CChartDraw)
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()

    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()

    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

bool CMonitorChart::CreateChild(CWnd& parent, UINT id) {
    SetTextFont(kFontSize, kFontFace);
    return Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), &parent, id) != FALSE;
}

const ChartPoint* CMonitorChart::PointOf(std::size_t row) const {
    // A row may have two entries: a gap, then its point.
    const auto found = std::find_if(
        std::lower_bound(m_points.begin(), m_points.end(), row,
                         [](const ChartPoint& point, std::size_t wanted) { return point.row < wanted; }),
        m_points.end(), [row](const ChartPoint& point) { return point.row > row || IsPoint(point); });
    return found != m_points.end() && found->row == row ? &*found : nullptr;
}

void CMonitorChart::Mark(std::optional<std::size_t> row) {
    if (IsOverTime()) {
        if (!row || !HasSamples() || *row >= m_picture.recording->times.size() ||
            !GetCursor().SetPosition(MarkCursor,
                                     recording::SecondsFrom(m_origin, m_picture.recording->times[*row])))
            GetCursor().Hide(MarkCursor);
    } else {
        CChartReferences& lines = GetReferences();
        lines.RemoveAll();
        const ChartPoint* const point = row ? PointOf(*row) : nullptr;
        m_marked = point ? row : std::nullopt;
        if (point) {
            lines.SetDashed(lines.AddLine(CChartReferences::X, point->x, _T(""), kMarkColor), TRUE);
            lines.SetDashed(lines.AddLine(CChartReferences::Y, point->y, _T(""), kMarkColor), TRUE);
        }
    }
    Redraw();
}

std::optional<std::size_t> CMonitorChart::RowAtCursor(Cursor cursor) {
    double x = 0;
    if (!HasSamples() || !GetCursor().GetPosition(cursor, x))
        return std::nullopt;
    return recording::RowNear(m_picture.recording->times, m_origin, x);
}

std::optional<std::size_t> CMonitorChart::RowOfSeries(Cursor cursor, std::size_t series) {
    const int dataset = static_cast<int>(series);
    double x = 0;
    double y = 0;
    if (!HasSamples() || !GetData(dataset, GetCursor().GetSample(cursor, dataset), x, y))
        return std::nullopt;
    return recording::RowNear(m_picture.recording->times, m_origin, x);
}

std::optional<std::size_t> CMonitorChart::Marked() {
    return IsOverTime() ? RowAtCursor(MarkCursor) : m_marked;
}

std::optional<std::size_t> CMonitorChart::Pointed() {
    if (IsOverTime())
        return RowAtCursor(PointerCursor);
    const int point = GetCursor().GetSample(PointerCursor, 0);
    return point < 0 ? std::nullopt : std::optional(m_points[static_cast<std::size_t>(point)].row);
}

BOOL CMonitorChart::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    // The page adds its own commands to the chart's menu, and says what came of the chart's.
    const bool isCommand = nCode == CN_COMMAND || nCode == CN_UPDATE_COMMAND_UI;
    return (isCommand && GetParent()->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
           CChartDraw::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMonitorChart::OnEraseBkgnd(CDC*) {
    // OnPaint covers the whole window.
    return TRUE;
}

void CMonitorChart::OnSize(UINT nType, int cx, int cy) {
    CChartDraw::OnSize(nType, cx, cy);
    PlaceLegend();
}

void CMonitorChart::OnLButtonDown(UINT nFlags, CPoint point) {
    SetFocus();
    m_pressed = point;
    CChartDraw::OnLButtonDown(nFlags, point);
}

void CMonitorChart::OnLButtonUp(UINT nFlags, CPoint point) {
    CChartDraw::OnLButtonUp(nFlags, point);
    const CSize moved = point - std::exchange(m_pressed, CPoint(-1, -1));
    const auto pointed = Pointed();
    if (!pointed || GetLegend().HitTest(point) >= 0 || std::abs(moved.cx) >= ::GetSystemMetrics(SM_CXDRAG) ||
        std::abs(moved.cy) >= ::GetSystemMetrics(SM_CYDRAG))
        return;
    Mark(pointed);
    NotifyParent(*this, MCN_SELECTION);
}

void CMonitorChart::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (::GetKeyState(VK_CONTROL) >= 0 && (nChar == VK_RIGHT || nChar == VK_LEFT)) {
        Step(nChar == VK_RIGHT ? 1 : -1);
    } else if (nChar == VK_ESCAPE && Marked()) {
        Mark({});
        NotifyParent(*this, MCN_SELECTION);
    } else {
        CChartDraw::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

/// Moves the mark to the next point (`direction` 1) or the previous one (-1). Without a mark, marks the first
/// or the last point in view.
void CMonitorChart::Step(int direction) {
    if (!HasSamples())
        return;
    const auto marked = Marked();
    if (IsOverTime()) {
        if (!marked)
            Mark(direction > 0 ? Visible().first : Visible().last);
        else if (!GetCursor().MoveBySamples(MarkCursor, direction))
            return;
        Redraw();
    } else {
        const auto rows = static_cast<std::ptrdiff_t>(m_picture.recording->times.size());
        std::ptrdiff_t row = marked ? static_cast<std::ptrdiff_t>(*marked) : direction > 0 ? -1 : rows;
        do
            row += direction;
        while (row >= 0 && row < rows && !PointOf(static_cast<std::size_t>(row)));
        if (row < 0 || row >= rows)
            return;
        Mark(static_cast<std::size_t>(row));
    }
    NotifyParent(*this, MCN_SELECTION);
}

} // namespace kavlix::monitor
