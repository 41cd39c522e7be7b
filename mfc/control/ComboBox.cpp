// SPDX-License-Identifier: MIT
// CComboBox.

#include "afx/Controls.h"

#include "mfc/control/OwnerDraw.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::~CComboBox() {
    DestroyWindow();
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("COMBOBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const {
    ::SendMessage(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
}

int CComboBox::AddString(LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpsz));
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, CB_INSERTSTRING, Param(nIndex), reinterpret_cast<LPARAM>(lpsz));
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard) {
    return afx_control::Ask(m_hWnd, CB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard));
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpsz) const {
    return afx_control::Ask(m_hWnd, CB_FINDSTRING, Param(nStartAfter), reinterpret_cast<LPARAM>(lpsz));
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return afx_control::Ask(m_hWnd, CB_FINDSTRINGEXACT, Param(nIndexStart),
                            reinterpret_cast<LPARAM>(lpszFind));
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpsz) {
    return afx_control::Ask(m_hWnd, CB_SELECTSTRING, Param(nStartAfter), reinterpret_cast<LPARAM>(lpsz));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszBuffer) const {
    return afx_control::Ask(m_hWnd, CB_GETLBTEXT, Param(nIndex), reinterpret_cast<LPARAM>(lpszBuffer));
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    const int length = GetLBTextLen(nIndex);
    if (length <= 0) {
        rString.Empty();
        return;
    }
    GetLBText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer();
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CallOwnerDraw(*this, message, lParam, pResult) ||
           CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
