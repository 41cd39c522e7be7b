// SPDX-License-Identifier: MIT
// The scroll page's layout, view and texts.

#include "monitor/ScrollPage.h"

#include <kavlix/Kavlix.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <utility>

#include "monitor/recording/JoinedSamples.h"
#include "monitor/recording/NumberText.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::Recording;
using recording::ScrollRow;

namespace {

constexpr int kWheelStep = WHEEL_DELTA / 3; // wheel rotation that moves the view by about 1/100 of its width

std::string LiveValueText(std::size_t series, double value) {
    if (LiveReadings::IsRate(series))
        return recording::FormatRate(value);
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", value);
    return text;
}

} // namespace

void CScrollPage::LayOut(CSize size) {
    if (!m_graphs[kGraphs - 1].GetSafeHwnd())
        return;
    const bool both = m_inUse == kGraphs && !m_filling;
    const int half = size.cy / 2;
    for (std::size_t i = 0; i < kGraphs; ++i) {
        const bool shown = both || i == m_filling.value_or(0);
        const int top = both && i == 1 ? half : 0;
        if (shown)
            m_graphs[i].MoveWindow(0, top, size.cx, !both ? size.cy : i == 0 ? half : size.cy - half);
        m_graphs[i].ShowWindow(shown ? SW_SHOWNA : SW_HIDE);
    }
    FitGraphs();
}

void CScrollPage::ShowFilling(bool filling) {
    m_filling.reset();
    if (filling)
        m_filling = FocusedGraph();
    for (std::size_t i = 0; i < kGraphs; ++i)
        m_graphs[i].ShowFilling(m_filling == i);
    m_pointer.reset();
    CRect client;
    GetClientRect(&client);
    LayOut(client.Size());
}

/// The graph with the focus, or the last one that had it.
std::size_t CScrollPage::FocusedGraph() {
    for (std::size_t i = 0; i < m_inUse; ++i)
        if (GetFocus() == &m_graphs[i])
            m_active = i;
    return m_active;
}

std::size_t CScrollPage::GraphOf(const NMHDR* notification) const {
    return notification->idFrom == IDC_LOWER_GRAPH ? 1 : 0;
}

void CScrollPage::FitGraphs() {
    CMonitorScrollGraph::Room room;
    for (std::size_t i = 0; i < m_inUse; ++i) {
        const CMonitorScrollGraph::Room needed = m_graphs[i].FitAndMeasure();
        room.tickLabels = std::max(room.tickLabels, needed.tickLabels);
        room.legend = std::max(room.legend, needed.legend);
    }
    for (std::size_t i = 0; i < m_inUse; ++i)
        m_graphs[i].TakeRoom(room);
}

/// Fits the value axes after the visible samples have changed.
void CScrollPage::ViewMoved() {
    bool changed = false;
    for (std::size_t i = 0; i < m_inUse; ++i)
        changed |= m_graphs[i].FollowValues();
    if (changed)
        FitGraphs();
}

/// Fits the axes, and the texts in the status bar, after the person has moved the view.
void CScrollPage::ViewChanged() {
    ViewMoved();
    Host().ShowSelection();
}

void CScrollPage::SetRange(std::size_t range) {
    m_range = range;
    for (CMonitorScrollGraph& graph : m_graphs)
        graph.SetRange(recording::kViewRanges[range]);
}

BOOL CScrollPage::OnMouseWheel(UINT, short zDelta, CPoint) {
    // Both views are at the same position, so the same steps keep them together.
    m_wheel += zDelta;
    const int steps = m_wheel / kWheelStep;
    m_wheel %= kWheelStep;
    for (int i = 0; i < std::abs(steps); ++i)
        for (std::size_t graph = 0; graph < m_inUse; ++graph)
            m_graphs[graph].Wheel(static_cast<short>(steps > 0 ? WHEEL_DELTA : -WHEEL_DELTA));
    if (steps != 0)
        ViewChanged();
    return TRUE;
}

void CScrollPage::OnScrolled(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const std::size_t other = 1 - GraphOf(pNMHDR);
    if (Has(other))
        m_graphs[other].ScrollTo(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nIndex);
    ViewChanged();
}

void CScrollPage::OnSelectionChanged(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    m_active = GraphOf(pNMHDR);
    const int row = m_graphs[m_active].MarkedRow();
    if (Has(1 - m_active))
        m_graphs[1 - m_active].SetSelectionMarkPos(row);
    // The arrow keys may have moved the mark out of the view.
    for (std::size_t i = 0; i < m_inUse; ++i)
        m_graphs[i].EnsureVisible(row);
    ViewChanged();
}

void CScrollPage::OnPointerMoved(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    m_pointer = Pointer{GraphOf(pNMHDR), CPoint(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt)};
    Host().ShowPointer();
}

void CScrollPage::OnPointerLeft(UINT, NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    m_pointer.reset();
    Host().ShowPointer();
}

/// The number of digits of the values in the status bar.
recording::ValueDigits CScrollPage::Digits() const {
    return Content().live || m_plan.wholeSeconds ? recording::ValueDigits::Computed
                                                 : recording::ValueDigits::AsRead;
}

/// The row's first sample as an index into the recording.
std::size_t CScrollPage::SampleOf(int row) const {
    return m_rows[static_cast<std::size_t>(row)].sample - static_cast<std::size_t>(Content().lost);
}

std::vector<double> CScrollPage::ShownValues(int row) const {
    std::vector<double> values;
    for (const Place& place : m_places)
        values.push_back(m_graphs[place.graph].ValueOf(place.dataset, row));
    return values;
}

std::vector<std::string> CScrollPage::MarkTexts() {
    const int row = m_graphs[0].MarkedRow();
    if (row < 0 || static_cast<std::size_t>(row) >= m_rows.size())
        return {};
    const ScrollRow& marked = m_rows[static_cast<std::size_t>(row)];
    std::vector<double> values = ShownValues(row);
    if (marked.count == 0)
        return {recording::FormatExact(marked.time) + "   no reading"};
    if (Content().live)
        return {(m_paused ? "Paused   " : "") + recording::FormatExact(marked.time) + "   " +
                LiveReadings::TextOf(values)};
    const Recording& recording = *Content().recording;
    std::vector<recording::Time> times(values.size(), marked.time);
    recording::Time time = marked.time;
    if (marked.count == 1) {
        time = recording.times[SampleOf(row)];
        for (std::size_t i = 0; i < values.size(); ++i) {
            const std::size_t sample = recording::SampleBeside(recording, VisibleSamples(), i, SampleOf(row));
            values[i] = recording.series[i].values[sample];
            times[i] = recording.times[sample];
        }
    }
    return TextsOfSample(time, values, times, Digits());
}

std::vector<std::string> CScrollPage::PointerTexts() {
    const auto pointed = m_pointer && Has(m_pointer->graph)
                             ? m_graphs[m_pointer->graph].SampleUnder(m_pointer->point)
                             : std::nullopt;
    if (!pointed)
        return {};
    std::size_t series = 0;
    while (m_places[series].graph != m_pointer->graph || m_places[series].dataset != pointed->series)
        ++series;
    const ScrollRow& row = m_rows[static_cast<std::size_t>(pointed->row)];
    double value = m_graphs[m_pointer->graph].ValueOf(pointed->series, pointed->row);
    if (Content().live)
        return {recording::FormatExact(row.time) + "   " + SeriesName(series) + ": " +
                LiveValueText(series, value)};
    recording::Time time = row.time;
    if (row.count == 1) {
        const Recording& recording = *Content().recording;
        const std::size_t sample =
            recording::SampleBeside(recording, VisibleSamples(), series, SampleOf(pointed->row));
        time = recording.times[sample];
        value = recording.series[series].values[sample];
    }
    return recording::SampleTexts(time, {{SeriesName(series), value, {}}}, Digits());
}

std::vector<std::string> CScrollPage::ViewTexts() {
    const PageContent& content = Content();
    if (content.live && m_paused) {
        const std::uint64_t waiting = content.live->End() - m_next;
        return {"Paused: " + recording::FormatCount(waiting) +
                (waiting == 1 ? " reading waits   " : " readings wait   ") + content.live->LatestText()};
    }
    if (content.live || m_rows.empty())
        return CMonitorPage::ViewTexts();
    const auto timeOf = [this](int row) {
        return recording::FormatDateTime(m_rows[static_cast<std::size_t>(row)].time,
                                         recording::TimePrecision::Seconds);
    };
    std::string text = timeOf(m_graphs[0].FirstVisible()) + "  to  " + timeOf(m_graphs[0].LastVisible()) +
                       (content.recording->Zoned() ? "  UTC" : "");
    if (m_plan.wholeSeconds)
        text += "   one value of every second";
    if (m_plan.first > 0)
        text += "   without " + recording::FormatCount(m_plan.first) + " rows that are too long ago";
    if (content.recording->cancelled)
        text += "   reading was stopped";
    return {text};
}

} // namespace kavlix::monitor
