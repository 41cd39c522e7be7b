// SPDX-License-Identifier: MIT
// The commands of the main window's menu.

#include "monitor/MainFrame.h"

#include <afxdlgs.h>

#include <algorithm>

#include "monitor/MessagesDlg.h"
#include "monitor/SettingsDlg.h"
#include "monitor/TextConversion.h"
#include "monitor/WindowPicture.h"
#include "monitor/recording/CheckReport.h"
#include "monitor/resource.h"

namespace kavlix::monitor {
namespace {

constexpr DWORD kFileNameRoom = 32768; // characters of the buffer for the names of all chosen files

constexpr LPCTSTR kRecordingFilter = _T("Recordings (*.csv)|*.csv|All files (*.*)|*.*||");

} // namespace

void CMainFrame::OnFileOpen() {
    CFileDialog dialog(TRUE, _T("csv"), nullptr,
                       OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT | OFN_EXPLORER,
                       kRecordingFilter, this);
    std::vector<TCHAR> names(kFileNameRoom);
    dialog.m_ofn.lpstrFile = names.data();
    dialog.m_ofn.nMaxFile = kFileNameRoom;
    if (dialog.DoModal() != IDOK)
        return;
    std::vector<std::string> paths;
    for (POSITION position = dialog.GetStartPosition(); position != nullptr;)
        paths.push_back(ToUtf8(dialog.GetNextPathName(position)));
    if (!paths.empty())
        BeginReading(std::move(paths));
}

void CMainFrame::OnFileLive() {
    BeginLive();
}

void CMainFrame::OnUpdateFileLive(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_content.live != nullptr);
}

void CMainFrame::OnFileSavePicture() {
    CFileDialog dialog(FALSE, _T("png"), _T("graph.png"), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       kPictureFilter, this);
    if (dialog.DoModal() != IDOK)
        return;
    const std::string fault = SavePicture(*this, ToUtf8(dialog.GetPathName()));
    if (!fault.empty())
        AfxMessageBox(ToText("The picture was not saved: " + fault), MB_OK | MB_ICONEXCLAMATION);
}

void CMainFrame::OnViewFill() {
    Fill(!m_filled);
}

void CMainFrame::OnUpdateViewFill(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_filled);
    pCmdUI->Enable(m_page->CanFill());
}

void CMainFrame::OnViewPage(UINT nID) {
    m_pageChosen = true;
    const auto marked = m_page->MarkedSample();
    m_content.marked.reset();
    if (marked)
        m_content.marked = m_content.lost + *marked;
    ShowPage(nID - ID_PAGE_FIRST);
    ShowSelection();
}

void CMainFrame::OnUpdateViewPage(CCmdUI* pCmdUI) {
    pCmdUI->SetRadio(m_pages[pCmdUI->m_nID - ID_PAGE_FIRST].get() == m_page);
}

void CMainFrame::OnViewMessages() {
    if (!m_content.recording)
        return;
    const std::string report = recording::MessageReport(*m_content.recording);
    CMessagesDlg(report.empty() ? "Nothing was wrong with the files." : report, this).DoModal();
}

void CMainFrame::OnUpdateViewMessages(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_content.recording != nullptr && !m_loader);
}

void CMainFrame::OnSettings() {
    CSettingsDlg dialog(m_content.Source(), m_page->VisibleSamples(), m_content.settings, this);
    if (dialog.DoModal() != IDOK)
        return;
    // Live readings may have changed the units in the series' names while the dialog was open: keep the
    // new names.
    GraphSettings settings = dialog.Settings();
    const std::vector<SeriesSettings>& current = m_content.settings.series;
    for (std::size_t i = 0; i < settings.series.size() && i < current.size(); ++i)
        settings.series[i].name = current[i].name;
    ChangeSettings(std::move(settings));
}

void CMainFrame::OnUpdateSettings(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_loader && !m_content.settings.series.empty());
}

} // namespace kavlix::monitor
