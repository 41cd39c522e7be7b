// SPDX-License-Identifier: MIT
// CWnd: related windows, and messages to several windows.

#include "mfc/window/ThreadState.h"

#include "afx/FrameWnd.h"

CWnd* CWnd::ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const {
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const {
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetTopWindow() const {
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetLastActivePopup() const {
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, SafeWindow(pWndNewParent)));
}

CWnd* CWnd::GetOwner() const {
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (m_hWnd == nullptr)
        return nullptr;
    for (HWND above = ::GetParent(m_hWnd); above != nullptr; above = ::GetParent(above)) {
        CWnd* const window = FromHandlePermanent(above);
        if (window != nullptr && window->IsFrameWnd())
            return static_cast<CFrameWnd*>(window);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    if (m_hWnd == nullptr)
        return nullptr;
    CFrameWnd* top = IsFrameWnd() ? static_cast<CFrameWnd*>(FromHandlePermanent(m_hWnd)) : GetParentFrame();
    while (top != nullptr) {
        CFrameWnd* const above = top->GetParentFrame();
        if (above == nullptr)
            break;
        top = above;
    }
    return top;
}

CWnd* CWnd::GetTopLevelParent() const {
    if (m_hWnd == nullptr)
        return nullptr;
    HWND top = m_hWnd;
    for (HWND above = ::GetParent(top); above != nullptr; above = ::GetParent(above))
        top = above;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const {
    if (m_hWnd == nullptr)
        return nullptr;
    HWND top = ::GetAncestor(m_hWnd, GA_ROOT);
    for (HWND owner = ::GetWindow(top, GW_OWNER); owner != nullptr; owner = ::GetWindow(owner, GW_OWNER))
        top = owner;
    return FromHandle(top);
}

CWnd* CWnd::GetParentOwner() const {
    return m_hWnd != nullptr ? FromHandle(::GetAncestor(m_hWnd, GA_ROOT)) : nullptr;
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    const HWND item = ::GetDlgItem(m_hWnd, nID);
    if (item != nullptr) {
        if (CWnd* const permanent = FromHandlePermanent(item))
            return permanent;
        if (!bOnlyPerm)
            return FromHandle(item);
    }
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        // A local object instead of a temporary one, which would fill the map with one entry for each child.
        CWnd probe;
        probe.m_hWnd = child;
        CWnd* const found = probe.GetDescendantWindow(nID, bOnlyPerm);
        probe.m_hWnd = nullptr;
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

CWnd* CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm) {
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(hWnd); child != nullptr; child = next) {
        next = ::GetWindow(child, GW_HWNDNEXT); // before the call: the receiver may destroy itself
        if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        else if (CWnd* const window = FromHandlePermanent(child))
            AfxCallWndProc(window, child, message, wParam, lParam);
        if (bDeep && ::IsWindow(child) && ::GetTopWindow(child) != nullptr)
            SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
        if (next != nullptr && !::IsWindow(next))
            break;
    }
}
