// SPDX-License-Identifier: MIT
// Converts by the system's functions.

#include "monitor/TextConversion.h"

namespace kavlix::monitor {

static_assert(sizeof(TCHAR) == sizeof(WCHAR),
              "The Monitor is built with UNICODE, for paths and texts of any script");

CString ToText(const std::string& utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
    return CString(wide.data(), length);
}

std::string ToUtf8(LPCTSTR text) {
    const int units = ::lstrlen(text);
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, units, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, units, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

} // namespace kavlix::monitor
