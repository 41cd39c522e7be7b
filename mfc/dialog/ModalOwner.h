// The windows that a modal dialog disables.
#pragma once

#include <windows.h>

class CWnd;

/// The owner of a modal dialog: the top-level window of `parent`. Without a parent, the popup of the main
/// window that was active last, else the main window, else NULL.
HWND ModalOwner(const CWnd* parent);

/// The last window in the chain of owners, often the main window. A modal dialog disables it too.
HWND TopmostOwner(HWND window);
