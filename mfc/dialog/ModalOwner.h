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
