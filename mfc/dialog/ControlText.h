// SPDX-License-Identifier: MIT
// The text of a control.
#pragma once

#include <afx.h>

/// The whole text of a window.
inline CString ControlText(HWND control) {
    CString text;
    const int length = ::GetWindowTextLength(control);
    if (length > 0) {
        ::GetWindowText(control, text.GetBuffer(length + 1), length + 1);
        text.ReleaseBuffer();
    }
    return text;
}
