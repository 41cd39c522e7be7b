// SPDX-License-Identifier: MIT
// CGraphCtrl: moves the selection mark and reports the move. LinePainter and BarPainter draw the mark.
#include <kavlix/GraphCtrl.h>

void CGraphCtrl::SetSelectionMarkPos(int nPos) {
    if (nPos < -1 || nPos >= m_Datasets[0].GetSize())
        return;
    StoreSelectionMark(nPos);
    RedrawData();
}

/// The only function that writes m_SelectionMarkPos, so that assistive tools get an event at every change.
void CGraphCtrl::StoreSelectionMark(int nPos) {
    if (nPos == m_SelectionMarkPos)
        return;
    m_SelectionMarkPos = nPos;
    if (m_hWnd == nullptr)
        return;
    if (nPos < 0)
        ::NotifyWinEvent(EVENT_OBJECT_SELECTIONREMOVE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    else
        ::NotifyWinEvent(EVENT_OBJECT_SELECTION, m_hWnd, OBJID_CLIENT, nPos + 1);
}

bool CGraphCtrl::MoveSelectionMark(int nPos) {
    StoreSelectionMark(nPos);
    RedrawData();
    if (const HWND parent = m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr)
        ::PostMessage(parent, WM_GRAPH_SELMARK, static_cast<WPARAM>(m_SelectionMarkPos), 0);
    return NotifySelChange();
}
