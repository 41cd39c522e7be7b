// SPDX-License-Identifier: MIT
// CGraphCtrl: the context menu and its commands, except for copying (GraphCtrlExport).
#include <kavlix/GraphCtrl.h>

#include <algorithm>

#include "gdi/StringIds.h"

void CGraphCtrl::OnRButtonDown(UINT, CPoint point) {
    // The menu runs a message loop, in which the host may destroy the window or delete this control.
    const HWND window = m_hWnd;
    OnContextGraphMenu(point);
    if (CWnd::FromHandlePermanent(window) == this)
        Default();
}

void CGraphCtrl::OnContextMenu(CWnd*, CPoint point) {
    // OnRButtonDown shows the menu for the mouse. For the keyboard's request Windows sends the
    // position (-1, -1).
    const CPoint byKeyboard(-1, -1);
    if (point == byKeyboard)
        OnContextGraphMenu(ToClientPoint(GetPtFromIndex(m_SelectionMarkPos)));
    else
        Default();
}

void CGraphCtrl::OnContextGraphMenu(CPoint point) {
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return;
    InsertGraphMenu(menu);
    ClientToScreen(&point);
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, this, nullptr);
}

void CGraphCtrl::InsertGraphMenu(CMenu& menu) {
    // Each item is inserted at the top, so the code inserts the last item first.
    const UINT markState = SelectionMarkItemState();
    const auto insert = [&](UINT command, UINT textId, UINT state) {
        if (IsMenuItem(menu, command))
            return;
        CString text;
        text.LoadString(textId);
        menu.InsertMenu(0, MF_BYPOSITION | state, command, text);
    };
    if (m_ShowMenuRemoveDataBeforeSelectionMark)
        insert(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, IDS_MENU_REMOVE_DATA, markState);
    insert(ID_GRAPH_CLEAR_SELECTION_MARK, IDS_MENU_CLEAR_MARK, markState);
    menu.InsertMenu(0, MF_BYPOSITION | MF_SEPARATOR);
    insert(ID_EDIT_COPY, IDS_MENU_COPY, MF_ENABLED);
}

UINT CGraphCtrl::SelectionMarkItemState() const {
    return m_SelectionMarkPos < 0 ? MF_GRAYED | MF_DISABLED : MF_ENABLED;
}

bool CGraphCtrl::IsMenuItem(CMenu& menu, UINT nID) {
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID;
    return ::GetMenuItemInfo(menu.GetSafeHmenu(), nID, FALSE, &info) != FALSE;
}

void CGraphCtrl::OnHideSelectionMark() {
    if (m_SelectionMarkPos >= 0)
        MoveSelectionMark(-1);
}

void CGraphCtrl::OnRemoveDataBeforeSelectionMark() {
    CString question;
    question.LoadString(IDS_CONFIRM_REMOVE_DATA);
    // The message box runs a message loop, in which the host may destroy the window or delete this control.
    const HWND window = m_hWnd;
    if (AfxMessageBox(question, MB_YESNO | MB_ICONHAND | MB_DEFBUTTON2) == IDNO)
        return;
    if (window != nullptr && CWnd::FromHandlePermanent(window) != this)
        return;
    const int count = std::min(m_Datasets[0].GetSize(), m_SelectionMarkPos);
    RemoveHeadData(count);
    SendRemoveDataNotifyMessage(0, count);
}
