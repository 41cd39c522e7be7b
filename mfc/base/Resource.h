// Texts for callers' buffers.
#pragma once

#include <afxwin.h>

/// Copies a text, cut to `maxLength` bytes including the terminating zero.
void AfxCopyMessage(LPTSTR text, UINT maxLength, LPCTSTR message);
