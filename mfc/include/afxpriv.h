#pragma once

// Messages that the framework sends to windows of its own.

/// Sent to the main window and its descendants while the application is idle: wParam is TRUE if commands
/// without a handler are to be disabled.
#define WM_IDLEUPDATECMDUI 0x0363
/// Sent to a modal window while its loop is idle: wParam MSGF_DIALOGBOX, lParam how often since the last
/// message. A zero answer ends the idle time.
#define WM_KICKIDLE 0x036A
