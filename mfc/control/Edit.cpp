// SPDX-License-Identifier: MIT
// CEdit.

#include "afx/Controls.h"

#include <algorithm>
#include <cstring>
#include <vector>

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::~CEdit() {
    DestroyWindow();
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("EDIT"), nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::GetRect(LPRECT lpRect) const {
    ::SendMessage(m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessage(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    ::SendMessage(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
                  static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(nLeft, nRight))));
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    const DWORD packed = static_cast<DWORD>(afx_control::Ask(m_hWnd, EM_POSFROMCHAR, nChar));
    return CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)));
}

int CEdit::CharFromPos(CPoint pt) const {
    return afx_control::Ask(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const {
    return afx_control::Ask(m_hWnd, EM_GETLINE, Position(nIndex), reinterpret_cast<LPARAM>(lpszBuffer));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    if (nMaxLength <= 0)
        return 0;
    // EM_GETLINE reads the buffer's size from the buffer's first WORD. The caller's buffer may be smaller
    // than a WORD, so the control copies into a vector.
    const WORD limit = static_cast<WORD>(std::min<int>(nMaxLength, 0xFFFF));
    std::vector<TCHAR> line(std::max<std::size_t>(limit, sizeof(limit)));
    std::memcpy(line.data(), &limit, sizeof(limit));
    const int copied = std::clamp<int>(GetLine(nIndex, line.data()), 0, limit);
    std::memcpy(lpszBuffer, line.data(), static_cast<std::size_t>(copied) * sizeof(TCHAR));
    return copied;
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    ::SendMessage(m_hWnd, EM_REPLACESEL, static_cast<WPARAM>(bCanUndo),
                  reinterpret_cast<LPARAM>(lpszNewText));
}

void CEdit::SetRect(LPCRECT lpRect) {
    ::SendMessage(m_hWnd, EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRectNP(LPCRECT lpRect) {
    ::SendMessage(m_hWnd, EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    ::SendMessage(m_hWnd, EM_SETSEL, Position(nStartChar), nEndChar);
    if (!bNoScroll)
        ::SendMessage(m_hWnd, EM_SCROLLCARET, 0, 0);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops) {
    return afx_control::Ask(m_hWnd, EM_SETTABSTOPS, Position(nTabStops),
                            reinterpret_cast<LPARAM>(rgTabStops));
}

void CEdit::SetTabStops() {
    ::SendMessage(m_hWnd, EM_SETTABSTOPS, 0, 0);
}
