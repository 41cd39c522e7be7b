// SPDX-License-Identifier: MIT
// The chart page's commands.

#include "monitor/ChartPage.h"

#include <afxdlgs.h>
#include <afxres.h>

#include <array>
#include <utility>

#include "monitor/ChartSeriesDlg.h"
#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/WindowPicture.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::ChartX;

namespace {

/// The chart's keys for the commands from ID_VIEW_ZOOM_IN on. The frame's accelerators take these keys.
constexpr std::array<UINT, 4> kViewKeys = {VK_ADD, VK_SUBTRACT, VK_PRIOR, VK_NEXT};

} // namespace

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

void CChartPage::OnSaveData() {
    CFileDialog dialog(FALSE, _T("csv"), _T("chart.csv"), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       _T("Recordings (*.csv)|*.csv|All files (*.*)|*.*||"), this);
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    if (m_chart.SaveData(path, TRUE))
        Host().Say("Saved: " + ToUtf8(path));
    else
        AfxMessageBox(_T("The data was not saved: ") + path + _T(" cannot be written."),
                      MB_OK | MB_ICONEXCLAMATION);
}

void CChartPage::ChangePicture(bool asNew) {
    ShowPicture(asNew);
    Update();
    Host().ShowSelection();
}

void CChartPage::OnChooseSeries() {
    std::vector<std::string> names;
    for (const SeriesSettings& series : Content().settings.series)
        names.push_back(series.name);
    CChartSeriesDlg dialog(names, m_choice, this);
    if (dialog.DoModal() != IDOK)
        return;
    m_choice = dialog.Choice();
    ChangePicture(true);
}

void CChartPage::OnSwap() {
    std::swap(m_choice.x, m_choice.y);
    ChangePicture(true);
}

void CChartPage::OnUpdateSwap(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_choice.kind == ChartX::Series && m_chart.HasSamples());
}

void CChartPage::OnStyle(UINT nID) {
    m_style = static_cast<ChartStyle>(nID - ID_CHART_POINTS);
    ChangePicture(false);
}

void CChartPage::OnUpdateStyle(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(static_cast<UINT>(m_chart.Style()) == pCmdUI->m_nID - ID_CHART_POINTS);
    OnUpdateWithSamples(pCmdUI);
}

void CChartPage::OnLegend() {
    GraphSettings settings = Content().settings;
    settings.legend = !settings.legend;
    Host().ChangeSettings(std::move(settings));
}

void CChartPage::OnUpdateLegend(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_chart.IsOverTime() && Content().settings.legend);
    pCmdUI->Enable(m_chart.IsOverTime() && m_chart.HasSamples());
}

void CChartPage::OnViewRange(UINT nID) {
    m_chart.SendMessage(WM_KEYDOWN, kViewKeys[nID - ID_VIEW_ZOOM_IN]);
}

void CChartPage::OnFit() {
    m_chart.FitView();
    Host().ShowSelection();
}

void CChartPage::OnBack() {
    m_chart.ViewBack();
    Host().ShowSelection();
}

void CChartPage::OnNewest() {
    if (Content().live && m_chart.IsOverTime())
        m_chart.FollowNewest();
    else
        m_chart.SendMessage(WM_KEYDOWN, VK_END);
}

void CChartPage::OnUpdateNewest(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_chart.GetXAxis().GetRangeMode() == CChartAxis::Follow);
    OnUpdateWithSamples(pCmdUI);
}

void CChartPage::OnClearMark() {
    m_mark.reset();
    m_chart.Mark({});
    Host().ShowSelection();
}

void CChartPage::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasMark());
}

void CChartPage::OnUpdateWithSamples(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_chart.HasSamples());
}

} // namespace kavlix::monitor
