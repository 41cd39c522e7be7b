// SPDX-License-Identifier: MIT
// The chart page: its choices, texts and commands.

#include "monitor/ChartPage.h"

#include <afxdlgs.h>
#include <afxres.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "monitor/ChartSeriesDlg.h"
#include "monitor/Notifications.h"
#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/WindowPicture.h"
#include "monitor/recording/NumberText.h"
#include "monitor/recording/SampleText.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::ChartX;

namespace {

constexpr std::size_t kPointsWithLines = 500; // with more points, the lines between them hide the picture

} // namespace

BEGIN_MESSAGE_MAP(CChartPage, CMonitorPage)
    ON_WM_CREATE()

    ON_NOTIFY(MCN_SELECTION, IDC_CHART, &CChartPage::OnSelection)
    ON_NOTIFY(MCN_POINTER, IDC_CHART, &CChartPage::OnPointer)

    ON_COMMAND(ID_EDIT_COPY, &CChartPage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CChartPage::OnUpdateWithPoints)
    ON_COMMAND(ID_CHART_SAVE_AS, &CChartPage::OnSaveAs)
    ON_UPDATE_COMMAND_UI(ID_CHART_SAVE_AS, &CChartPage::OnUpdateWithPoints)

    ON_COMMAND(ID_CHART_SERIES, &CChartPage::OnChooseSeries)
    ON_UPDATE_COMMAND_UI(ID_CHART_SERIES, &CChartPage::OnUpdateWithPoints)
    ON_COMMAND(ID_CHART_SWAP, &CChartPage::OnSwap)
    ON_UPDATE_COMMAND_UI(ID_CHART_SWAP, &CChartPage::OnUpdateSwap)
    ON_COMMAND_RANGE(ID_CHART_POINTS, ID_CHART_BOTH, &CChartPage::OnStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_CHART_POINTS, ID_CHART_BOTH, &CChartPage::OnUpdateStyle)

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
    bool changed = false;
    if (std::exchange(m_generation, content.generation) != content.generation) {
        std::vector<std::size_t> visible;
        for (std::size_t i = 0; i < content.settings.series.size(); ++i)
            if (content.settings.series[i].visible)
                visible.push_back(i);
        m_choice = recording::DefaultChartChoice(visible);
        m_style.reset();
        m_mark = content.marked;
        changed = true;
    }
    auto recording = content.Source().recording;
    changed = changed || recording != m_recording || !(content.settings == m_settings);
    m_recording = std::move(recording);
    m_settings = content.settings;
    if (changed)
        Rebuild();
    const bool there = m_mark && *m_mark >= content.lost;
    m_chart.Mark(there ? std::optional(static_cast<std::size_t>(*m_mark - content.lost)) : std::nullopt);
}

/// Shows the points of the choice.
void CChartPage::Rebuild() {
    ChartPicture picture;
    picture.title = m_settings.title;
    if (m_recording && m_choice.y < m_settings.series.size()) {
        picture.points = recording::ChartPointsOf(*m_recording, m_choice);
        picture.xLabel = XText(*m_recording);
        picture.yLabel = m_settings.series[m_choice.y].name;
        picture.color = m_settings.series[m_choice.y].color;
        picture.style = m_choice.kind == ChartX::Time               ? ChartStyle::Lines
                        : picture.points.size() <= kPointsWithLines ? ChartStyle::Both
                                                                    : ChartStyle::Points;
        // A fixed scale for live readings, which never leave it.
        picture.yCovers = Content().Source().axisCovers;
        if (m_choice.kind != ChartX::Time)
            picture.xCovers = picture.yCovers;
        picture.style = m_style.value_or(picture.style);
    }
    m_chart.Show(std::move(picture));
}

std::string CChartPage::XText(const recording::Recording& recording) const {
    const std::vector<SeriesSettings>& series = m_settings.series;
    if (m_choice.kind == ChartX::Series)
        return series[m_choice.x].name;
    if (m_choice.kind == ChartX::Predecessor)
        return series[m_choice.y].name + ", one sample before";
    if (recording.times.empty())
        return {};
    const recording::Time first = recording.times.front();
    return std::string(recording::TimeUnitOf(recording.times.back() - first).name) + " since " +
           recording::FormatDateTime(first, recording::TimePrecision::Seconds) +
           (recording.Zoned() ? " UTC" : "");
}

std::vector<std::string> CChartPage::TextsOf(const recording::ChartPoint& point) const {
    std::vector<recording::NamedValue> values;
    if (m_choice.kind == ChartX::Series)
        values.push_back({m_settings.series[m_choice.x].name, point.x, {}});
    else if (m_choice.kind == ChartX::Predecessor)
        values.push_back({"before", point.x, {}});
    values.push_back({m_settings.series[m_choice.y].name, point.y, {}});
    return recording::SampleTexts(m_recording->times[point.row], values,
                                  Content().live ? recording::ValueDigits::Computed
                                                 : recording::ValueDigits::AsRead);
}

std::vector<std::string> CChartPage::MarkTexts() {
    const recording::ChartPoint* const point = m_chart.Marked();
    return point ? TextsOf(*point) : std::vector<std::string>();
}

std::vector<std::string> CChartPage::PointerTexts() {
    const recording::ChartPoint* const point = m_chart.Pointed();
    return point ? TextsOf(*point) : std::vector<std::string>();
}

std::vector<std::string> CChartPage::ViewTexts() {
    const std::vector<recording::ChartPoint>& points = m_chart.Picture().points;
    if (points.empty() || Content().live)
        return CMonitorPage::ViewTexts();
    const auto whole = static_cast<std::size_t>(
        std::count_if(points.begin(), points.end(), [](const recording::ChartPoint& point) {
            return std::isfinite(point.x) && std::isfinite(point.y);
        }));
    return {recording::FormatCount(whole) + (whole == 1 ? " point" : " points") + ": " +
                m_chart.Picture().yLabel + " against " + m_chart.Picture().xLabel,
            recording::FormatCount(whole) + (whole == 1 ? " point" : " points")};
}

std::optional<std::size_t> CChartPage::MarkedSample() {
    const recording::ChartPoint* const point = m_chart.Marked();
    return point ? std::optional(point->row) : std::nullopt;
}

void CChartPage::OnSelection(NMHDR*, LRESULT* pResult) {
    const auto marked = MarkedSample();
    m_mark = marked ? std::optional(Content().lost + *marked) : std::nullopt;
    Host().ShowSelection();
    *pResult = 0;
}

void CChartPage::OnPointer(NMHDR*, LRESULT* pResult) {
    Host().ShowPointer();
    *pResult = 0;
}

void CChartPage::OnEditCopy() {
    Host().Say(CopyTextOf(CopyReaches(
        m_chart, [this] { return m_chart.CopyToClipboard(); })));
}

void CChartPage::OnSaveAs() {
    CFileDialog dialog(FALSE, _T("png"), _T("chart.png"), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       kPictureFilter, this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    if (m_chart.SaveImage(path))
        Host().Say("Saved: " + ToUtf8(path));
    else
        AfxMessageBox(_T("The chart was not saved: ") + path +
                          _T(" cannot be written, or its name ends neither in .png nor in .bmp or .emf."),
                      MB_OK | MB_ICONEXCLAMATION);
}

void CChartPage::OnChooseSeries() {
    std::vector<std::string> names;
    for (const SeriesSettings& series : m_settings.series)
        names.push_back(series.name);
    CChartSeriesDlg dialog(names, m_choice, this);
    if (dialog.DoModal() != IDOK)
        return;
    m_choice = dialog.Choice();
    Rebuild();
    Update();
    Host().ShowSelection();
}

void CChartPage::OnSwap() {
    std::swap(m_choice.x, m_choice.y);
    Rebuild();
    Update();
    Host().ShowSelection();
}

void CChartPage::OnUpdateSwap(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_choice.kind == ChartX::Series && !m_chart.Picture().points.empty());
}

void CChartPage::OnStyle(UINT nID) {
    m_style = static_cast<ChartStyle>(nID - ID_CHART_POINTS);
    Rebuild();
    Update();
}

void CChartPage::OnUpdateStyle(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(static_cast<UINT>(m_chart.Picture().style) == pCmdUI->m_nID - ID_CHART_POINTS);
    OnUpdateWithPoints(pCmdUI);
}

void CChartPage::OnClearMark() {
    m_mark.reset();
    m_chart.Mark({});
    Host().ShowSelection();
}

void CChartPage::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasMark());
}

void CChartPage::OnUpdateWithPoints(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_chart.Picture().points.empty());
}

} // namespace kavlix::monitor
