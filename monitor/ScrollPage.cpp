// SPDX-License-Identifier: MIT
// The scroll page's content: turns samples into rows. View and commands have files of their own.

#include "monitor/ScrollPage.h"

#include <afxres.h>

#include <kavlix/Kavlix.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "monitor/Notifications.h"
#include "monitor/recording/NumberText.h"
#include "monitor/recording/Reduction.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::Recording;
using recording::ScrollRow;
using recording::ValueSpan;

namespace {

constexpr std::size_t kSlice = 50'000; // samples that one piece of idle work hands to the graphs as rows

/// When more new rows than this are added together, the view follows only after the last one.
constexpr std::size_t kFollowedRows = 100;

/// The interval of live readings for AppendGapRows: longer than a second, so that a late reading is no gap.
constexpr recording::Time kLiveInterval = 3 * recording::kMicrosPerSecond;

ValueSpan SpanFrom(std::initializer_list<double> values) {
    ValueSpan span;
    for (const double value : values)
        span.Take(value);
    return span;
}

} // namespace

BEGIN_MESSAGE_MAP(CScrollPage, CMonitorPage)
    ON_WM_CREATE()

    ON_WM_MOUSEWHEEL()

    ON_NOTIFY_RANGE(GCN_SCROLL, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnScrolled)
    ON_NOTIFY_RANGE(GCN_SELCHANGE, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnSelectionChanged)
    ON_NOTIFY_RANGE(GCN_MOUSEMOVE, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnPointerMoved)
    ON_NOTIFY_RANGE(MGN_MOUSELEAVE, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnPointerLeft)
    ON_NOTIFY_RANGE(GCN_DBLCLK_LEGEND, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnLegendDoubleClick)
    ON_NOTIFY_RANGE(GCN_DBLCLK_CAPTION, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnCaptionDoubleClick)
    ON_NOTIFY_RANGE(GCN_MAXIMIZE, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnMaximize)
    ON_NOTIFY_RANGE(GCN_REMOVEDATA, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnDataRemoved)
    ON_NOTIFY_RANGE(MGN_COPIED, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnCopied)
    ON_NOTIFY_RANGE(MGN_NOTCOPIED, IDC_UPPER_GRAPH, IDC_LOWER_GRAPH, &CScrollPage::OnNotCopied)
    ON_MESSAGE(WM_GRAPH_SELMARKTIME, &CScrollPage::OnMarkTime)

    ON_COMMAND(ID_EDIT_COPY, &CScrollPage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CScrollPage::OnUpdateEditCopy)
    ON_COMMAND_RANGE(ID_GRAPH_CLEAR_SELECTION_MARK, ID_GRAPH_REMOVE_DATA_BEFORE_MARK,
                     &CScrollPage::OnEditGraph)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_CLEAR_SELECTION_MARK, &CScrollPage::OnUpdateClearMark)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CScrollPage::OnUpdateRemoveData)

    ON_COMMAND(ID_VIEW_LEGEND, &CScrollPage::OnViewLegend)
    ON_UPDATE_COMMAND_UI(ID_VIEW_LEGEND, &CScrollPage::OnUpdateViewLegend)
    ON_COMMAND_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CScrollPage::OnViewGrid)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CScrollPage::OnUpdateViewGrid)
    ON_COMMAND_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_LATER, &CScrollPage::OnViewMove)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_LATER, &CScrollPage::OnUpdateViewMove)
    ON_COMMAND_RANGE(ID_SCROLL_OLDEST, ID_SCROLL_NEWEST, &CScrollPage::OnViewMove)
    ON_UPDATE_COMMAND_UI_RANGE(ID_SCROLL_OLDEST, ID_SCROLL_NEWEST, &CScrollPage::OnUpdateViewMove)

    ON_COMMAND_RANGE(ID_SCROLL_RANGE_FIRST, ID_SCROLL_RANGE_LAST, &CScrollPage::OnRange)
    ON_UPDATE_COMMAND_UI_RANGE(ID_SCROLL_RANGE_FIRST, ID_SCROLL_RANGE_LAST, &CScrollPage::OnUpdateRange)
    ON_COMMAND(ID_SCROLL_PAUSE, &CScrollPage::OnPause)
    ON_UPDATE_COMMAND_UI(ID_SCROLL_PAUSE, &CScrollPage::OnUpdatePause)
    ON_COMMAND(ID_SCROLL_KEEP, &CScrollPage::OnKeepAtMost)
    ON_UPDATE_COMMAND_UI(ID_SCROLL_KEEP, &CScrollPage::OnUpdateKeepAtMost)
    ON_COMMAND(ID_SCROLL_TINDRO, &CScrollPage::OnTindro)
    ON_UPDATE_COMMAND_UI(ID_SCROLL_TINDRO, &CScrollPage::OnUpdateTindro)
END_MESSAGE_MAP()

int CScrollPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CMonitorPage::OnCreate(lpCreateStruct) == failed)
        return failed;
    for (std::size_t i = 0; i < kGraphs; ++i) {
        if (!m_graphs[i].CreateChild(*this, IDC_UPPER_GRAPH + static_cast<UINT>(i)))
            return failed;
        m_graphs[i].SetScrollSync(TRUE);
    }
    return 0;
}

void CScrollPage::Update() {
    const PageContent& content = Content();
    if (m_generation != content.generation) {
        Begin();
        return;
    }
    if (!(m_settings == content.settings)) {
        SetLooks();
        FitGraphs();
    }
    // Samples that the person removes disappear at once, even during a pause.
    if (!m_paused || m_cuts != content.cuts)
        TrimTo(content.live ? content.live->First() : content.lost);
    m_cuts = content.cuts;
    if (content.live && !m_paused)
        FeedLive();
    if (!m_feeding)
        ViewMoved();
}

/// Discards the rows of the previous content and begins to show the current content.
void CScrollPage::Begin() {
    const PageContent& content = Content();
    m_generation = content.generation;
    m_cuts = content.cuts;
    m_paused = false;
    m_rows.clear();
    m_stamps.Reset();
    m_feeding.reset();
    m_pointer.reset();
    if (content.live) {
        std::vector<bool> below;
        for (std::size_t i = 0; i < LiveReadings::kSeries; ++i)
            below.push_back(LiveReadings::IsRate(i));
        Divide(below);
        m_next = content.live->First();
        SetRange(1);
        FeedLive();
    } else if (const auto recording = content.Source().recording) {
        std::vector<ValueSpan> spans;
        for (const recording::Series& series : recording->series)
            spans.push_back(recording::SpanOf(series.values));
        Divide(recording::DivideByMagnitude(spans));
        m_plan = recording::PlanScrollRows(*recording);
        m_next = content.lost + m_plan.first;
        m_before.assign(recording->series.size(), recording::kNoValue);
        // In joined files, lines connect the samples of one file across the rows of other files.
        m_feeding = recording;
        m_feedingFrom = content.lost;
        if (recording->files.size() > 1)
            m_feeding = std::make_shared<const Recording>(
                recording::ReduceForLines(*recording, VisibleSamples(), recording->times.size()).recording);
    } else {
        Divide({});
    }
    FitGraphs();
}

void CScrollPage::Divide(const std::vector<bool>& below) {
    std::size_t counts[kGraphs] = {};
    m_places.clear();
    for (const bool lower : below) {
        const std::size_t graph = lower ? 1 : 0;
        m_places.push_back({graph, counts[graph]++});
    }
    const std::size_t before = std::exchange(m_inUse, counts[1] > 0 ? 2 : 1);
    m_settings = Content().settings;
    for (std::size_t i = 0; i < kGraphs; ++i) {
        CMonitorScrollGraph::Axis axis;
        if (Content().live && i == 0)
            axis = {SpanFrom({0, 100}), "%"};
        else if (Content().live)
            axis = {SpanFrom({0}), "B/s"};
        m_graphs[i].Begin(m_settings, SeriesOf(i), std::move(axis));
    }
    if (m_inUse == before)
        return;
    m_active = 0;
    if (m_filling)
        m_filling = 0;
    CRect client;
    GetClientRect(&client);
    LayOut(client.Size());
}

std::vector<SeriesSettings> CScrollPage::SeriesOf(std::size_t graph) const {
    std::vector<SeriesSettings> series;
    for (std::size_t i = 0; i < m_places.size() && i < m_settings.series.size(); ++i) {
        if (m_places[i].graph != graph)
            continue;
        series.push_back(m_settings.series[i]);
        series.back().name = SeriesName(i);
    }
    return series;
}

/// The name in the legend. For live readings it has no unit, because the axes show `%` and `B/s` here.
std::string CScrollPage::SeriesName(std::size_t series) const {
    const std::string& name = m_settings.series[series].name;
    const bool available = name.find("(not available)") == std::string::npos;
    return Content().live && available ? LiveReadings::NameOf(series) : name;
}

void CScrollPage::SetLooks() {
    m_settings = Content().settings;
    for (std::size_t i = 0; i < kGraphs; ++i)
        m_graphs[i].SetLook(m_settings, SeriesOf(i));
}

void CScrollPage::FeedLive() {
    const LiveReadings& live = *Content().live;
    std::vector<ScrollRow> rows;
    if (!m_rows.empty())
        rows.push_back(m_rows.back());
    m_next = std::max(m_next, live.First());
    for (; m_next < live.End(); ++m_next) {
        const recording::Time time = recording::FloorTo(live.TimeOf(m_next), recording::kMicrosPerSecond);
        if (!rows.empty())
            recording::AppendGapRows(rows.back().time, time, kLiveInterval, m_next, rows);
        rows.push_back({time, static_cast<std::size_t>(m_next), 1});
    }
    if (!m_rows.empty())
        rows.erase(rows.begin());
    AddRows(rows, 0, rows.size() > kFollowedRows);
}

bool CScrollPage::WorkInIdle() {
    if (!m_feeding)
        return false;
    FeedSlice();
    return true;
}

void CScrollPage::FeedSlice() {
    const auto base = static_cast<std::size_t>(m_feedingFrom);
    std::vector<ScrollRow> rows;
    if (!m_rows.empty()) {
        rows.push_back(m_rows.back());
        rows.back().sample -= base;
    }
    auto sample = static_cast<std::size_t>(m_next - base);
    recording::AppendRows(*m_feeding, m_plan, sample, kSlice, rows);
    m_next = base + sample;
    if (!m_rows.empty())
        rows.erase(rows.begin());
    const bool ended = sample >= m_feeding->times.size();
    AddRows(rows, base, true);
    if (ended)
        EndFeeding();
}

void CScrollPage::EndFeeding() {
    m_feeding.reset();
    if (!m_rows.empty()) {
        const recording::Time length = m_rows.back().time - m_rows.front().time;
        SetRange(recording::ChooseViewRange(length));
        if (length <= recording::kViewRanges[m_range] * recording::kMicrosPerSecond)
            for (CMonitorScrollGraph& graph : m_graphs)
                graph.ShowOldest();
    }
    FitGraphs();
    Host().ShowSelection();
}

/// Adds rows to the graphs. Sample 0 of the rows is number `base` of the content.
void CScrollPage::AddRows(const std::vector<ScrollRow>& rows, std::uint64_t base, bool offline) {
    if (rows.empty())
        return;
    const bool following = m_graphs[0].Rows() == 0 || m_graphs[0].ShowsNewest();
    std::vector<double> divided[kGraphs];
    for (const ScrollRow& row : rows) {
        const std::vector<double> values = ValuesOf(row);
        for (std::vector<double>& some : divided)
            some.clear();
        for (std::size_t i = 0; i < m_places.size(); ++i)
            divided[m_places[i].graph].push_back(values[i]);
        const long stamp = m_stamps.Stamp(row.time);
        for (std::size_t i = 0; i < m_inUse; ++i)
            if (offline)
                m_graphs[i].AppendOffline(stamp, divided[i]);
            else
                m_graphs[i].Append(stamp, divided[i]);
        m_rows.push_back({row.time, static_cast<std::size_t>(row.sample + base), row.count});
    }
    for (std::size_t i = 0; i < m_inUse; ++i)
        if (!offline)
            m_graphs[i].RedrawData();
        else if (following)
            m_graphs[i].ShowNewest();
        else
            m_graphs[i].ReachNewest();
}

std::vector<double> CScrollPage::ValuesOf(const ScrollRow& row) {
    std::vector<double> values(m_places.size(), recording::kNoValue);
    if (row.count == 0)
        return values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (Content().live) {
            values[i] = Content().live->ValueOf(row.sample, i);
            continue;
        }
        values[i] = recording::PeakValue(m_feeding->series[i].values, row, m_before[i]);
        if (!std::isnan(values[i]))
            m_before[i] = values[i];
    }
    return values;
}

/// Removes the rows whose first sample is before `sample`, and the gap right before `sample`.
void CScrollPage::TrimTo(std::uint64_t sample) {
    const auto gone = [sample](const ScrollRow& row) {
        return row.count == 0 ? row.sample <= sample : row.sample < sample;
    };
    const auto left = std::find_if_not(m_rows.begin(), m_rows.end(), gone);
    const auto count = static_cast<int>(left - m_rows.begin());
    if (count == 0)
        return;
    m_rows.erase(m_rows.begin(), left);
    for (std::size_t i = 0; i < m_inUse; ++i)
        m_graphs[i].TrimHead(count);
}

} // namespace kavlix::monitor
