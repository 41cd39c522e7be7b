// SPDX-License-Identifier: MIT
// The chart page's content, texts and notifications. Its commands are in ChartPageCommands.

#include "monitor/ChartPage.h"

#include <afxres.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "monitor/Notifications.h"
#include "monitor/recording/NumberText.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::ChartPoint, recording::ChartX;

BEGIN_MESSAGE_MAP(CChartPage, CMonitorPage)
    ON_WM_CREATE()

    ON_NOTIFY(MCN_SELECTION, IDC_CHART, &CChartPage::OnMarked)
    ON_NOTIFY(CDN_CURSOR, IDC_CHART, &CChartPage::OnCursor)
    ON_NOTIFY(CDN_VIEW, IDC_CHART, &CChartPage::OnView)
    ON_NOTIFY(CDN_DATASET, IDC_CHART, &CChartPage::OnDatasetShown)
    ON_NOTIFY(CDN_MENU, IDC_CHART, &CChartPage::OnMenu)

    ON_COMMAND(ID_EDIT_COPY, &CChartPage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_CHART_SAVE_AS, &CChartPage::OnSaveAs)
    ON_COMMAND(ID_CHART_SAVE_PICTURE, &CChartPage::OnSaveAs)
    ON_UPDATE_COMMAND_UI(ID_CHART_SAVE_AS, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_CHART_SAVE_DATA, &CChartPage::OnSaveData)
    ON_UPDATE_COMMAND_UI(ID_CHART_SAVE_DATA, &CChartPage::OnUpdateWithSamples)

    ON_COMMAND(ID_CHART_SERIES, &CChartPage::OnChooseSeries)
    ON_UPDATE_COMMAND_UI(ID_CHART_SERIES, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_CHART_SWAP, &CChartPage::OnSwap)
    ON_UPDATE_COMMAND_UI(ID_CHART_SWAP, &CChartPage::OnUpdateSwap)
    ON_COMMAND_RANGE(ID_CHART_POINTS, ID_CHART_BOTH, &CChartPage::OnStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_CHART_POINTS, ID_CHART_BOTH, &CChartPage::OnUpdateStyle)
    ON_COMMAND(ID_VIEW_LEGEND, &CChartPage::OnLegend)
    ON_UPDATE_COMMAND_UI(ID_VIEW_LEGEND, &CChartPage::OnUpdateLegend)

    ON_COMMAND_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_LATER, &CChartPage::OnViewRange)
    ON_COMMAND(ID_VIEW_FULL_RANGE, &CChartPage::OnFit)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_FULL_RANGE, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_CHART_FIT, &CChartPage::OnFit)
    ON_UPDATE_COMMAND_UI(ID_CHART_FIT, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_CHART_BACK, &CChartPage::OnBack)
    ON_UPDATE_COMMAND_UI(ID_CHART_BACK, &CChartPage::OnUpdateWithSamples)
    ON_COMMAND(ID_SCROLL_NEWEST, &CChartPage::OnNewest)
    ON_UPDATE_COMMAND_UI(ID_SCROLL_NEWEST, &CChartPage::OnUpdateNewest)

    ON_COMMAND(ID_GRAPH_CLEAR_SELECTION_MARK, &CChartPage::OnClearMark)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_CLEAR_SELECTION_MARK, &CChartPage::OnUpdateClearMark)
END_MESSAGE_MAP()

int CChartPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CMonitorPage::OnCreate(lpCreateStruct) == failed)
        return failed;
    return m_chart.CreateChild(*this, IDC_CHART) ? 0 : failed;
}

void CChartPage::Update() {
    const PageContent& content = Content();
    if (std::exchange(m_contentMark, content.marked) != content.marked)
        m_mark = content.marked;
    const auto removed = static_cast<std::size_t>(content.lost - std::exchange(m_lost, content.lost));
    const ChartPicture& shown = m_chart.Picture();
    const auto recording = content.Source().recording;
    const bool isNew = std::exchange(m_generation, content.generation) != content.generation;
    if (isNew) {
        m_choice = {};
        m_choice.y = content.settings.series.size() > 1 ? 1 : 0;
        m_style.reset();
        m_mark = content.marked;
    }
    if (isNew || (recording && !m_chart.HasSamples()))
        ShowPicture(true);
    else if (content.live && m_chart.IsOverTime() && recording != shown.recording &&
             content.settings == shown.settings)
        m_chart.Grow(recording, removed);
    else if (recording != shown.recording || !(content.settings == shown.settings))
        ShowPicture(false);
    const bool there = m_mark && *m_mark >= content.lost;
    m_chart.Mark(there ? std::optional(static_cast<std::size_t>(*m_mark - content.lost)) : std::nullopt);
}

/// Shows the content as the person has chosen.
void CChartPage::ShowPicture(bool asNew) {
    const GraphSource source = Content().Source();
    ChartPicture picture;
    picture.recording = source.recording;
    picture.settings = Content().settings;
    picture.choice = m_choice;
    picture.style = m_style;
    picture.covers = source.axisCovers; // a fixed scale for live readings, which never leave it
    picture.isLive = Content().live != nullptr;
    m_chart.Show(std::move(picture), asNew);
}

/// Texts of the row at a cursor: over time the values of all series, otherwise those of the point.
std::vector<std::string> CChartPage::TextsOf(std::size_t row, CMonitorChart::Cursor cursor) {
    const recording::Recording& recording = *m_chart.Picture().recording;
    const auto digits = Content().live ? recording::ValueDigits::Computed : recording::ValueDigits::AsRead;
    if (m_chart.IsOverTime()) {
        std::vector<double> values;
        std::vector<recording::Time> times;
        for (std::size_t i = 0; i < recording.series.size(); ++i) {
            // In joined files a series of another file has its samples at other times.
            const std::size_t own = m_chart.RowOfSeries(cursor, i).value_or(row);
            const recording::Time away = std::abs(recording.times[own] - recording.times[row]);
            const bool isBeside = away < recording.IntervalOf(i);
            values.push_back(recording.series[i].values[isBeside ? own : row]);
            times.push_back(recording.times[isBeside ? own : row]);
        }
        return TextsOfSample(recording.times[row], values, times, digits);
    }
    const ChartPoint* const point = m_chart.PointOf(row);
    if (!point)
        return {};
    const std::string before = m_choice.kind == ChartX::Series ? m_chart.XText() : "before";
    return recording::SampleTexts(recording.times[row],
                                  {{before, point->x, {}}, {m_chart.YText(), point->y, {}}}, digits);
}

std::vector<std::string> CChartPage::MarkTexts() {
    const auto row = MarkedSample();
    return row ? TextsOf(*row, CMonitorChart::MarkCursor) : std::vector<std::string>();
}

std::vector<std::string> CChartPage::PointerTexts() {
    const auto row = m_chart.Pointed();
    return row ? TextsOf(*row, CMonitorChart::PointerCursor) : std::vector<std::string>();
}

std::vector<std::string> CChartPage::ViewTexts() {
    if (!m_chart.HasSamples() || Content().live)
        return CMonitorPage::ViewTexts();
    const recording::Recording& recording = *m_chart.Picture().recording;
    if (m_chart.IsOverTime())
        return {RangeText(recording, m_chart.Visible()) +
                (recording.cancelled ? "   reading was stopped" : "")};
    const std::vector<ChartPoint>& points = m_chart.Points();
    const auto whole =
        static_cast<std::size_t>(std::count_if(points.begin(), points.end(), [](const ChartPoint& point) {
            return std::isfinite(point.x) && std::isfinite(point.y);
        }));
    const std::string count = recording::FormatCount(whole) + (whole == 1 ? " point" : " points");
    return {count + ": " + m_chart.YText() + " against " + m_chart.XText(), count};
}

/// The marked row: of several rows with the same time the one that was handed to this page.
std::optional<std::size_t> CChartPage::MarkedSample() {
    const auto shown = m_chart.Marked();
    if (!shown)
        return std::nullopt;
    return m_mark && *m_mark >= Content().lost ? static_cast<std::size_t>(*m_mark - Content().lost) : *shown;
}

recording::VisibleRange CChartPage::VisibleSamples() {
    return m_chart.HasSamples() ? m_chart.Visible() : CMonitorPage::VisibleSamples();
}

/// The person has marked another sample in the chart, or none.
void CChartPage::TakeMark() {
    const auto marked = m_chart.Marked();
    m_mark = marked ? std::optional(Content().lost + *marked) : std::nullopt;
    Host().ShowSelection();
}

void CChartPage::OnMarked(NMHDR*, LRESULT* pResult) {
    TakeMark();
    *pResult = 0;
}

void CChartPage::OnCursor(NMHDR* pNMHDR, LRESULT* pResult) {
    if (reinterpret_cast<const NMCHARTDRAW*>(pNMHDR)->nItem == 0)
        Host().ShowPointer();
    else
        TakeMark();
    *pResult = 0;
}

void CChartPage::OnView(NMHDR*, LRESULT* pResult) {
    // The view of live readings moves by itself, and the status bar does not tell it: a notice stays.
    if (!Content().live)
        Host().ShowSelection();
    *pResult = 0;
}

void CChartPage::OnDatasetShown(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int dataset = reinterpret_cast<const NMCHARTDRAW*>(pNMHDR)->nIndex;
    GraphSettings settings = Content().settings;
    if (!m_chart.IsOverTime() || dataset < 0 || static_cast<std::size_t>(dataset) >= settings.series.size())
        return;
    settings.series[static_cast<std::size_t>(dataset)].visible = m_chart.IsDatasetShown(dataset) != FALSE;
    Host().ChangeSettings(std::move(settings));
}

void CChartPage::OnMenu(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    CMenu* const menu = CMenu::FromHandle(reinterpret_cast<const NMCHARTDRAW*>(pNMHDR)->hMenu);
    if (!menu || !m_chart.HasSamples())
        return;
    menu->AppendMenu(MF_SEPARATOR);
    if (Content().live && m_chart.IsOverTime())
        menu->AppendMenu(MF_STRING, ID_SCROLL_NEWEST, _T("Follow &Newest"));
    menu->AppendMenu(MF_STRING, ID_CHART_SERIES, _T("Choose &Series..."));
    menu->AppendMenu(m_chart.Marked() ? MF_STRING : MF_STRING | MF_GRAYED, ID_GRAPH_CLEAR_SELECTION_MARK,
                     _T("Clear Selection &Mark"));
}

} // namespace kavlix::monitor
