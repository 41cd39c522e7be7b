// Messages that the framework sends to its own windows.
#pragma once

/// Sent to the visible main window and to its descendants with an attached object, once at the start of each
/// idle time. wParam is TRUE: commands without a handler are to be disabled.
#define WM_IDLEUPDATECMDUI 0x0363
/// Sent to a modal window while its loop is idle, unless MLF_NOKICKIDLE is set. wParam is MSGF_DIALOGBOX.
/// lParam is 0 for the first WM_KICKIDLE of an idle time, then 1, 2 and so on. The result 0 ends the idle
/// time.
#define WM_KICKIDLE 0x036A
