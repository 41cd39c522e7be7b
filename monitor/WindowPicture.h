// SPDX-License-Identifier: MIT
// Saves a picture of a window.
#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// The file types of pictures, for the dialog that asks for a file name.
constexpr TCHAR kPictureFilter[] =
    _T("PNG pictures (*.png)|*.png|Bitmaps (*.bmp)|*.bmp|Enhanced metafiles (*.emf)|*.emf||");

/// The area of the picture: menu bar and client area of the frame, in screen coordinates.
CRect PictureArea(const CWnd& frame);

/// Sizes the frame so that its PictureArea has the given size in pixels. The area may exceed the screen if
/// the frame allows that in WM_GETMINMAXINFO.
void SizePictureArea(CWnd& frame, CSize size);

/// Saves the PictureArea of a visible window, copied from the screen, as a .png, .bmp or .emf file. When part
/// of the area lies outside the screen, the window is moved to copy one part after another, and moved back.
/// `path` is UTF-8. Returns an empty text, or a description of the failure.
std::string SavePicture(CWnd& frame, const std::string& path);

} // namespace kavlix::monitor
