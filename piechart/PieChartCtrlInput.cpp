// SPDX-License-Identifier: MIT
// CPieChartCtrl: clicks, selection, notification and cursor.
#include <kavlix/PieChartCtrl.h>

#include <commctrl.h>

#include "piechart/core/PieGeometry.h"

using namespace kavlix;

void CPieChartCtrl::InvalidatePiece(const CPieChartPiece& piece) {
    if (m_hWnd != nullptr)
        InvalidateRect(&piece.m_rcItem, TRUE);
}

bool CPieChartCtrl::HasSelection() const {
    for (INT_PTR i = 0; i < m_arrPieces.GetSize(); ++i)
        if (Piece(i).m_bSelected)
            return true;
    return false;
}

int CPieChartCtrl::GetPieceIndex(double dAngle) {
    const auto clear = [this](INT_PTR index) {
        Piece(index).m_bSelected = FALSE;
        InvalidatePiece(Piece(index));
    };
    const INT_PTR count = m_arrPieces.GetSize();
    PieRunningSum sum;
    for (INT_PTR i = 0; i < count; ++i) {
        sum.Add(Piece(i).m_dValue, Piece(i).m_dTotal);
        if (!sum.Reaches(dAngle)) {
            clear(i);
            continue;
        }
        // No piece stays selected, not even the found one: OnLButtonDown selects it afterwards, and other
        // callers only search.
        for (INT_PTR k = i; k < count; ++k)
            clear(k);
        return static_cast<int>(i);
    }
    return -1;
}

/// Sends NM_CLICK to the parent. False when the parent has destroyed the window, or deleted the control,
/// while it handled the notification: the caller must not touch the control then.
bool CPieChartCtrl::NotifyClick(UINT nFlags, int nIndex) {
    const HWND window = m_hWnd;
    const HWND parent = ::GetParent(window);
    if (parent == nullptr)
        return true;
    NMPIECHART record = {};
    record.hdr.hwndFrom = window;
    record.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    record.hdr.code = static_cast<UINT>(NM_CLICK);
    record.nFlags = nFlags;
    record.nIndex = nIndex;
    ::SendMessage(parent, WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
    return CWnd::FromHandlePermanent(window) == this;
}

void CPieChartCtrl::OnLButtonDown(UINT nFlags, CPoint point) {
    CRect grown = m_rcPie;
    grown.InflateRect(1, 1);
    CRgn region;
    if (!m_rcPie.IsRectEmpty() && region.CreateEllipticRgnIndirect(&grown) && region.PtInRegion(point)) {
        const double angle = GetAngleFromPoint(point);
        if (angle > 0.0) {
            const bool wasSelected = HasSelection();
            const int index = GetPieceIndex(angle);
            if (index >= 0)
                Piece(index).m_bSelected = TRUE;
            // GetPieceIndex has invalidated the labels only, but sectors change colour too: also when a click
            // on a part of the circle without a piece has only removed a selection.
            if (index >= 0 || wasSelected)
                InvalidateRgn(&region, TRUE);
            if (index >= 0 && !NotifyClick(nFlags, index))
                return;
        }
    }
    Default();
}

BOOL CPieChartCtrl::OnSetCursor(CWnd*, UINT nHitTest, UINT) {
    // The window class that Create registers has no cursor. Without SetCursor the cursor of the window that
    // the mouse has left would stay.
    if (Default() != 0)
        return TRUE;
    if (nHitTest != HTCLIENT)
        return FALSE;
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}
