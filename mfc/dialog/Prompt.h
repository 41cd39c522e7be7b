// Messages about wrong input.
#pragma once

#include <afxwin.h>

/// Shows a message about wrong input and ends the exchange. `id` is a string of the resource chain or of the
/// library; %1 and %2 stand for the two texts.
[[noreturn]] void FailWithPrompt(CDataExchange* pDX, UINT id, LPCTSTR first = _T(""),
                                 LPCTSTR second = _T(""));
