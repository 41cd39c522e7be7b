// SPDX-License-Identifier: MIT
// CGraphCtrl: sends the WM_NOTIFY messages to the parent.
#include <kavlix/GraphCtrl.h>

bool CGraphCtrl::Notify(NMGRAPHCTRL& record, UINT nCode) {
    const HWND window = m_hWnd;
    const HWND parent = window != nullptr ? ::GetParent(window) : nullptr;
    if (parent == nullptr)
        return window != nullptr;
    record.hdr.hwndFrom = window;
    record.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    record.hdr.code = nCode;
    ::SendMessage(parent, WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
    return CWnd::FromHandlePermanent(window) == this;
}

bool CGraphCtrl::NotifySelChange() {
    NMGRAPHCTRL record = {};
    record.nIndex = m_SelectionMarkPos;
    return Notify(record, GCN_SELCHANGE);
}

void CGraphCtrl::SendSelchangeNotifyMessage() {
    NotifySelChange();
}

void CGraphCtrl::SendRemoveDataNotifyMessage(int nIndex, int nCount) {
    NMGRAPHCTRL record = {};
    record.nIndex = nIndex;
    record.nCount = nCount;
    Notify(record, GCN_REMOVEDATA);
}
