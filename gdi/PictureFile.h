#pragma once

#include <afxwin.h>

#include <functional>

namespace kavlix {

/// Saves what `draw` draws, `size` pixels, as the extension of `path` says: .png, .bmp or .emf in any case.
/// `draw` gets a DC in pixels with the picture's corner at (0, 0); the picture is white at first.
///
/// False for another extension, an empty size, when memory runs out or when the file cannot be written. The
/// file is written under another name beside it and takes its place when it is whole: in case of failure
/// nothing has changed. `path` is in the process code page.
bool SavePicture(const char* path, CSize size, const std::function<void(CDC&)>& draw);

} // namespace kavlix
