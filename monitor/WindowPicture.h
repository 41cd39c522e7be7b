// Saves a picture of a window.
#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// The area of the picture: menu bar and client area of the frame, in screen coordinates.
CRect PictureArea(const CWnd& frame);

/// Sizes the frame so that its PictureArea has the given size in pixels. The area may exceed the screen if
/// the frame allows that in WM_GETMINMAXINFO.
void SizePictureArea(CWnd& frame, CSize size);

/// Saves the PictureArea of a visible window as a PNG file, copied from the screen. When the window exceeds
/// the screen, it is moved to copy one part after another, and moved back. `path` is in the process code
/// page. Returns an empty text, or a description of the failure.
std::string SavePicture(CWnd& frame, const std::string& path);

} // namespace kavlix::monitor
