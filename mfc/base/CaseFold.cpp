// SPDX-License-Identifier: MIT
// Lower and upper case: ASCII directly, other characters through UTF-16.

#include "mfc/base/CaseFold.h"

#include <algorithm>
#include <cstring>

namespace {

bool IsAscii(TCHAR ch) {
    return static_cast<_TUCHAR>(ch) < 0x80;
}

TCHAR AsciiWithCase(TCHAR ch, bool upper) {
    if (upper)
        return ch >= 'a' && ch <= 'z' ? static_cast<TCHAR>(ch - 'a' + 'A') : ch;
    return ch >= 'A' && ch <= 'Z' ? static_cast<TCHAR>(ch - 'A' + 'a') : ch;
}

void ChangeCase(std::wstring& text, bool upper) {
    if (upper)
        CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    else
        CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
}

#ifdef _UNICODE
bool ConvertWide(const AfxText& text, bool upper, AfxText& result) {
    result = text;
    ChangeCase(result, upper);
    return true;
}
#else
// Converts through UTF-16. Returns false if the bytes are not valid in the code page.
bool ConvertWide(const AfxText& text, bool upper, AfxText& result) {
    const int length = static_cast<int>(text.size());
    const int wideLength = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.data(), length, nullptr, 0);
    if (wideLength <= 0)
        return false;
    std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), wideLength);
    ChangeCase(wide, upper);
    const int bytes = WideCharToMultiByte(CP_ACP, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
    if (bytes <= 0)
        return false;
    result.resize(static_cast<std::size_t>(bytes));
    WideCharToMultiByte(CP_ACP, 0, wide.data(), wideLength, result.data(), bytes, nullptr, nullptr);
    return true;
}
#endif

} // namespace

AfxText AfxWithCase(const AfxText& text, bool upper) {
    AfxText result;
    if (!std::all_of(text.begin(), text.end(), IsAscii) && ConvertWide(text, upper, result))
        return result;
    result = text;
    for (TCHAR& ch : result)
        ch = AsciiWithCase(ch, upper);
    return result;
}

int AfxCompareFolded(LPCTSTR left, LPCTSTR right) {
    while (*left != 0 && IsAscii(*left) && IsAscii(*right) &&
           AsciiWithCase(*left, false) == AsciiWithCase(*right, false)) {
        ++left;
        ++right;
    }
    if (IsAscii(*left) && IsAscii(*right)) {
        const int order = AsciiWithCase(*left, false) - AsciiWithCase(*right, false);
        return (order > 0) - (order < 0);
    }
    const int order = _tcscmp(AfxWithCase(left, false).c_str(), AfxWithCase(right, false).c_str());
    return (order > 0) - (order < 0);
}
