#pragma once

#include <windows.h>

class CWnd;

/// The window that owns a modal dialog: the top-level window of `parent`; without a parent, the popup of the
/// main window that the user worked with last, or the main window itself. NULL if there is none of these.
HWND ModalOwner(const CWnd* parent);

/// The end of a window's chain of owners, which a modal dialog blocks as well: often the main window.
HWND TopmostOwner(HWND window);
