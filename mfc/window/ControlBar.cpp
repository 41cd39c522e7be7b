// SPDX-License-Identifier: MIT
// CControlBar, and the layout of bars in a window.

#include "afx/ControlBar.h"

#include "afx/FrameWnd.h"
#include "afxpriv.h"
#include "mfc/window/ThreadState.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

BOOL CControlBar::IsVisible() const {
    if (m_pending != Pending::Nothing)
        return m_pending == Pending::Show;
    return m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0;
}

CSize CControlBar::CalcFixedLayout(BOOL, BOOL) {
    return CSize(0, 0);
}

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete)
        delete this;
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto* const layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const bool atTop = (m_dwStyle & CBRS_ALIGN_TOP) != 0;
    const bool atBottom = (m_dwStyle & CBRS_ALIGN_BOTTOM) != 0;
    if ((GetStyle() & WS_VISIBLE) == 0 || (!atTop && !atBottom))
        return 0;
    CRect& room = static_cast<CRect&>(layout->rect);
    CSize size = CalcFixedLayout(layout->bStretch, TRUE);
    size.cx = layout->bStretch ? room.Width() : std::min<LONG>(size.cx, room.Width());
    size.cy = std::min<LONG>(size.cy, room.Height());
    const LONG top = atTop ? room.top : room.bottom - size.cy;
    if (atTop)
        room.top += size.cy;
    else
        room.bottom -= size.cy;
    layout->sizeTotal.cx = std::max(layout->sizeTotal.cx, size.cx);
    layout->sizeTotal.cy += size.cy;
    if (layout->hDWP != nullptr)
        layout->hDWP = ::DeferWindowPos(layout->hDWP, m_hWnd, nullptr, room.left, top, size.cx, size.cy,
                                        SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    CFrameWnd* const frame = GetParentFrame();
    if (m_pending != Pending::Nothing) {
        const bool show = m_pending == Pending::Show;
        m_pending = Pending::Nothing;
        ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        if (frame != nullptr)
            frame->RecalcLayout();
    }
    if ((GetStyle() & WS_VISIBLE) != 0)
        OnUpdateCmdUI(frame, wParam != 0);
    return 0;
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout{};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        ::GetClientRect(m_hWnd, &layout.rect);
    if (nFlag != reposQuery)
        layout.hDWP = ::BeginDeferWindowPos(8);

    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = LOWORD(::GetDlgCtrlID(child));
        if (id == nIDLeftOver && nIDLeftOver != 0)
            leftOver = child;
        else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr)
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }

    if (nFlag == reposQuery) {
        ASSERT(lpRectParam != nullptr);
        if (bStretch)
            *lpRectParam = layout.rect;
        else
            ::SetRect(lpRectParam, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
        return;
    }
    if (leftOver != nullptr) {
        RECT& room = layout.rect;
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            room.left += lpRectParam->left;
            room.top += lpRectParam->top;
            room.right -= lpRectParam->right;
            room.bottom -= lpRectParam->bottom;
        }
        if (layout.hDWP != nullptr)
            layout.hDWP =
                ::DeferWindowPos(layout.hDWP, leftOver, nullptr, room.left, room.top, room.right - room.left,
                                 room.bottom - room.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}
