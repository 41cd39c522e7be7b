// SPDX-License-Identifier: MIT
// CFrameWnd: control bars, and the messages in the status bar.

#include "afx/App.h"
#include "afx/ControlBar.h"
#include "afx/FrameWnd.h"
#include "afxpriv.h"

namespace {

constexpr UINT firstSystemCommand = 0xF000;
constexpr UINT menuClosed = 0xFFFF; // WM_MENUSELECT: all flags, and no menu

/// The first of the messages of a command. A string resource can hold more behind a line end.
CString FirstLine(const CString& text) {
    const int end = text.Find(_T('\n'));
    return end < 0 ? text : text.Left(end);
}

} // namespace

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    return nID == 0 ? nullptr
                    : DYNAMIC_DOWNCAST(CControlBar, GetDescendantWindow(static_cast<int>(nID), TRUE));
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    ASSERT(pBar != nullptr);
    if (bDelay) {
        pBar->m_pending = bShow ? CControlBar::Pending::Show : CControlBar::Pending::Hide;
        return;
    }
    pBar->m_pending = CControlBar::Pending::Nothing;
    pBar->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    RecalcLayout();
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* const bar = GetControlBar(nID);
    if (bar == nullptr)
        return FALSE; // another object may handle the command
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    const CControlBar* const bar = GetControlBar(pCmdUI->m_nID);
    if (bar == nullptr)
        pCmdUI->ContinueRouting();
    else
        pCmdUI->SetCheck(bar->IsVisible());
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    int key = VK_SCROLL;
    if (pCmdUI->m_nID == ID_INDICATOR_CAPS)
        key = VK_CAPITAL;
    else if (pCmdUI->m_nID == ID_INDICATOR_NUM)
        key = VK_NUMLOCK;
    pCmdUI->Enable((::GetKeyState(key) & 1) != 0);
}

CWnd* CFrameWnd::GetMessageBar() {
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    if (rMessage.LoadString(nID))
        rMessage = FirstLine(rMessage);
    else
        rMessage.Empty();
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID) {
    SendMessage(WM_SETMESSAGESTRING, nID);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT former = m_nIDLastMessage;
    m_nIDLastMessage = static_cast<UINT>(wParam);
    if (CWnd* const bar = GetMessageBar()) {
        CString text;
        if (lParam != 0)
            text = reinterpret_cast<LPCTSTR>(lParam);
        else if (wParam != 0)
            GetMessageString(static_cast<UINT>(wParam), text);
        bar->SetWindowText(text);
    }
    return static_cast<LRESULT>(former);
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu) {
    if (nFlags == menuClosed && hSysMenu == nullptr) {
        SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
        return;
    }
    UINT message = nItemID;
    if ((nFlags & (MF_SEPARATOR | MF_POPUP)) != 0 || nItemID == 0)
        message = 0;
    else if (nItemID >= firstSystemCommand)
        message = AFX_IDS_SCFIRST + (nItemID - firstSystemCommand) / 16;
    if (message != m_nIDLastMessage)
        SendMessage(WM_SETMESSAGESTRING, message);
}
