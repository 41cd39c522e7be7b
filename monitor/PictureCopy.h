// SPDX-License-Identifier: MIT
// Copies pictures to the clipboard.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

namespace kavlix::monitor {

/// Calls `copy`, which must open the clipboard for `owner` and fill it. Returns whether that succeeded:
/// `copy` returned true, the window owns the clipboard, and the clipboard's content has changed.
bool CopyReaches(const CWnd& owner, const std::function<bool()>& copy);

/// Puts a picture of the window's client area on the clipboard as an enhanced metafile. `draw` paints the
/// picture into any DC, one logical unit to a pixel. Returns whether the clipboard took the metafile.
bool CopyAsMetafile(CWnd& owner, const std::function<void(CDC&)>& draw);

/// The notice about a copy that reached the clipboard, or did not.
std::string CopyTextOf(bool reached);

} // namespace kavlix::monitor
