// SPDX-License-Identifier: MIT
// Samples, view and layout of a scrolling graph.

#include "monitor/MonitorScrollGraph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "monitor/TextConversion.h"
#include "monitor/recording/GraphUnits.h"
#include "monitor/recording/NearestPoint.h"

namespace kavlix::monitor {

using recording::ValueSpan;

namespace {

constexpr double kRoomBehind = 0.1; // share of the view's width: scroll range behind the newest row
constexpr int kSecondsPerMinute = 60;

constexpr int kTimeFontHeight = 300;  // logical units, height of the time labels' font
constexpr int kTimeLabelMargin = 200; // logical units above and below the time labels, together
/// Height of the scroll bar beyond the room that the control leaves for it, in logical units.
constexpr int kScrollBarRoom = 280;
constexpr int kMinLegendPlot = 3000; // logical units of width that a legend must leave for the plot
/// Logical units by which a date is shifted to the right of its tick, away from the clock time.
constexpr int kDateShift = 10;

} // namespace

BEGIN_MESSAGE_MAP(CMonitorScrollGraph, CScrollGraphCtrl)
    ON_WM_HSCROLL()

    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()

    ON_COMMAND(ID_EDIT_COPY, &CMonitorScrollGraph::OnCopy)
END_MESSAGE_MAP()

void CMonitorScrollGraph::Begin(const GraphSettings& settings, std::vector<SeriesSettings> series,
                                Axis axis) {
    InitData();
    for (int i = 0; i < DatasetCount; ++i)
        ResetData(i);
    InitScrollInfo();
    m_spans.assign(series.size(), {});
    m_axis = std::move(axis);
    m_scale = {};
    m_scale.ticks = 0;
    SetLook(settings, std::move(series));
}

void CMonitorScrollGraph::SetLook(const GraphSettings& settings, std::vector<SeriesSettings> series) {
    m_settings = settings;
    m_settings.style = GraphStyleLine;
    m_series = std::move(series);
}

void CMonitorScrollGraph::AddToIndex(const std::vector<double>& values) {
    for (std::size_t i = 0; i < m_spans.size(); ++i)
        m_spans[i].Append(values[i]);
}

void CMonitorScrollGraph::Append(long stamp, const std::vector<double>& values) {
    const double before = m_dScrollPos;
    AddXTickLabel(stamp);
    for (std::size_t i = 0; i < m_spans.size(); ++i)
        AddData(static_cast<int>(i), values[i], nullptr);
    AddToIndex(values);
    if (m_dScrollPos != before)
        Settle(before);
}

void CMonitorScrollGraph::AppendOffline(long stamp, const std::vector<double>& values) {
    AddXTickLabel(stamp);
    for (std::size_t i = 0; i < m_spans.size(); ++i)
        AddDataForOffline(static_cast<int>(i), values[i], nullptr);
    AddToIndex(values);
}

void CMonitorScrollGraph::TrimHead(int rows) {
    const int mark = m_SelectionMarkPos;
    RemoveHeadData(rows);
    if (mark >= rows)
        SetSelectionMarkPos(mark - rows);
}

void CMonitorScrollGraph::RemoveHeadData(int nCount) {
    const int rows = std::clamp(nCount, 0, Rows());
    const bool following = ShowsNewest();
    const double position = m_dScrollPos - (rows < Rows() ? XOf(rows) : 0);
    CScrollGraphCtrl::RemoveHeadData(rows);
    for (recording::SpanIndex& spans : m_spans)
        spans.RemoveHead(static_cast<std::size_t>(rows));
    if (!following && Rows() > 0) {
        ReachNewest();
        m_dScrollPos = position;
        Clamp();
    }
    Settle(m_dScrollPos);
    ShowView();
}

double CMonitorScrollGraph::ValueOf(std::size_t series, int row) const {
    double value = recording::kNoValue;
    GetYData(static_cast<int>(series), row, value);
    return value;
}

double CMonitorScrollGraph::XOf(int row) const {
    return GetXOffset(row) * recording::kTimeUnitsPerSecond;
}

bool CMonitorScrollGraph::ShowsNewest() const {
    const double newest = XOf(Rows() - 1);
    return newest >= m_dScrollPos && newest <= m_dScrollPos + m_dViewWidth;
}

void CMonitorScrollGraph::ShowNewest() {
    SetScrollLastPos();
    Normalize();
    Settle(m_dScrollPos);
    ShowView();
}

void CMonitorScrollGraph::ShowOldest() {
    ScrollTo(0);
}

void CMonitorScrollGraph::ReachNewest() {
    m_dScrollMax = std::max(m_dScrollMax, XOf(Rows() - 1) + kRoomBehind * m_dViewWidth);
    Normalize();
    UpdateScrollInfo();
}

void CMonitorScrollGraph::SetRange(int seconds) {
    const bool following = Rows() == 0 || ShowsNewest();
    const int mark = MarkedRow();
    const bool marked = mark >= FirstVisible() && mark <= LastVisible();
    const double kept = marked ? XOf(mark) : m_dScrollPos + m_dViewWidth / 2;
    const double share = (kept - m_dScrollPos) / m_dViewWidth;
    SetHorzRange(static_cast<double>(seconds) / kSecondsPerMinute);
    if (!following) {
        ReachNewest();
        m_dScrollPos = kept - share * m_dViewWidth;
        Clamp();
    }
    Settle(m_dScrollPos);
    ShowView();
}

/// Moves the view into the scroll range.
void CMonitorScrollGraph::Clamp() {
    m_dScrollPos = std::max(std::min(m_dScrollPos, m_dScrollMax - m_dViewWidth), m_dScrollMin);
}

/// Moves the left edge of the view to a sample. `before` is the left edge before the last movement: the
/// result is the next sample in the direction of this movement, if that lies within the scroll range.
void CMonitorScrollGraph::Settle(double before) {
    if (Rows() == 0)
        return;
    int row = LowerBound(m_dScrollPos);
    const double x = XOf(row);
    const bool beyond = x > std::max(m_dScrollMax - m_dViewWidth, m_dScrollMin);
    if (x > m_dScrollPos && row > 0 && (beyond || m_dScrollPos < before))
        --row;
    m_dScrollPos = XOf(row);
}

void CMonitorScrollGraph::ShowView() {
    RedrawData();
    UpdateScrollInfo();
}

void CMonitorScrollGraph::ScrollTo(double position) {
    const double before = std::exchange(m_dScrollPos, position);
    Clamp();
    Settle(before);
    ShowView();
}

void CMonitorScrollGraph::ScrollPages(int pages) {
    ScrollTo(m_dScrollPos + pages * m_dViewWidth / 2);
}

void CMonitorScrollGraph::Wheel(short delta) {
    const double before = m_dScrollPos;
    ProcessMouseWheel(delta);
    if (m_dScrollPos == before)
        return;
    Settle(before);
    UpdateScrollInfo();
}

void CMonitorScrollGraph::EnsureVisible(int row) {
    if (row < 0 || row >= Rows())
        return;
    const double x = XOf(row);
    if (x < m_dScrollPos || x > m_dScrollPos + m_dViewWidth)
        ScrollTo(x - m_dViewWidth / 2);
}

int CMonitorScrollGraph::FirstVisible() const {
    return LowerBound(m_dScrollPos);
}

int CMonitorScrollGraph::LastVisible() const {
    const double end = m_dScrollPos + m_dViewWidth;
    const int row = LowerBound(end);
    return row > 0 && XOf(row) > end ? row - 1 : row;
}

int CMonitorScrollGraph::MarkedRow() const {
    return m_SelectionMarkPos < Rows() ? m_SelectionMarkPos : -1;
}

void CMonitorScrollGraph::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    // Suppress the control's notification, which would carry the position before Settle, and send
    // one afterwards.
    const double before = m_dScrollPos;
    const int tied = std::exchange(m_bScrollSync, FALSE);
    CScrollGraphCtrl::OnHScroll(nSBCode, nPos, pScrollBar);
    m_bScrollSync = tied;
    if (m_dScrollPos == before)
        return;
    Settle(before);
    UpdateScrollInfo();
    if (tied)
        SendScrollInfo(m_dScrollPos);
}

void CMonitorScrollGraph::OnMouseMove(UINT nFlags, CPoint point) {
    WatchPointer();
    CScrollGraphCtrl::OnMouseMove(nFlags, point);
}

void CMonitorScrollGraph::OnMouseLeave() {
    PointerLeft();
}

void CMonitorScrollGraph::OnCopy() {
    CopyAndTell();
}

/// The row nearest to `row` that has a value of the series, from `first` to `last` and at most
/// kPointerSamples away.
std::optional<int> CMonitorScrollGraph::RowWithValue(std::size_t series, int row, int first, int last) const {
    for (int away = 0; away <= kPointerSamples && (row - away >= first || row + away <= last); ++away) {
        if (row - away >= first && !std::isnan(ValueOf(series, row - away)))
            return row - away;
        if (row + away <= last && !std::isnan(ValueOf(series, row + away)))
            return row + away;
    }
    return std::nullopt;
}

std::optional<CMonitorScrollGraph::Pointed> CMonitorScrollGraph::SampleUnder(CPoint point) {
    const CPoint logical(point.x * kPixel, point.y * kPixel);
    if (!m_rectPlot.PtInRect(logical))
        return std::nullopt;
    const int hit = GetIndexFromPt(logical);
    if (hit < 0 || hit >= Rows())
        return std::nullopt;
    const double reach = kPointerReach * m_dViewWidth / std::max(m_rectPlot.Width(), 1);
    const int first = LowerBound(XOf(hit) - reach);
    const int last = LowerBound(XOf(hit) + reach);
    const double height =
        static_cast<double>(m_rectPlot.bottom - logical.y) / std::max(m_rectPlot.Height(), 1);
    std::vector<double> distances(m_series.size(), recording::kNoValue);
    std::vector<int> rows(m_series.size(), hit);
    for (std::size_t i = 0; i < m_series.size(); ++i) {
        const auto row = m_series[i].visible ? RowWithValue(i, hit, first, last) : std::nullopt;
        if (!row)
            continue;
        rows[i] = *row;
        distances[i] = recording::AxisDistance(ValueOf(i, *row), {m_YVisibleMin, m_YVisibleMax}, height);
    }
    const auto series = recording::Nearest(distances);
    return series ? std::optional<Pointed>({rows[*series], *series}) : std::nullopt;
}

void CMonitorScrollGraph::DrawTimeLabel(CDC& dc, int x, int y, const CString& date, const CString& time) {
    if (date.IsEmpty()) {
        CFittedGraph::DrawTimeLabel(dc, x, y, date, time);
        return;
    }
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    dc.TextOut(x + kDateShift, y, date);
    dc.SetTextAlign(TA_RIGHT | TA_TOP);
    dc.TextOut(x, y, time);
}

ValueSpan CMonitorScrollGraph::SpanInView() const {
    ValueSpan span = m_axis.covers;
    const auto first = static_cast<std::size_t>(std::max(FirstVisible() - 1, 0));
    const auto end = static_cast<std::size_t>(LastVisible()) + 1;
    for (std::size_t i = 0; i < m_spans.size() && Rows() > 0; ++i)
        span.Take(m_spans[i].Of(first, end,
                                [this, i](std::size_t row) { return ValueOf(i, static_cast<int>(row)); }));
    return span;
}

bool CMonitorScrollGraph::FollowValues() {
    if (!recording::FollowValues(m_scale, SpanInView(), std::max(m_valueTicks, 2)))
        return false;
    SetYVisibleMin(m_scale.min);
    SetYVisibleMax(m_scale.max);
    SetYUnit(ToText(m_scale.unit + m_axis.unit), m_scale.unitExponent, m_scale.decimals);
    return true;
}

CMonitorScrollGraph::Room CMonitorScrollGraph::FitAndMeasure() {
    ApplyLook(m_settings, m_series);
    Room room;
    room.legend = FitLegend(m_series);
    CRect client;
    GetClientRect(&client);
    // The scroll bar covers the lowest part of the window. With a legend, an empty X label keeps this part
    // free. Without a legend, a higher band of the time labels keeps it free. In a window so small that the X
    // label would be less high than the scroll bar, the legend is hidden.
    const bool legend = m_settings.legend && !m_series.empty() && GetTitleTextHeight() >= kScrollBarRoom &&
                        client.Width() * kPixel - room.legend >= kMinLegendPlot;
    ShowLegend(legend);
    ShowXLabel(legend);
    SetXLabel(CString());
    ShowYLabel(FALSE);
    const int labels = static_cast<int>(TextSize("00:00:00", kTimeFontHeight, FW_NORMAL).cx);
    SetXTickLabelHeight(labels + kTimeLabelMargin + (legend ? 0 : kScrollBarRoom));
    m_valueTicks = MeasureLayout().valueTicks;
    FollowValues();
    room.tickLabels = TickLabelWidth(m_scale);
    return room;
}

void CMonitorScrollGraph::TakeRoom(const Room& room) {
    SetYTickLabelWidth(room.tickLabels);
    SetLegendWidth(room.legend);
    std::string names;
    for (const SeriesSettings& series : m_series)
        names += (names.empty() ? ": " : ", ") + series.name;
    FitCaption({m_settings.title + names, m_settings.title});
    CRect client;
    GetClientRect(&client);
    SetTitle(ToText(FitText(m_settings.title, client.Width() * kPixel - 2 * kTickLabelGap,
                            GetTitleTextHeight(), FW_BOLD)));
    Redraw();
}

} // namespace kavlix::monitor
