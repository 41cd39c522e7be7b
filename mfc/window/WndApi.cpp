// SPDX-License-Identifier: MIT
// CWnd: state, text, menus and timers, as calls of the Win32 functions.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afx/GdiObject.h"
#include "afx/Menu.h"

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
}

namespace {

BOOL ChangeStyle(HWND window, int which, DWORD remove, DWORD add, UINT flags) {
    const auto present = static_cast<DWORD>(::GetWindowLong(window, which));
    const DWORD wanted = (present & ~remove) | add;
    if (wanted == present)
        return FALSE;
    ::SetWindowLong(window, which, static_cast<LONG>(wanted));
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ChangeStyle(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsIconic() const {
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const {
    return ::IsZoomed(m_hWnd);
}

BOOL CWnd::IsChild(const CWnd* pWnd) const {
    return ::IsChild(m_hWnd, SafeWindow(pWnd));
}

CWnd* CWnd::SetActiveWindow() {
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd* CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}

BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* CWnd::GetForegroundWindow() {
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont != nullptr ? pFont->m_hObject : nullptr;
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), MAKELPARAM(bRedraw, 0));
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    const WPARAM which = bBigIcon ? ICON_BIG : ICON_SMALL;
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_SETICON, which, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu != nullptr ? pMenu->m_hMenu : nullptr);
}

void CWnd::DrawMenuBar() {
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, pMenu->m_hMenu, nIDHiliteItem, nHilite);
}

void CWnd::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->m_hObject), 0, 0);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight) {
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight) {
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(1)), nWidth, nHeight);
}

CPoint CWnd::GetCaretPos() {
    POINT position{};
    ::GetCaretPos(&position);
    return CPoint(position);
}

void CWnd::SetCaretPos(POINT point) {
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret() {
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret() {
    ::ShowCaret(m_hWnd);
}

BOOL CWnd::OpenClipboard() {
    return ::OpenClipboard(m_hWnd);
}

CWnd* CWnd::GetClipboardOwner() {
    return FromHandle(::GetClipboardOwner());
}

CWnd* CWnd::GetClipboardViewer() {
    return FromHandle(::GetClipboardViewer());
}

CWnd* CWnd::GetOpenClipboardWindow() {
    return FromHandle(::GetOpenClipboardWindow());
}

HWND CWnd::SetClipboardViewer() {
    return ::SetClipboardViewer(m_hWnd);
}

BOOL CWnd::ChangeClipboardChain(HWND hWndNext) {
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}

void CWnd::DragAcceptFiles(BOOL bAccept) {
    ::DragAcceptFiles(m_hWnd, bAccept);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(m_hWnd, lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

BOOL CWnd::FlashWindow(BOOL bInvert) {
    return ::FlashWindow(m_hWnd, bInvert);
}

DWORD CWnd::GetWindowContextHelpId() const {
    return ::GetWindowContextHelpId(m_hWnd);
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId) {
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}
