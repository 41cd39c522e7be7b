// SPDX-License-Identifier: MIT
// CStatic.

#include "afx/Controls.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::~CStatic() {
    DestroyWindow();
}

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("STATIC"), lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_SETICON, reinterpret_cast<WPARAM>(hIcon), 0));
}

HICON CStatic::GetIcon() const {
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, STM_GETICON, 0, 0));
}

LRESULT CStatic::SetImage(UINT kind, HANDLE image) {
    return ::SendMessage(m_hWnd, STM_SETIMAGE, kind, reinterpret_cast<LPARAM>(image));
}

LRESULT CStatic::GetImage(UINT kind) const {
    return ::SendMessage(m_hWnd, STM_GETIMAGE, kind, 0);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
