// SPDX-License-Identifier: MIT
// Texts for callers' buffers and for files.
#pragma once

#include <afxwin.h>

#include <string>

/// Copies a text, cut to `maxLength` TCHARs including the terminating zero.
void AfxCopyMessage(LPTSTR text, UINT maxLength, LPCTSTR message);

/// The text in the code page of the process.
std::string AfxBytes(const CString& text);
