// SPDX-License-Identifier: MIT
// The windows that a modal dialog disables.
#pragma once

#include <windows.h>

class CWnd;

/// The owner of a modal dialog: the top-level window of `parent`. Without a parent, the popup of the main
/// window that was active last, else the main window, else NULL.
HWND ModalOwner(const CWnd* parent);

/// The last window in the chain of owners of `window`, often the main window; `window` itself if it has no
/// owner. A modal dialog also disables this window.
HWND TopmostOwner(HWND window);

/// Hides the window of a modal dialog and, if that window was active, activates the owner. The owner must be enabled
/// before: otherwise Windows would activate a window of another program. `window` may be NULL.
void HandOver(HWND window, HWND owner);

/// Disables a window while the object exists.
class DisabledWindow {
public:
    explicit DisabledWindow(HWND window)
        : m_window(window != nullptr && ::IsWindowEnabled(window) ? window : nullptr) {
        if (m_window != nullptr)
            ::EnableWindow(m_window, FALSE);
    }
    ~DisabledWindow() {
        if (m_window != nullptr)
            ::EnableWindow(m_window, TRUE);
    }
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

private:
    HWND m_window;
};
