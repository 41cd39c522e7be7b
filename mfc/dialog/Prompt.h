#pragma once

#include <afxwin.h>

/// Tells the user what was wrong and ends the exchange. `id` is a string of the resource chain, or one of the
/// library's own, where %1 and %2 stand for the two texts.
[[noreturn]] void FailWithPrompt(CDataExchange* pDX, UINT id, LPCTSTR first = _T(""),
                                 LPCTSTR second = _T(""));
