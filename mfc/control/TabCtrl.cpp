// SPDX-License-Identifier: MIT
// CTabCtrl.

#include "afx/TabCtrl.h"

#include "mfc/control/CommonControlInit.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::~CTabCtrl() {
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_TAB_CLASSES);
    return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const {
    return afx_control::Ask(m_hWnd, TCM_GETITEM, Param(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem));
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem) {
    return afx_control::Ask(m_hWnd, TCM_SETITEM, Param(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem));
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const {
    return afx_control::Ask(m_hWnd, TCM_GETITEMRECT, Param(nItem), reinterpret_cast<LPARAM>(lpRect));
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item{};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    item.dwState = dwState;
    return SetItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size) {
    const DWORD former =
        static_cast<DWORD>(afx_control::Ask(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
    return CSize(LOWORD(former), HIWORD(former));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const {
    // Like the system's own windows, a tooltip without an object gets a temporary CWnd; the control classes have no
    // data members of their own.
    return reinterpret_cast<CToolTipCtrl*>(
        FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, TCM_GETTOOLTIPS, 0, 0))));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    ::SendMessage(m_hWnd, TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(pWndTip->GetSafeHwnd()), 0);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask) {
    return static_cast<DWORD>(
        afx_control::Ask(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwNewStyle)));
}

int CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem) {
    return afx_control::Ask(m_hWnd, TCM_INSERTITEM, Param(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem));
}

int CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
    TCITEM item{};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect) {
    ::SendMessage(m_hWnd, TCM_ADJUSTRECT, static_cast<WPARAM>(bLarger), reinterpret_cast<LPARAM>(lpRect));
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const {
    return afx_control::Ask(m_hWnd, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo));
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight) {
    return afx_control::Ask(m_hWnd, TCM_HIGHLIGHTITEM, Param(idItem), MAKELPARAM(fHighlight, 0));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
