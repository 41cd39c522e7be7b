// SPDX-License-Identifier: MIT
// Where a dialog sends the commands that it does not handle.
#pragma once

#include <afxwin.h>

/// Offers a command, but not a notification of a control, to the parent of the dialog and then to the thread.
/// Commands below 0x8000 are IDs of controls, and those from 0xF000 on belong to the system.
BOOL PassCommandOn(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
