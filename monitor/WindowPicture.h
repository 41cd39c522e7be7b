#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// What a person sees inside a frame's border: menu bar and client area, in screen coordinates.
CRect PictureArea(const CWnd& frame);

/// Sizes the frame so that the picture's area has the given size in pixels; it may reach beyond the screen if
/// the frame allows such a size (WM_GETMINMAXINFO).
void SizePictureArea(CWnd& frame, CSize size);

/// Saves the picture's area of a visible window as a PNG file, as it stands on the screen. Parts beyond the
/// screen are brought onto it one after the other by moving the window, which returns to its place.
/// @param path file name in the process code page
/// @return empty, or what went wrong
std::string SavePicture(CWnd& frame, const std::string& path);

} // namespace kavlix::monitor
