// SPDX-License-Identifier: MIT
// Messages that the framework sends to its own windows.
#pragma once

#include <windows.h>

/// A window's layout of its bars, see WM_SIZEPARENT.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      ///< receives the new places of the bars; NULL: nothing moves
    RECT rect;      ///< client area that is left; a bar takes its part away
    SIZE sizeTotal; ///< a bar adds its size
    BOOL bStretch;  ///< whether bars are as long as the window
};

/// Sent to the child windows with an attached object while CWnd::RepositionBars() lays them out. lParam is an
/// AFX_SIZEPARENTPARAMS*. A child that ignores the message stays in its place.
#define WM_SIZEPARENT 0x0361
/// Sent to a frame window to show a text in the message line of its status bar. wParam is the ID of a string
/// resource, whose first line is shown, or lParam is the text. The result is the ID of the former message.
#define WM_SETMESSAGESTRING 0x0362
/// Like WM_SETMESSAGESTRING, at the end of a menu or of another state with its own message.
#define WM_POPMESSAGESTRING 0x0375
/// Sent to the visible main window and to its descendants with an attached object, once at the start of each
/// idle time. wParam is TRUE: commands without a handler are to be disabled.
#define WM_IDLEUPDATECMDUI 0x0363
/// Sent to a modal window while its loop is idle, unless MLF_NOKICKIDLE is set. wParam is MSGF_DIALOGBOX.
/// lParam is 0 for the first WM_KICKIDLE of an idle time, then 1, 2 and so on. The result 0 ends the idle
/// time.
#define WM_KICKIDLE 0x036A
