// SPDX-License-Identifier: MIT
// The scroll page's commands, and those of its graphs' notifications that change content or settings.

#include "monitor/ScrollPage.h"

#include <afxres.h>

#include <kavlix/Kavlix.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "monitor/KeepDlg.h"
#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

void CScrollPage::OnEditGraph(UINT nID) {
    m_graphs[FocusedGraph()].SendMessage(WM_COMMAND, nID);
}

void CScrollPage::OnEditCopy() {
    OnEditGraph(ID_EDIT_COPY);
}

void CScrollPage::OnUpdateEditCopy(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_places.empty());
}

void CScrollPage::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(HasMark());
}

void CScrollPage::OnUpdateRemoveData(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_graphs[0].MarkedRow() > 0 && !m_feeding);
}

void CScrollPage::OnDataRemoved(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const std::size_t other = 1 - GraphOf(pNMHDR);
    const int count = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nCount;
    if (count > 0 && static_cast<std::size_t>(count) < m_rows.size() && !m_feeding) {
        if (Has(other))
            m_graphs[other].RemoveHeadData(count);
        m_rows.erase(m_rows.begin(), m_rows.begin() + count);
        const std::uint64_t first = Content().live ? Content().live->First() : Content().lost;
        const std::uint64_t left = m_rows.front().sample;
        // During a pause, the content may have lost these readings already.
        if (left > first)
            Host().RemoveHead(static_cast<std::size_t>(left - first));
    }
    ViewChanged();
}

void CScrollPage::OnCopied(UINT, NMHDR*, LRESULT* pResult) {
    Host().Say(CopyTextOf(true));
    *pResult = 0;
}

void CScrollPage::OnNotCopied(UINT, NMHDR*, LRESULT* pResult) {
    Host().Say(CopyTextOf(false));
    *pResult = 0;
}

void CScrollPage::OnLegendDoubleClick(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int row = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nIndex;
    GraphSettings settings = Content().settings;
    for (std::size_t i = 0; i < m_places.size() && i < settings.series.size(); ++i) {
        if (m_places[i].graph != GraphOf(pNMHDR) || static_cast<int>(m_places[i].dataset) != row)
            continue;
        settings.series[i].visible = !settings.series[i].visible;
        Host().ChangeSettings(std::move(settings));
        return;
    }
}

void CScrollPage::OnMaximize(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    m_graphs[GraphOf(pNMHDR)].SetFocus();
    Host().Fill(!Host().Filled());
}

void CScrollPage::OnCaptionDoubleClick(UINT nID, NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    // The first click of a double-click on the icon has already filled the window or restored it.
    const CPoint point(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt);
    if (!m_graphs[GraphOf(pNMHDR)].IsOnIcon(point))
        OnMaximize(nID, pNMHDR, pResult);
}

LRESULT CScrollPage::OnMarkTime(WPARAM, LPARAM lParam) {
    const std::string text = ToUtf8(reinterpret_cast<LPCTSTR>(lParam));
    Host().Say(text.empty() ? "For Tindro: nothing is marked" : "For Tindro: the mark is at " + text);
    return 0;
}

void CScrollPage::OnViewLegend() {
    GraphSettings settings = Content().settings;
    settings.legend = !settings.legend;
    Host().ChangeSettings(std::move(settings));
}

void CScrollPage::OnUpdateViewLegend(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(Content().settings.legend);
}

void CScrollPage::OnViewGrid(UINT nID) {
    GraphSettings settings = Content().settings;
    bool& grid = nID == ID_VIEW_GRID_X ? settings.gridX : settings.gridY;
    grid = !grid;
    Host().ChangeSettings(std::move(settings));
}

void CScrollPage::OnUpdateViewGrid(CCmdUI* pCmdUI) {
    const GraphSettings& settings = Content().settings;
    pCmdUI->SetCheck(pCmdUI->m_nID == ID_VIEW_GRID_X ? settings.gridX : settings.gridY);
}

void CScrollPage::OnViewMove(UINT nID) {
    switch (nID) {
    case ID_VIEW_ZOOM_IN:
        SetRange(m_range - 1);
        break;
    case ID_VIEW_ZOOM_OUT:
        SetRange(m_range + 1);
        break;
    default:
        for (std::size_t i = 0; i < m_inUse; ++i)
            if (nID == ID_VIEW_EARLIER || nID == ID_VIEW_LATER)
                m_graphs[i].ScrollPages(nID == ID_VIEW_EARLIER ? -1 : 1);
            else if (nID == ID_SCROLL_OLDEST)
                m_graphs[i].ShowOldest();
            else
                m_graphs[i].ShowNewest();
    }
    ViewChanged();
}

void CScrollPage::OnUpdateViewMove(CCmdUI* pCmdUI) {
    bool possible = !m_rows.empty();
    if (pCmdUI->m_nID == ID_VIEW_ZOOM_IN)
        possible = possible && m_range > 0;
    else if (pCmdUI->m_nID == ID_VIEW_ZOOM_OUT)
        possible = possible && m_range + 1 < std::size(recording::kViewRanges);
    pCmdUI->Enable(possible);
}

void CScrollPage::OnRange(UINT nID) {
    SetRange(nID - ID_SCROLL_RANGE_FIRST);
    ViewChanged();
}

void CScrollPage::OnUpdateRange(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_places.empty());
    pCmdUI->SetRadio(pCmdUI->m_nID - ID_SCROLL_RANGE_FIRST == m_range);
}

void CScrollPage::OnPause() {
    // Readings continue during a pause; their rows are added at its end.
    m_paused = !m_paused;
    Update();
    Host().ShowSelection();
}

void CScrollPage::OnUpdatePause(CCmdUI* pCmdUI) {
    pCmdUI->Enable(Content().live != nullptr);
    pCmdUI->SetCheck(m_paused);
}

void CScrollPage::OnKeepAtMost() {
    CKeepDlg dialog(Content().live->MostKept(), this);
    if (dialog.DoModal() == IDOK && Content().live)
        Host().KeepAtMost(dialog.Count());
    Host().ShowSelection();
}

void CScrollPage::OnUpdateKeepAtMost(CCmdUI* pCmdUI) {
    pCmdUI->Enable(Content().live != nullptr);
}

void CScrollPage::OnTindro() {
    m_tindro = !m_tindro;
    for (CMonitorScrollGraph& graph : m_graphs)
        graph.SetTindroMode(m_tindro);
}

void CScrollPage::OnUpdateTindro(CCmdUI* pCmdUI) {
    pCmdUI->SetCheck(m_tindro);
}

} // namespace kavlix::monitor
