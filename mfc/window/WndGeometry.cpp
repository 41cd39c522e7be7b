// SPDX-License-Identifier: MIT
// CWnd: position, coordinates and painting.

#include "mfc/window/ThreadState.h"

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "mfc/gdi/Handles.h"

#include <algorithm>

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, SafeWindow(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    HWND over = SafeWindow(pAlternateOwner);
    if (over == nullptr)
        over = isChild ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    CRect own;
    GetWindowRect(&own);
    CRect area;   // area that limits the position
    CRect centre; // rectangle to centre over
    if (isChild) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(over, &centre);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(static_cast<LPRECT>(&centre)),
                          2);
    } else {
        const bool usable = over != nullptr && ::IsWindowVisible(over) && !::IsIconic(over);
        MONITORINFO monitor{};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfo(::MonitorFromWindow(usable ? over : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
        area = monitor.rcWork;
        if (usable)
            ::GetWindowRect(over, &centre);
        else
            centre = area;
    }
    int x = (centre.left + centre.right - own.Width()) / 2;
    int y = (centre.top + centre.bottom - own.Height()) / 2;
    // A window larger than the area keeps its upper left corner inside.
    x = std::max<int>(std::min<int>(x, area.right - own.Width()), area.left);
    y = std::max<int>(std::min<int>(y, area.bottom - own.Height()), area.top);
    ::SetWindowPos(m_hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(m_hWnd);
}

UINT CWnd::ArrangeIconicWindows() {
    return ::ArrangeIconicWindows(m_hWnd);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw) {
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

int CWnd::GetWindowRgn(HRGN hRgn) const {
    return ::GetWindowRgn(m_hWnd, hRgn);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof(placement);
    return ::SetWindowPlacement(m_hWnd, &placement);
}

void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const {
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const {
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, SafeWindow(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, SafeWindow(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    const DWORD exStyle =
        nAdjustType == 0 ? GetExStyle() & ~static_cast<DWORD>(WS_EX_CLIENTEDGE) : GetExStyle();
    const bool hasMenu = (GetStyle() & WS_CHILD) == 0 && ::GetMenu(m_hWnd) != nullptr;
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), hasMenu, exStyle);
}

namespace {

/// The object of a DC that the caller has just got from the system. If memory runs out, `giveBack` returns
/// the DC to the system, and the result is NULL.
template <class GiveBack> CDC* WrapNew(HDC dc, GiveBack giveBack) {
    CDC* object = nullptr;
    if (!HasMemoryFor([&] { object = CDC::FromHandle(dc); }))
        giveBack(dc);
    return object;
}

CDC* WrapTaken(HWND window, HDC dc) {
    return WrapNew(
        dc, [window](HDC taken) { ::ReleaseDC(window, taken); });
}

} // namespace

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return WrapNew(
        ::BeginPaint(m_hWnd, lpPaint), [&](HDC) { ::EndPaint(m_hWnd, lpPaint); });
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) {
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC() {
    return WrapTaken(m_hWnd, ::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC() {
    return WrapTaken(m_hWnd, ::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return WrapTaken(m_hWnd, ::GetDCEx(m_hWnd, RegionHandle(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, pDC->m_hDC);
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    ::SendMessage(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase) {
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, RegionHandle(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, RegionHandle(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect) {
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn) {
    ::ValidateRgn(m_hWnd, RegionHandle(pRgn));
}

BOOL CWnd::LockWindowUpdate() {
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate() {
    ::LockWindowUpdate(nullptr);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, RegionHandle(prgnUpdate), flags);
}

void CWnd::ShowOwnedPopups(BOOL bShow) {
    ::ShowOwnedPopups(m_hWnd, bShow);
}
