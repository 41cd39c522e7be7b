#include <kavlix/ScrollGraphCtrl.h>

#include "scrollgraph/ScrollGraphCtrlClock.h"
#include "scrollgraph/core/TimeLine.h"
#include "scrollgraph/core/ViewWindow.h"

using namespace kavlix;

namespace {

constexpr double kInitialWidth = 1200.0; // x units: one minute
constexpr UINT kScrollBarId = 100;

// Pixels. The bar lies along the bottom edge.
constexpr int kBarLeft = 30;
constexpr int kBarRight = 80; // from the right edge
constexpr int kBarTop = 15;   // from the bottom edge
constexpr int kBarHeight = 14;

} // namespace

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
    : m_arrTime(std::make_unique<TimeLine>()), m_zoneRules(std::make_unique<ZoneRules>()), m_dScrollPos(0),
      m_dScrollMax(ViewWindow::kInitialMax), m_dScrollMin(0), m_dViewWidth(kInitialWidth),
      m_nUnitsPerSecond(kXUnitsPerSecond), m_bTindroMode(false), m_bScrollSync(FALSE), m_bFollowed(FALSE),
      m_nDrawFirst(-1), m_nDrawLast(-1), m_nToldPos(-1), m_nToldPage(-1) {
}

CScrollGraphCtrl::~CScrollGraphCtrl() {
    // While the scroll bar is still there to be told.
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

// The picture is painted over everything inside the control: the bar comes back on top of it.
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
    // Where the wheel turns is the host's to decide: it calls ProcessMouseWheel.
    return static_cast<BOOL>(Default());
}
