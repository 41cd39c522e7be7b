// SPDX-License-Identifier: MIT
// CWnd: scroll bars and scrolled contents.

#include "mfc/window/ThreadState.h"

#include "afx/Controls.h"
#include "afx/GdiObject.h"

#include <algorithm>

namespace {

/// The window and the kind (SB_ code) of a scroll bar. A scroll bar control can replace the window's own
/// scroll bar.
struct Bar {
    HWND window;
    int kind;

    Bar(const CWnd& owner, int bar) : window(owner.m_hWnd), kind(bar) {
        if (const CScrollBar* const control = owner.GetScrollBarCtrl(bar)) {
            window = control->m_hWnd;
            kind = SB_CTL;
        }
    }
};

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const {
    const Bar bar(*this, nBar);
    return ::GetScrollPos(bar.window, bar.kind);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const Bar bar(*this, nBar);
    ::GetScrollRange(bar.window, bar.kind, lpMinPos, lpMaxPos);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const Bar bar(*this, nBar);
    return ::SetScrollPos(bar.window, bar.kind, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const Bar bar(*this, nBar);
    ::SetScrollRange(bar.window, bar.kind, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const Bar bar(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(bar.window, bar.kind, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const Bar bar(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.window, bar.kind, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar) {
    int low = 0;
    int high = 0;
    GetScrollRange(nBar, &low, &high);
    SCROLLINFO info{};
    if (GetScrollInfo(nBar, &info, SIF_PAGE) && info.nPage > 1)
        high -= static_cast<int>(std::min<UINT>(info.nPage - 1, static_cast<UINT>(std::max(high - low, 0))));
    return high;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    const Bar bar(*this, static_cast<int>(nBar));
    ::ShowScrollBar(bar.window, bar.kind, bShow);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    const Bar bar(*this, nBar);
    if (bar.kind == SB_CTL)
        ::EnableWindow(bar.window, bEnable);
    else
        ::EnableScrollBar(bar.window, static_cast<UINT>(bar.kind),
                          bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    if (IsWindowVisible() || lpRect != nullptr || lpClipRect != nullptr) {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // ::ScrollWindow() does not move the children of a hidden window.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        RECT place{};
        ::GetWindowRect(child, &place);
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(&place), 2);
        ::SetWindowPos(child, nullptr, place.left + xAmount, place.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    const HRGN update = prgnUpdate != nullptr ? static_cast<HRGN>(prgnUpdate->m_hObject) : nullptr;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, update, lpRectUpdate, flags);
}
