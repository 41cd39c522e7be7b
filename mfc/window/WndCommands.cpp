// SPDX-License-Identifier: MIT
// CWnd: commands, notifications, and messages that a parent hands back to a control.

#include "mfc/window/ThreadState.h"

#include "afx/Controls.h"
#include "afx/Menu.h"
#include "afxmsg_.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_PARENTNOTIFY()

    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()

    ON_WM_VKEYTOITEM()
    ON_WM_CHARTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace {

/// Finds out whether a command is enabled, without changing a user interface.
class EnabledProbe : public CCmdUI {
public:
    BOOL enabled = TRUE;

    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        enabled = bOn;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};

/// The object of the menu that contains the owner-drawn item `id`. Searches `menu` and its submenus; NULL if
/// there is none.
CMenu* FindItemOwner(HMENU menu, UINT id) {
    const int count = menu != nullptr ? ::GetMenuItemCount(menu) : 0;
    for (int i = 0; i < count; ++i) {
        if (const HMENU popup = ::GetSubMenu(menu, i)) {
            if (CMenu* const found = FindItemOwner(popup, id))
                return found;
        }
        if (::GetMenuItemID(menu, i) == id)
            return CMenu::FromHandlePermanent(menu);
    }
    return nullptr;
}

} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    int code = HIWORD(wParam);
    if (control == nullptr) { // menu or accelerator
        if (id == 0)
            return FALSE;
        // The command of an accelerator may be disabled, so its update handler is asked first.
        EnabledProbe probe;
        probe.m_nID = id;
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &probe, nullptr);
        if (!probe.enabled)
            return TRUE;
        code = CN_COMMAND;
    } else {
        if (CurrentThreadState().exchangingWindow == m_hWnd)
            return TRUE;
        if (ReflectLastMsg(control))
            return TRUE;
        if (id == 0)
            return FALSE;
    }
    return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    NMHDR* const notification = reinterpret_cast<NMHDR*>(lParam);
    const HWND control = notification->hwndFrom;
    if (CurrentThreadState().exchangingWindow == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(control, pResult))
        return TRUE;
    // The control's own ID counts, because idFrom of the record can be wrong.
    const UINT id = ::IsWindow(control) ? static_cast<UINT>(::GetDlgCtrlID(control))
                                        : static_cast<UINT>(notification->idFrom);
    AFX_NOTIFY record{pResult, notification};
    return OnCmdMsg(LOWORD(id), MAKELONG(LOWORD(notification->code), WM_NOTIFY), &record, nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG& message = CurrentThreadState().currentMessage;
    LRESULT ignored = 0;
    return OnChildNotify(message.message, message.wParam, message.lParam,
                         pResult != nullptr ? pResult : &ignored);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND)
        return OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr);
    if (message == WM_NOTIFY) {
        NMHDR* const notification = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY record{pResult, notification};
        return OnCmdMsg(0, MAKELONG(LOWORD(notification->code), WM_REFLECT_BASE + WM_NOTIFY), &record,
                        nullptr);
    }
    const bool isColor = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    default:
        return isColor && OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    }
}

// ---- Default of the parent: hand the message back to the control. ----

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const bool isLife = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (isLife && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (ReflectLastMsg(SafeWindow(pWnd), &brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(SafeWindow(pScrollBar)))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(SafeWindow(pScrollBar)))
        Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* const menu =
                CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem))) {
            menu->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        CMenu* menu = FindItemOwner(CurrentThreadState().popupMenu, lpMeasureItemStruct->itemID);
        if (menu == nullptr && (GetStyle() & WS_CHILD) == 0)
            menu = FindItemOwner(::GetMenu(m_hWnd), lpMeasureItemStruct->itemID);
        if (menu != nullptr) {
            menu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    } else if (ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID)))) {
        return;
    }
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT item = 0;
    if (ReflectLastMsg(SafeWindow(pListBox), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT item = 0;
    if (ReflectLastMsg(SafeWindow(pListBox), &item))
        return static_cast<int>(item);
    return static_cast<int>(Default());
}
