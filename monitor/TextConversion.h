// SPDX-License-Identifier: MIT
// The Monitor's texts for Windows and back.
#pragma once

#include <afxwin.h>

#include <string>

namespace kavlix::monitor {

/// A UTF-8 text for Windows and the class library: monitor/recording/ and the pages' data keep texts in UTF-8.
/// Use this function rather than a constructor of CString, which reads bytes in the process code page. An
/// invalid byte becomes U+FFFD.
CString ToText(const std::string& utf8);

/// A text from Windows or the class library in UTF-8. A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(LPCTSTR text);

} // namespace kavlix::monitor
