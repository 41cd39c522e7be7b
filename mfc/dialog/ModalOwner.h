// SPDX-License-Identifier: MIT
// The windows that a modal dialog disables.
#pragma once

#include "afx/Wnd.h"

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

/// Destroys the window of a modal dialog at the end of its scope, also when an exception ends the loop.
class ModalWindow {
public:
    ModalWindow(CWnd& dialog, HWND owner) : m_dialog(dialog), m_owner(owner) {}
    ~ModalWindow() { m_dialog.DestroyWindow(); }
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

    /// The owners must be enabled before.
    void HandOver() { ::HandOver(m_dialog.m_hWnd, m_owner); }

private:
    CWnd& m_dialog;
    HWND m_owner;
};
