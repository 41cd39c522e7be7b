// SPDX-License-Identifier: MIT
// CGraphCtrl: mouse and keyboard. The context menu's messages are handled with the menu.
#include <kavlix/GraphCtrl.h>

void CGraphCtrl::OnLButtonDown(UINT, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    const CPoint logical = ToLogicalPoint(point);
    if (m_rectPlot.PtInRect(logical)) {
        if (!MoveSelectionMark(GetIndexFromPt(logical)))
            return;
    } else if (m_rectIconMaximize.PtInRect(logical)) {
        m_IconMaximizeTracking = TRUE;
        m_IconMaximizePressed = TRUE;
        m_MaximizeNotified = false;
        // SetCapture sends WM_CAPTURECHANGED to the window that had the capture. The message's handler may
        // delete this control.
        const HWND window = m_hWnd;
        ::SetCapture(window);
        if (CWnd::FromHandlePermanent(window) != this)
            return;
        RepaintIcon();
    }
    // The focus moves last: while the parent handles the notifications above, the previous window still has
    // the focus.
    ::SetFocus(m_hWnd);
}

void CGraphCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    NMGRAPHCTRL record = {};
    record.nFlags = nFlags;
    record.pt = point;
    if (!Notify(record, GCN_MOUSEMOVE) || !m_IconMaximizeTracking)
        return;
    const BOOL inside = m_rectIconMaximize.PtInRect(ToLogicalPoint(point));
    if (inside == m_IconMaximizePressed)
        return;
    m_IconMaximizePressed = inside;
    RepaintIcon();
}

void CGraphCtrl::OnLButtonUp(UINT nFlags, CPoint point) {
    // The parent's GCN_MAXIMIZE handler may run a message loop. A button release that arrives in that loop
    // must not send GCN_MAXIMIZE again.
    if (m_IconMaximizeTracking && !m_MaximizeNotified) {
        const HWND window = m_hWnd;
        // Reentrancy: ReleaseCapture calls OnCaptureChanged, which would cancel the press.
        m_IconMaximizeTracking = FALSE;
        ::ReleaseCapture();
        if (CWnd::FromHandlePermanent(window) != this)
            return;
        m_IconMaximizeTracking = TRUE;
        bool isPressedAgain = false;
        if (m_IconMaximizePressed) {
            m_MaximizeNotified = true;
            NMGRAPHCTRL record = {};
            record.nFlags = nFlags;
            record.pt = point;
            // The icon stays pressed during the notification, since the parent may paint the control.
            if (!Notify(record, GCN_MAXIMIZE))
                return;
            isPressedAgain = !m_MaximizeNotified; // a new press of the icon clears this member
        }
        if (!isPressedAgain) {
            EndPress();
            RepaintIcon();
        }
    }
    Default();
}

void CGraphCtrl::EndPress() {
    m_IconMaximizeTracking = FALSE;
    m_IconMaximizePressed = FALSE;
    m_MaximizeNotified = false;
}

void CGraphCtrl::OnCaptureChanged(CWnd* pWnd) {
    // Capture lost while the button is down: cancel the press. `SetCapture` on this window also sends the
    // message, with this window as the new owner.
    if (!m_IconMaximizeTracking || pWnd == this)
        return;
    EndPress();
    RepaintIcon();
}

void CGraphCtrl::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    const CPoint logical = ToLogicalPoint(point);
    NMGRAPHCTRL record = {};
    record.nFlags = nFlags;
    record.pt = point;
    record.nIndex = -1;
    UINT code = GCN_DBLCLK;
    if (m_rectCaption.PtInRect(logical)) {
        code = GCN_DBLCLK_CAPTION;
    } else if (m_rectLegend.PtInRect(logical)) {
        code = GCN_DBLCLK_LEGEND;
        record.nIndex = LegendRowAt(logical);
    }
    Notify(record, code);
}

void CGraphCtrl::OnKeyDown(UINT nChar, UINT, UINT) {
    const int mark = m_SelectionMarkPos;
    int moved = mark;
    if (nChar == VK_ESCAPE && mark >= 0)
        moved = -1;
    else if (nChar == VK_LEFT && mark >= 1)
        moved = mark - 1;
    else if (nChar == VK_RIGHT && mark + 1 < m_Datasets[0].GetSize())
        moved = mark + 1;
    if (moved != mark && !MoveSelectionMark(moved))
        return;
    Default();
}

UINT CGraphCtrl::OnGetDlgCode() {
    UINT code = static_cast<UINT>(Default()) | DLGC_WANTARROWS;
    // With a selection mark, Escape removes the mark. Without one, the dialog gets the key and closes.
    const MSG* current = GetCurrentMessage();
    if (m_SelectionMarkPos >= 0 && current != nullptr && current->message == WM_GETDLGCODE &&
        current->lParam != 0) {
        const MSG* asked = reinterpret_cast<const MSG*>(current->lParam);
        if (asked->message == WM_KEYDOWN && asked->wParam == VK_ESCAPE)
            code |= DLGC_WANTMESSAGE;
    }
    return code;
}
