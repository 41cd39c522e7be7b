// SPDX-License-Identifier: MIT
// CScrollBar.

#include "afx/Controls.h"

#include <algorithm>
#include <climits>

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::~CScrollBar() {
    DestroyWindow();
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(_T("SCROLLBAR"), nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw); // returns a position, not success
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit() {
    SCROLLINFO info{};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    // A page larger than the range leaves only the lowest position.
    const int page = static_cast<int>(std::min<UINT>(info.nPage, INT_MAX));
    return page > info.nMax - info.nMin ? info.nMin : info.nMax - std::max(page - 1, 0);
}
