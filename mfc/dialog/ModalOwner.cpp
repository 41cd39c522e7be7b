// SPDX-License-Identifier: MIT
// The windows that a modal dialog disables.

#include "mfc/dialog/ModalOwner.h"

#include <afxwin.h>

namespace {
HWND TopLevel(HWND window) {
    while (window != nullptr && (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0)
        window = ::GetParent(window);
    return window;
}
} // namespace

HWND ModalOwner(const CWnd* parent) {
    if (parent != nullptr && parent->m_hWnd != nullptr)
        return TopLevel(parent->m_hWnd);
    const CWnd* const main = AfxGetMainWnd();
    HWND const top = main == nullptr ? nullptr : TopLevel(main->m_hWnd);
    HWND const popup = top == nullptr ? nullptr : ::GetLastActivePopup(top);
    return popup != nullptr && ::IsWindowVisible(popup) ? popup : top;
}

HWND TopmostOwner(HWND window) {
    while (window != nullptr) {
        HWND const owner = ::GetWindow(window, GW_OWNER);
        if (owner == nullptr)
            break;
        window = TopLevel(owner);
    }
    return window;
}

void HandOver(HWND window, HWND owner) {
    if (window == nullptr)
        return;
    const bool wasActive = ::GetActiveWindow() == window;
    ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    if (wasActive && owner != nullptr)
        ::SetActiveWindow(owner);
}
