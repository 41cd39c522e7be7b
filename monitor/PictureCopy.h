#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

namespace kavlix::monitor {

/// Calls `copy`, which is to put something on the clipboard as `owner`, and tells whether it came there: the
/// owner is this window then and what is on the clipboard has changed.
bool CopyReaches(const CWnd& owner, const std::function<bool()>& copy);

/// Puts a picture of the window's client area on the clipboard as an enhanced metafile.
/// @param draw paints it into any DC, one logical unit to a pixel
/// @return whether it came there
bool CopyAsMetafile(CWnd& owner, const std::function<void(CDC&)>& draw);

/// What to say about it.
std::string CopyTextOf(bool reached);

} // namespace kavlix::monitor
