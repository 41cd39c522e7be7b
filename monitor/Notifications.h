// SPDX-License-Identifier: MIT
// WM_NOTIFY messages that the Monitor's controls send to their pages in addition to those of Kavlix.
#pragma once

#include <afxwin.h>

namespace kavlix::monitor {

// Codes. The messages carry a plain NMHDR.
constexpr UINT MGN_MOUSELEAVE = 1400; ///< a graph: the mouse pointer left the window
constexpr UINT MGN_COPIED = 1401;     ///< a graph: the picture is on the clipboard
constexpr UINT MGN_NOTCOPIED = 1402;  ///< a graph: the picture did not reach the clipboard
constexpr UINT MPN_SELECTION = 1410;  ///< the pie: a click, or a key that changed the selection
constexpr UINT MCN_SELECTION = 1421;  ///< the chart: the person clicked a point, moved the mark or removed it

/// Sends a notification to the window's parent.
void NotifyParent(const CWnd& window, UINT code);

/// Asks Windows to send WM_MOUSELEAVE to the window once. Returns whether Windows will send it.
bool WatchMouseLeave(const CWnd& window);

} // namespace kavlix::monitor
