// SPDX-License-Identifier: MIT
// Hands samples to the graph control. MonitorGraphFit chooses ranges and texts.

#include "monitor/MonitorGraph.h"

#include <algorithm>
#include <utility>

#include "monitor/TextConversion.h"
#include "monitor/recording/JoinedSamples.h"

namespace kavlix::monitor {

using recording::Recording;
using recording::VisibleRange;

namespace {

/// The most samples that the control gets for lines: many for each pixel of the widest screen, and few enough
/// that a change of the view has no noticeable delay.
constexpr std::size_t kLineSamples = 50'000;

VisibleRange AllOf(const GraphSource& source) {
    const std::size_t size = source.recording ? source.recording->times.size() : 0;
    return {0, size == 0 ? 0 : size - 1};
}

} // namespace

BEGIN_MESSAGE_MAP(CMonitorGraph, CGraphCtrl)
    ON_WM_SIZE()

    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()

    ON_COMMAND(ID_EDIT_COPY, &CMonitorGraph::OnCopy)
END_MESSAGE_MAP()

void CMonitorGraph::Show(GraphSource source, GraphSettings settings) {
    m_source = std::move(source);
    m_settings = std::move(settings);
    m_visible = AllOf(m_source);
    m_fed = false;
    m_markToKeep.reset();
    Fit();
}

void CMonitorGraph::ShowGrown(GraphSource source, std::size_t removed, std::optional<GraphSettings> changed) {
    std::optional<std::size_t> marked = MarkedSample();
    if (marked)
        marked = *marked >= removed ? std::optional(*marked - removed) : std::nullopt;
    const bool whole = !changed && m_fed && m_shown.samplesEach == 1 && ShowsAll();
    const std::size_t held = m_shown.recording.times.size();
    m_source = std::move(source);
    m_visible = AllOf(m_source);
    if (changed)
        m_settings = std::move(*changed);
    if (whole && !m_fedBars && removed <= held && m_source.recording->times.size() <= kLineSamples) {
        m_shown = Reduce(kLineSamples);
        if (recording::ChooseTimeLabels(m_shown.recording.times, m_timeLabels) == m_labels) {
            if (removed > 0)
                RemoveHeadData(static_cast<int>(removed));
            FeedTail(held - removed);
        } else {
            FeedAll();
        }
        if (marked)
            MarkSample(*marked);
    } else {
        m_fed = false;
        m_markToKeep = marked;
    }
    Fit();
}

void CMonitorGraph::ShowRest(GraphSource source, std::size_t removed, GraphSettings settings) {
    m_source = std::move(source);
    m_settings = std::move(settings);
    const VisibleRange all = AllOf(m_source);
    const auto left = [&](std::size_t sample) {
        return std::min(sample - std::min(sample, removed), all.last);
    };
    m_visible = {left(m_visible.first), left(m_visible.last)};
    m_fed = false;
    m_markToKeep.reset();
    Fit();
}

void CMonitorGraph::SetSettings(GraphSettings settings) {
    m_settings = std::move(settings);
    Fit();
}

void CMonitorGraph::SetVisible(VisibleRange range) {
    m_markToKeep = MarkedSample();
    const VisibleRange all = AllOf(m_source);
    m_visible = {std::min(range.first, all.last), std::min(range.last, all.last)};
    if (m_visible.first > m_visible.last)
        std::swap(m_visible.first, m_visible.last);
    m_fed = false;
    Fit();
}

bool CMonitorGraph::ShowsAll() const {
    const VisibleRange all = AllOf(m_source);
    return m_visible.first == 0 && m_visible.last == all.last;
}

CMonitorGraph::Mark CMonitorGraph::SelectionMark() const {
    Mark mark;
    if (m_SelectionMarkPos < 0 ||
        static_cast<std::size_t>(m_SelectionMarkPos) >= m_shown.recording.times.size())
        return mark;
    mark.index = m_SelectionMarkPos;
    const auto index = static_cast<std::size_t>(mark.index);
    mark.time = m_shown.recording.times[index];
    for (std::size_t series = 0; series < m_shown.recording.series.size(); ++series) {
        const std::size_t sample = SampleBeside(series, index);
        mark.values.push_back(ValueOf(series, sample));
        mark.times.push_back(m_shown.recording.times[sample]);
    }
    return mark;
}

std::size_t CMonitorGraph::SampleBeside(std::size_t series, std::size_t index) const {
    if (m_shown.samplesEach > 1)
        return index;
    return recording::SampleBeside(*m_source.recording, m_visible, series, m_visible.first + index) -
           m_visible.first;
}

double CMonitorGraph::ValueOf(std::size_t series, std::size_t index) const {
    // Between the samples of a joined file, m_shown has values of the connecting line, which are no samples.
    return m_shown.samplesEach == 1 ? m_source.recording->series[series].values[m_visible.first + index]
                                    : m_shown.recording.series[series].values[index];
}

std::optional<std::size_t> CMonitorGraph::MarkedSample() const {
    if (m_SelectionMarkPos < 0 || m_shown.recording.times.empty())
        return std::nullopt;
    if (m_heldMark.index == m_SelectionMarkPos)
        return m_heldMark.sample;
    const std::size_t sample =
        m_visible.first + m_shown.SampleOf(static_cast<std::size_t>(m_SelectionMarkPos), VisibleCount());
    return std::min(sample, m_visible.last);
}

void CMonitorGraph::MarkSample(std::size_t sample) {
    if (sample < m_visible.first || sample > m_visible.last)
        return;
    const int index = static_cast<int>(m_shown.ShownFor(sample - m_visible.first, VisibleCount()));
    SetSelectionMarkPos(index);
    m_heldMark = {index, sample};
}

std::size_t CMonitorGraph::FirstSampleOf(int index) const {
    const std::size_t run = m_shown.RunOf(static_cast<std::size_t>(std::max(index, 0)));
    return std::min(m_visible.first + run, m_visible.last);
}

void CMonitorGraph::OnSize(UINT nType, int cx, int cy) {
    CGraphCtrl::OnSize(nType, cx, cy);
    if (cx > 0 && cy > 0)
        Fit();
}

void CMonitorGraph::FeedSamples(const Layout& layout) {
    const bool bars = m_settings.style == GraphStyleBar;
    const std::size_t limit = SampleLimit(layout);
    m_timeLabels = static_cast<int>(layout.plot.cx) /
                   (bars ? recording::kBarLabelDistance : recording::kLineLabelDistance);
    if (m_fed && m_fedBars == bars && m_fedLimit == limit &&
        recording::ChooseTimeLabels(m_shown.recording.times, m_timeLabels) == m_labels)
        return;
    if (m_fed)
        m_markToKeep = MarkedSample();
    m_shown = Reduce(limit);
    FeedAll();
    m_fed = true;
    m_fedBars = bars;
    m_fedLimit = limit;
    if (const auto kept = std::exchange(m_markToKeep, std::nullopt))
        MarkSample(*kept);
}

void CMonitorGraph::FeedAll() {
    SetAutoXVisible(FALSE);
    m_heldMark = {};
    for (int i = 0; i < DatasetCount; ++i)
        ResetData(i);
    ResetXTickLabel();
    const Recording& shown = m_shown.recording;
    m_labels = recording::ChooseTimeLabels(shown.times, m_timeLabels);
    SetXTickLabelHeight(m_labels.bandHeight);
    SetXTickLabelUpStringMaxLength(m_labels.chars);
    FeedTail(0);
}

void CMonitorGraph::FeedTail(std::size_t first) {
    const Recording& shown = m_shown.recording;
    const std::size_t seriesCount = std::min<std::size_t>(shown.series.size(), DatasetCount);
    for (std::size_t series = 0; series < seriesCount; ++series) {
        const auto& values = shown.series[series].values;
        for (std::size_t i = first; i < values.size(); ++i)
            AddData(static_cast<int>(series), values[i], nullptr);
    }
    for (std::size_t i = first; i < shown.times.size(); ++i)
        AddXTickLabel(ToText(recording::MakeTimeLabel(m_labels, shown.times[i])), CString());
    // Take the times of the recording, not of m_shown. A bar has the time of its run's first sample, so the
    // last bar's time is before the last sample's.
    const std::vector<recording::Time>* const times =
        m_source.recording ? &m_source.recording->times : nullptr;
    std::vector<recording::Time> ends;
    if (times && !times->empty())
        ends = {(*times)[m_visible.first], (*times)[m_visible.last]};
    m_timeTitle = recording::TimeAxisTitle(ends, m_labels, shown.Zoned());
}

std::size_t CMonitorGraph::SampleLimit(const Layout& layout) const {
    if (m_settings.style != GraphStyleBar)
        return kLineSamples;
    // Bars of at least four pixels are easy to see.
    constexpr int pixels = 4;
    const std::size_t series = m_source.recording ? m_source.recording->series.size() : 1;
    return recording::BarCapacity(static_cast<int>(layout.plot.cx / pixels),
                                  std::max<std::size_t>(series, 1));
}

recording::ShownSamples CMonitorGraph::Reduce(std::size_t limit) const {
    if (!m_source.recording)
        return {};
    return m_settings.style == GraphStyleBar
               ? recording::ReduceForBars(*m_source.recording, m_visible, limit)
               : recording::ReduceForLines(*m_source.recording, m_visible, limit);
}

} // namespace kavlix::monitor
