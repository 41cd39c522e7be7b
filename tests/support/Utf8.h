// SPDX-License-Identifier: MIT
// Texts of the class library as std::string.
#pragma once

#include <afxwin.h>

#include <ostream>
#include <string>

namespace testkit {

/// The text in UTF-8.
inline std::string Utf8(LPCWSTR text) {
    std::string bytes(
        static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)),
        '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, &bytes[0], static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.pop_back(); // the terminating zero
    return bytes;
}
/// The text unchanged: the code page of the process is unknown.
inline std::string Utf8(LPCSTR text) {
    return text;
}

/// With UNICODE, a text that no code page can hold.
#ifdef _UNICODE
inline constexpr wchar_t kScripts[] = L"caf\u00E9 \u0395\u03BB \u65E5\u672C \U0001F600";
#else
inline constexpr char kScripts[] = "cafe au lait";
#endif

} // namespace testkit

/// Lets GoogleTest print a CString.
inline std::ostream& operator<<(std::ostream& out, const CString& text) {
    return out << testkit::Utf8(static_cast<LPCTSTR>(text));
}
