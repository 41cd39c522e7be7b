// SPDX-License-Identifier: MIT
// Saves pictures as .png, .bmp or .emf files.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <functional>

namespace kavlix {

/// Saves the picture that `draw` draws, `size` in pixels. The extension of `path` chooses the format: .png,
/// .bmp or .emf, in upper or lower case. `draw` gets a DC whose logical units are pixels, with the picture's
/// top left corner at (0, 0). A .png or .bmp picture is white at first, an .emf picture has no background.
///
/// False for a null `path`, for another extension, for an empty size or a side above 32,767 pixels, when
/// memory or GDI objects run out, and when the picture cannot be encoded or the file cannot be written. The
/// picture is first written to a temporary file in the same folder, which then replaces `path`. So a failure
/// leaves an existing file unchanged. Exceptions of `draw` reach the caller, except those for exhausted memory
/// or resources, which also give false.
KAVLIX_API bool SavePicture(LPCTSTR path, CSize size, const std::function<void(CDC&)>& draw);

} // namespace kavlix
