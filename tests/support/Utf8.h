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

} // namespace testkit

/// Lets GoogleTest print a CString.
inline std::ostream& operator<<(std::ostream& out, const CString& text) {
    return out << testkit::Utf8(static_cast<LPCTSTR>(text));
}
