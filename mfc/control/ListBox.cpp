// SPDX-License-Identifier: MIT
// CListBox.

#include "afx/Controls.h"

#include "mfc/control/OwnerDraw.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::~CListBox() {
    DestroyWindow();
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("LISTBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const DWORD answer =
        static_cast<DWORD>(afx_control::Ask(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(answer) != 0;
    return LOWORD(answer);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const {
    return afx_control::Ask(m_hWnd, LB_GETSELITEMS, Param(nMaxItems), reinterpret_cast<LPARAM>(rgIndex));
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    return afx_control::Ask(m_hWnd, LB_SELITEMRANGE, static_cast<WPARAM>(bSelect),
                            MAKELPARAM(nFirstItem, nLastItem));
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll) {
    return afx_control::Ask(m_hWnd, LB_SETCARETINDEX, Param(nIndex), MAKELPARAM(bScroll, 0));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const {
    return afx_control::Ask(m_hWnd, LB_GETITEMRECT, Param(nIndex), reinterpret_cast<LPARAM>(lpRect));
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return afx_control::Ask(m_hWnd, LB_SETTABSTOPS, Param(nTabStops), reinterpret_cast<LPARAM>(rgTabStops));
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return afx_control::Ask(m_hWnd, LB_SETITEMHEIGHT, Param(nIndex), MAKELPARAM(cyItemHeight, 0));
}

int CListBox::AddString(LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpsz));
}

int CListBox::InsertString(int nIndex, LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, LB_INSERTSTRING, Param(nIndex), reinterpret_cast<LPARAM>(lpsz));
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return afx_control::Ask(m_hWnd, LB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard));
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpsz) const {
    return afx_control::Ask(m_hWnd, LB_FINDSTRING, Param(nStartAfter), reinterpret_cast<LPARAM>(lpsz));
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return afx_control::Ask(m_hWnd, LB_FINDSTRINGEXACT, Param(nIndexStart),
                            reinterpret_cast<LPARAM>(lpszFind));
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, LB_SELECTSTRING, Param(nStartAfter), reinterpret_cast<LPARAM>(lpsz));
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const {
    return afx_control::Ask(m_hWnd, LB_GETTEXT, Param(nIndex), reinterpret_cast<LPARAM>(lpszBuffer));
}

void CListBox::GetText(int nIndex, CString& rString) const {
    const int length = GetTextLen(nIndex);
    if (length <= 0) {
        rString.Empty();
        return;
    }
    GetText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer();
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {
}

int CListBox::VKeyToItem(UINT, UINT) {
    return -1;
}

int CListBox::CharToItem(UINT, UINT) {
    return -1;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_VKEYTOITEM:
        *pResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_CHARTOITEM:
        *pResult = CharToItem(LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    default:
        return CallOwnerDraw(*this, message, lParam, pResult) ||
               CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}
