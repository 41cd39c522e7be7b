#pragma once

#include <windows.h>

/// The template of a dialog resource, NULL if the module has none of that name. It lives as long as the
/// module.
LPCDLGTEMPLATE LoadDialogTemplate(HINSTANCE module, LPCTSTR name);

/// Whether a dialog made from the template belongs in the middle of its owner: it is no child, stands at (0,
/// 0), and no style says where that is.
bool WantsCentering(LPCDLGTEMPLATE dialogTemplate);

/// Fills list and combo boxes from list data in memory, or from the RT_DLGINIT resource that has the dialog's
/// name. TRUE also if there is neither; FALSE if a control refused its data.
bool FillLists(HWND dialog, LPCTSTR templateName, const void* listData);
