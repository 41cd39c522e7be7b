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

// Tells the parent where the mark is now. The result is Notify's.
bool CGraphCtrl::NotifyMarkMoved() {
    if (const HWND parent = m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr)
        ::PostMessage(parent, WM_GRAPH_SELMARK, static_cast<WPARAM>(m_SelectionMarkPos), 0);
    NMGRAPHCTRL record = {};
    record.nIndex = m_SelectionMarkPos;
    return Notify(record, GCN_SELCHANGE);
}

void CGraphCtrl::SendSelchangeNotifyMessage() {
    NMGRAPHCTRL record = {};
    record.nIndex = m_SelectionMarkPos;
    Notify(record, GCN_SELCHANGE);
}

void CGraphCtrl::SendRemoveDataNotifyMessage(int nIndex, int nCount) {
    NMGRAPHCTRL record = {};
    record.nIndex = nIndex;
    record.nCount = nCount;
    Notify(record, GCN_REMOVEDATA);
}
