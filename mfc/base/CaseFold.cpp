// Lower and upper case: ASCII directly, other characters through UTF-16.

#include "mfc/base/CaseFold.h"

#include <algorithm>
#include <cstring>

namespace {

bool IsAscii(char ch) {
    return static_cast<unsigned char>(ch) < 0x80;
}

char AsciiWithCase(char ch, bool upper) {
    if (upper)
        return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch;
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

// Converts through UTF-16. Returns false if the bytes are not valid in the code page.
bool ConvertWide(const std::string& text, bool upper, std::string& result) {
    const int length = static_cast<int>(text.size());
    const int wideLength = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.data(), length, nullptr, 0);
    if (wideLength <= 0)
        return false;
    std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), wideLength);
    if (upper)
        CharUpperBuffW(wide.data(), static_cast<DWORD>(wideLength));
    else
        CharLowerBuffW(wide.data(), static_cast<DWORD>(wideLength));
    const int bytes = WideCharToMultiByte(CP_ACP, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
    if (bytes <= 0)
        return false;
    result.resize(static_cast<std::size_t>(bytes));
    WideCharToMultiByte(CP_ACP, 0, wide.data(), wideLength, result.data(), bytes, nullptr, nullptr);
    return true;
}

} // namespace

std::string AfxWithCase(const std::string& text, bool upper) {
    std::string result;
    if (!std::all_of(text.begin(), text.end(), IsAscii) && ConvertWide(text, upper, result))
        return result;
    result = text;
    for (char& ch : result)
        ch = AsciiWithCase(ch, upper);
    return result;
}

int AfxCompareFolded(const char* left, const char* right) {
    while (*left != 0 && IsAscii(*left) && IsAscii(*right) &&
           AsciiWithCase(*left, false) == AsciiWithCase(*right, false)) {
        ++left;
        ++right;
    }
    if (IsAscii(*left) && IsAscii(*right)) {
        const int order = AsciiWithCase(*left, false) - AsciiWithCase(*right, false);
        return (order > 0) - (order < 0);
    }
    const int order = std::strcmp(AfxWithCase(left, false).c_str(), AfxWithCase(right, false).c_str());
    return (order > 0) - (order < 0);
}
