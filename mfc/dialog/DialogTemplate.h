// SPDX-License-Identifier: MIT
// Dialog templates and list data from resources.
#pragma once

#include <windows.h>

/// The template of a dialog resource; NULL if the module does not have it. The pointer is valid while the
/// module is loaded.
LPCDLGTEMPLATE LoadDialogTemplate(HINSTANCE module, LPCTSTR name);

/// Whether the dialog must be centred over its owner: the dialog is not a child, its position is (0, 0), and
/// no style defines the position.
bool WantsCentering(LPCDLGTEMPLATE dialogTemplate);

/// Fills list boxes and combo boxes from list data in memory, or from the RT_DLGINIT resource with the
/// dialog's name. FALSE if a control refuses its data; TRUE if there are no data.
bool FillLists(HWND dialog, LPCTSTR templateName, const void* listData);
