// Messages that the framework sends to its own windows.
#pragma once

/// Sent to the main window and its descendants while the application is idle. wParam is TRUE if commands
/// without a handler become disabled.
#define WM_IDLEUPDATECMDUI 0x0363
/// Sent to a modal window while its loop is idle. wParam is MSGF_DIALOGBOX. lParam is 0 for the first
/// WM_KICKIDLE of an idle time, then 1, 2 and so on. The result 0 ends the idle time.
#define WM_KICKIDLE 0x036A
