// SPDX-License-Identifier: MIT
// CStatusBarCtrl and CProgressCtrl.

#include "afx/CommonControls.h"

#include "mfc/control/CommonControlInit.h"

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

namespace {
constexpr int kMaxPanes = 256;
} // namespace

BOOL LoadCommonControls(DWORD classes) {
    INITCOMMONCONTROLSEX request{sizeof(request), classes};
    return ::InitCommonControlsEx(&request);
}

CStatusBarCtrl::~CStatusBarCtrl() {
    DestroyWindow();
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_BAR_CLASSES);
    return CWnd::Create(STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType) {
    return afx_control::Ask(m_hWnd, SB_SETTEXT, static_cast<WPARAM>(nPane | nType),
                            reinterpret_cast<LPARAM>(lpszText));
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const {
    CString text;
    const int length = GetTextLength(nPane, pType);
    if (length > 0) {
        GetText(text.GetBuffer(length), nPane);
        text.ReleaseBuffer();
    }
    return text;
}

int CStatusBarCtrl::GetText(LPTSTR lpszText, int nPane, int* pType) const {
    const DWORD answer = static_cast<DWORD>(
        afx_control::Ask(m_hWnd, SB_GETTEXT, static_cast<WPARAM>(nPane), reinterpret_cast<LPARAM>(lpszText)));
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const {
    const DWORD answer =
        static_cast<DWORD>(afx_control::Ask(m_hWnd, SB_GETTEXTLENGTH, static_cast<WPARAM>(nPane)));
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths) {
    return nParts > 0 && nParts < kMaxPanes &&
           afx_control::Ask(m_hWnd, SB_SETPARTS, static_cast<WPARAM>(nParts),
                            reinterpret_cast<LPARAM>(pWidths));
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const {
    return afx_control::Ask(m_hWnd, SB_GETPARTS, static_cast<WPARAM>(nParts),
                            reinterpret_cast<LPARAM>(pParts));
}

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const {
    return afx_control::Ask(m_hWnd, SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(pBorders));
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const {
    int borders[3] = {};
    const BOOL answered = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return answered;
}

void CStatusBarCtrl::SetMinHeight(int nMin) {
    ::SendMessage(m_hWnd, SB_SETMINHEIGHT, static_cast<WPARAM>(nMin), 0);
}

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple) {
    return afx_control::Ask(m_hWnd, SB_SIMPLE, static_cast<WPARAM>(bSimple));
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const {
    return afx_control::Ask(m_hWnd, SB_GETRECT, static_cast<WPARAM>(nPane), reinterpret_cast<LPARAM>(lpRect));
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT) {
}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

CProgressCtrl::~CProgressCtrl() {
    DestroyWindow();
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_PROGRESS_CLASS);
    return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper) {
    ::SendMessage(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper) {
    ::SendMessage(m_hWnd, PBM_SETRANGE32, Param(nLower), nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range{};
    ::SendMessage(m_hWnd, PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}
