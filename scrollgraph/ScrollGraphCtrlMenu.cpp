// SPDX-License-Identifier: MIT
// The menu item that exports the selection mark's time.
#include <kavlix/ScrollGraphCtrl.h>

#include "gdi/StringIds.h"
#include "scrollgraph/core/TimeLine.h"

void CScrollGraphCtrl::InsertGraphMenu(CMenu& menu) {
    CGraphCtrl::InsertGraphMenu(menu);
    if (!m_bTindroMode)
        return;
    menu.AppendMenu(MF_SEPARATOR);
    if (IsMenuItem(menu, ID_GRAPH_SEND_SELECTION_MARK))
        return;
    CString text;
    text.LoadString(IDS_MENU_SEND_MARK);
    menu.AppendMenu(SelectionMarkItemState(), ID_GRAPH_SEND_SELECTION_MARK, text);
}

void CScrollGraphCtrl::OnSendSelectionMarkInfoToTindro() {
    // Without a mark on a sample the text of the last export is sent again: hosts rely on an answer.
    GetFullTime(m_SelectionMarkPos, m_strSelectionMarkTime);
    SendSelectionMarkTime();
}

void CScrollGraphCtrl::SendSelectionMarkTime() {
    const HWND parent = m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr;
    if (parent == nullptr)
        return;
    // A copy, because the parent may change or delete the control during the message.
    const CString text = m_strSelectionMarkTime;
    ::SendMessage(parent, WM_GRAPH_SELMARKTIME, 0, reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(text)));
}
