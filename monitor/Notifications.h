// The Monitor's own WM_NOTIFY messages from its controls to their pages, beyond those of the controls.
#pragma once

#include <afxwin.h>

namespace kavlix::monitor {

// Codes. The messages carry a plain NMHDR.
constexpr UINT MGN_MOUSELEAVE = 1400; ///< a graph: the mouse pointer left the window
constexpr UINT MGN_COPIED = 1401;     ///< a graph: the picture is on the clipboard
constexpr UINT MGN_NOTCOPIED = 1402;  ///< a graph: another program holds the clipboard, or memory ran out
constexpr UINT MPN_SELECTION = 1410;  ///< the pie: the person selected another piece, or none
constexpr UINT MCN_POINTER = 1420;    ///< the chart: another point, or none, is under the mouse pointer
constexpr UINT MCN_SELECTION = 1421;  ///< the chart: the person marked another point, or none

/// Sends a notification to the window's parent.
void NotifyParent(const CWnd& window, UINT code);

/// Asks the system to send WM_MOUSELEAVE to the window once. Returns whether it will.
bool WatchMouseLeave(const CWnd& window);

} // namespace kavlix::monitor
