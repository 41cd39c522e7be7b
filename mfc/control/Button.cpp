// SPDX-License-Identifier: MIT
// CButton.

#include "afx/Controls.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

namespace {
constexpr LONG kButtonStyles = 0xFFFF; // the BS_ flags are the lower half of the window style
} // namespace

CButton::~CButton() {
    DestroyWindow();
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("BUTTON"), lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetButtonStyle() const {
    return static_cast<UINT>(::GetWindowLong(m_hWnd, GWL_STYLE) & kButtonStyles);
}

HICON CButton::SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CButton::GetIcon() const {
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, BM_GETIMAGE, IMAGE_ICON, 0));
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap) {
    return reinterpret_cast<HBITMAP>(
        ::SendMessage(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

HBITMAP CButton::GetBitmap() const {
    return reinterpret_cast<HBITMAP>(::SendMessage(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP, 0));
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
