// SPDX-License-Identifier: MIT
// The scrolling graph's message map, creation, and the window of its scroll bar.
#include <kavlix/ScrollGraphCtrl.h>

#include "scrollgraph/SystemClock.h"
#include "scrollgraph/core/TimeLine.h"

using namespace kavlix;

namespace {

constexpr UINT kScrollBarId = 100;

// Place of the scroll bar along the bottom edge of the client area.
constexpr int kBarLeft = 30;   // pixels from the client area's left edge to the bar's left edge
constexpr int kBarRight = 80;  // pixels from the bar's right edge to the client area's right edge
constexpr int kBarTop = 15;    // pixels from the bar's top edge to the client area's bottom edge
constexpr int kBarHeight = 14; // pixels

} // namespace

struct kavlix::ScrollGraphCtrlState {};

BEGIN_MESSAGE_MAP(CScrollGraphCtrl, CGraphCtrl)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_SIZE()

    ON_WM_HSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()

    ON_COMMAND(ID_GRAPH_SEND_SELECTION_MARK, &CScrollGraphCtrl::OnSendSelectionMarkInfoToTindro)
END_MESSAGE_MAP()

CScrollGraphCtrl::CScrollGraphCtrl()
    : m_arrTime(std::make_unique<TimeLine>()), m_zoneRules(std::make_unique<ZoneRules>()) {
}

CScrollGraphCtrl::~CScrollGraphCtrl() {
    // Destroy the window while m_wndScrollBar still exists. The base class would destroy the window too late.
    DestroyWindow();
}

int CScrollGraphCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CGraphCtrl::OnCreate(lpCreateStruct) == failed)
        return failed;
    m_wndScrollBar.Create(WS_CHILD | WS_VISIBLE | SBS_TOPALIGN, CRect(0, 0, 0, 0), this, kScrollBarId);
    InitScrollInfo();
    return 0;
}

void CScrollGraphCtrl::OnSize(UINT nType, int cx, int cy) {
    CGraphCtrl::OnSize(nType, cx, cy);
    if (cx == 0 || cy == 0 || !::IsWindow(m_wndScrollBar.m_hWnd))
        return;
    CRect client;
    GetClientRect(&client);
    const int left = client.left + kBarLeft;
    m_wndScrollBar.SetWindowPos(&CWnd::wndTop, left, client.bottom - kBarTop, client.right - kBarRight - left,
                                kBarHeight, 0);
    UpdateScrollInfo();
}

/// The control paints its whole client area, also over the scroll bar. So the bar must be drawn again.
void CScrollGraphCtrl::RaiseScrollBar() {
    if (!::IsWindow(m_wndScrollBar.m_hWnd))
        return;
    m_wndScrollBar.Invalidate(TRUE);
    m_wndScrollBar.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

void CScrollGraphCtrl::OnLButtonDown(UINT nFlags, CPoint point) {
    CGraphCtrl::OnLButtonDown(nFlags, point);
}

BOOL CScrollGraphCtrl::OnMouseWheel(UINT, short, CPoint) {
    // The host decides about the wheel and calls ProcessMouseWheel.
    return static_cast<BOOL>(Default());
}
