// The commands of the main window's menu.

#include "monitor/MainFrame.h"

#include "monitor/MessagesDlg.h"
#include "monitor/SettingsDlg.h"
#include "monitor/WindowPicture.h"
#include "monitor/recording/CheckReport.h"
#include "monitor/resource.h"

#include <afxdlgs.h>

#include <algorithm>

namespace kavlix::monitor {

using recording::VisibleRange;

namespace {

constexpr DWORD kFileNameRoom = 32768;  // characters for the names of all chosen files
constexpr std::size_t kFewestShown = 8; // samples: nobody zooms in farther

constexpr const char* kRecordingFilter = "Recordings (*.csv)|*.csv|All files (*.*)|*.*||";
constexpr const char* kPictureFilter = "Pictures (*.png)|*.png||";

/// Moves the range by so many samples, as far as there are any.
VisibleRange Moved(VisibleRange range, std::ptrdiff_t by, std::size_t count) {
    const std::size_t size = range.last - range.first + 1;
    const std::size_t end = count - std::min(size, count);
    const std::size_t room = by < 0 ? range.first : end - std::min(range.first, end);
    const std::size_t step = std::min(static_cast<std::size_t>(by < 0 ? -by : by), room);
    range.first = by < 0 ? range.first - step : range.first + step;
    range.last = range.first + size - 1;
    return range;
}

/// A range of the given size round a sample.
VisibleRange Around(std::size_t middle, std::size_t size, std::size_t count) {
    size = std::min(size, count);
    const std::size_t first = std::min(middle - std::min(middle, size / 2), count - size);
    return {first, first + size - 1};
}

} // namespace

void CMainFrame::OnFileOpen() {
    CFileDialog dialog(TRUE, "csv", nullptr,
                       OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT | OFN_EXPLORER,
                       kRecordingFilter, this);
    std::vector<char> names(kFileNameRoom);
    dialog.m_ofn.lpstrFile = names.data();
    dialog.m_ofn.nMaxFile = kFileNameRoom;
    if (dialog.DoModal() != IDOK)
        return;
    std::vector<std::string> paths;
    for (POSITION position = dialog.GetStartPosition(); position != nullptr;)
        paths.push_back(static_cast<LPCTSTR>(dialog.GetNextPathName(position)));
    if (!paths.empty())
        BeginReading(std::move(paths));
}

void CMainFrame::OnFileLive() {
    BeginLive();
}

void CMainFrame::OnUpdateFileLive(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_live != nullptr);
}

void CMainFrame::OnFileSavePicture() {
    CFileDialog dialog(FALSE, "png", "graph.png", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, kPictureFilter,
                       this);
    if (dialog.DoModal() != IDOK)
        return;
    const std::string fault = SavePicture(*this, static_cast<LPCTSTR>(dialog.GetPathName()));
    if (!fault.empty())
        AfxMessageBox(("The picture was not saved: " + fault).c_str(), MB_OK | MB_ICONEXCLAMATION);
}

void CMainFrame::OnEditGraph(UINT nID) {
    m_graph.SendMessage(WM_COMMAND, nID);
}

void CMainFrame::OnEditCopy() {
    OnEditGraph(ID_EDIT_COPY);
}

void CMainFrame::OnUpdateEditCopy(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_graph.Settings().series.empty());
}

void CMainFrame::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_graph.SelectionMark().index >= 0);
}

void CMainFrame::OnUpdateRemoveData(CCmdUI* pCmdUI) {
    const int mark = m_graph.SelectionMark().index;
    pCmdUI->Enable(mark >= 0 && m_graph.FirstSampleOf(mark) > 0);
}

void CMainFrame::OnDataRemoved(NMHDR* pNMHDR, LRESULT* pResult) {
    const int count = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nCount;
    *pResult = 0;
    // Below zero: the mark went while the person was asked.
    if (count >= 0)
        RemoveBefore(count);
    ShowSelection();
}

void CMainFrame::OnLegendDoubleClick(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int row = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nIndex;
    GraphSettings settings = m_graph.Settings();
    if (row < 0 || static_cast<std::size_t>(row) >= settings.series.size())
        return;
    bool& visible = settings.series[static_cast<std::size_t>(row)].visible;
    visible = !visible;
    m_graph.SetSettings(std::move(settings));
    ShowSelection();
}

void CMainFrame::OnViewFill() {
    Fill(m_filling ? nullptr : &m_graph);
}

void CMainFrame::OnUpdateViewFill(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_filling != nullptr);
}

void CMainFrame::OnMaximize(NMHDR*, LRESULT* pResult) {
    OnViewFill();
    *pResult = 0;
}

void CMainFrame::OnCaptionDoubleClick(NMHDR* pNMHDR, LRESULT* pResult) {
    // A double-click on the icon: its first click has done what was wanted.
    if (!m_graph.IsOnIcon(CPoint(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt)))
        OnViewFill();
    *pResult = 0;
}

void CMainFrame::OnViewStyle(UINT nID) {
    GraphSettings settings = m_graph.Settings();
    settings.style = static_cast<CGraphCtrl::GraphStyle>(nID - ID_VIEW_LINE);
    m_graph.SetSettings(std::move(settings));
    ShowSelection();
}

void CMainFrame::OnUpdateViewStyle(CCmdUI* pCmdUI) {
    const GraphSettings& settings = m_graph.Settings();
    pCmdUI->SetRadio(static_cast<UINT>(settings.style) == pCmdUI->m_nID - ID_VIEW_LINE);
    // Two axes need two series.
    pCmdUI->Enable(!m_loader && settings.series.size() >= (pCmdUI->m_nID == ID_VIEW_TWO_AXES ? 2u : 1u));
}

void CMainFrame::OnViewLegend() {
    GraphSettings settings = m_graph.Settings();
    settings.legend = !settings.legend;
    m_graph.SetSettings(std::move(settings));
    ShowSelection();
}

void CMainFrame::OnUpdateViewLegend(CCmdUI* pCmdUI) {
    const GraphSettings& settings = m_graph.Settings();
    const bool possible = settings.style != CGraphCtrl::GraphStyleTwoAxis;
    pCmdUI->SetCheck(possible && settings.legend);
    pCmdUI->Enable(possible);
}

void CMainFrame::OnViewGrid(UINT nID) {
    GraphSettings settings = m_graph.Settings();
    bool& grid = nID == ID_VIEW_GRID_X ? settings.gridX : settings.gridY;
    grid = !grid;
    m_graph.SetSettings(std::move(settings));
    ShowSelection();
}

void CMainFrame::OnUpdateViewGrid(CCmdUI* pCmdUI) {
    const GraphSettings& settings = m_graph.Settings();
    const bool forTime = pCmdUI->m_nID == ID_VIEW_GRID_X;
    pCmdUI->SetCheck(forTime ? settings.gridX : settings.gridY);
    // Bars have no lines at the time ticks.
    pCmdUI->Enable(!forTime || settings.style != CGraphCtrl::GraphStyleBar);
}

std::size_t CMainFrame::SampleCount() const {
    return m_recording && !m_recording->Empty() ? m_recording->times.size() : 0;
}

void CMainFrame::OnViewRange(UINT nID) {
    const std::size_t count = SampleCount();
    if (count == 0)
        return;
    const VisibleRange now = m_graph.Visible();
    const std::size_t size = now.last - now.first + 1;
    const std::size_t middle = m_graph.MarkedSample().value_or(now.first + size / 2);
    const auto page = static_cast<std::ptrdiff_t>(std::max<std::size_t>(size / 2, 1));
    switch (nID) {
    case ID_VIEW_ZOOM_IN:
        m_graph.SetVisible(Around(middle, std::max(size / 2, std::min(kFewestShown, size)), count));
        break;
    case ID_VIEW_ZOOM_OUT:
        m_graph.SetVisible(Around(middle, size > count / 2 ? count : size * 2, count));
        break;
    case ID_VIEW_EARLIER:
        m_graph.SetVisible(Moved(now, -page, count));
        break;
    case ID_VIEW_LATER:
        m_graph.SetVisible(Moved(now, page, count));
        break;
    default:
        m_graph.SetVisible({0, count - 1});
        break;
    }
    ShowSelection();
}

void CMainFrame::OnUpdateViewRange(CCmdUI* pCmdUI) {
    const std::size_t count = SampleCount();
    const VisibleRange now = m_graph.Visible();
    bool possible = count > 0;
    switch (pCmdUI->m_nID) {
    case ID_VIEW_ZOOM_IN:
        possible = possible && now.last - now.first + 1 > kFewestShown;
        break;
    case ID_VIEW_EARLIER:
        possible = possible && now.first > 0;
        break;
    case ID_VIEW_LATER:
        possible = possible && now.last + 1 < count;
        break;
    default:
        possible = possible && !m_graph.ShowsAll();
        break;
    }
    pCmdUI->Enable(possible);
}

void CMainFrame::OnViewMessages() {
    if (!m_recording)
        return;
    const std::string report = recording::MessageReport(*m_recording);
    CMessagesDlg(report.empty() ? "Nothing was wrong with the files." : report, this).DoModal();
}

void CMainFrame::OnUpdateViewMessages(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_recording != nullptr && !m_loader);
}

void CMainFrame::OnSettings() {
    CSettingsDlg dialog(m_graph.Source(), m_graph.Visible(), m_graph.Settings(), this);
    if (dialog.DoModal() != IDOK)
        return;
    // Live readings went on meanwhile, and with them the units in the series' names.
    GraphSettings settings = dialog.Settings();
    const GraphSettings& current = m_graph.Settings();
    for (std::size_t i = 0; i < settings.series.size() && i < current.series.size(); ++i)
        settings.series[i].name = current.series[i].name;
    m_graph.SetSettings(std::move(settings));
    ShowSelection();
}

} // namespace kavlix::monitor
