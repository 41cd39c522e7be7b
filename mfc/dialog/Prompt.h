// SPDX-License-Identifier: MIT
// Messages about wrong input.
#pragma once

#include <afxwin.h>

/// Shows a message about wrong input and ends the exchange. `id` is the ID of a string resource (or of a text
/// of the library), in which %1 stands for `first` and %2 for `second`.
[[noreturn]] void FailWithPrompt(CDataExchange* pDX, UINT id, LPCTSTR first = _T(""),
                                 LPCTSTR second = _T(""));
