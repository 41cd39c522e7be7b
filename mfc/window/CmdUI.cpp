// SPDX-License-Identifier: MIT
// CCmdUI: updates of menu items and buttons.

#include "afx/CmdTarget.h"

#include "afx/Menu.h"
#include "afx/Wnd.h"

namespace {

bool IsItem(const CCmdUI& item) {
    // An item that opens a popup is updated with the command of the popup's first item, but must not get the
    // state, check mark or text of that command.
    return item.m_pMenu != nullptr && item.m_pSubMenu == nullptr;
}

bool IsButton(const CWnd& control) {
    return (::SendMessage(control.m_hWnd, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

} // namespace

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu != nullptr) {
        if (IsItem(*this))
            ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_GRAYED));
        return;
    }
    if (m_pOther == nullptr)
        return;
    // A disabled window cannot have the focus, so the focus moves to the next control before the control
    // is disabled.
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
        ::SendMessage(::GetParent(m_pOther->m_hWnd), WM_NEXTDLGCTL, 0, FALSE);
    ::EnableWindow(m_pOther->m_hWnd, bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (IsItem(*this))
            ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther != nullptr && IsButton(*m_pOther)) {
        ::SendMessage(m_pOther->m_hWnd, BM_SETCHECK, static_cast<WPARAM>(nCheck), 0);
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    if (m_pMenu == nullptr) {
        SetCheck(bOn ? 1 : 0);
        return;
    }
    if (!IsItem(*this))
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE;
    if (!::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info))
        return;
    info.fType |= MFT_RADIOCHECK;
    if (bOn)
        info.fState |= MFS_CHECKED;
    else
        info.fState &= ~static_cast<UINT>(MFS_CHECKED);
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (lpszText == nullptr)
        return;
    if (m_pMenu != nullptr) {
        if (!IsItem(*this))
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    } else if (m_pOther != nullptr) {
        // Setting an equal text would make the control flicker at every idle time.
        CString present;
        m_pOther->GetWindowText(present);
        if (present != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (pTarget == nullptr || m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    BOOL handled = FALSE;
    if (m_pOther != nullptr)
        handled = m_pOther->OnCmdMsg(0, MAKELONG(LOWORD(CN_UPDATE_COMMAND_UI), WM_REFLECT_BASE + WM_COMMAND),
                                     this, nullptr);
    if (!handled)
        handled = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
        m_bEnableChanged = FALSE;
    }
    return handled;
}
