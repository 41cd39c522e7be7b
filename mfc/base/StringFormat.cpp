// SPDX-License-Identifier: MIT
// CString: formats and string resources.

#include <afxtempl.h>

#include <cstdio>

#include "mfc/base/Resource.h"

namespace {

#ifdef _UNICODE
/// The format with the lengths of %s, %S, %c and %C written out. Windows and the C standard differ on their meaning in
/// wide formats.
std::wstring StandardFormat(LPCWSTR format) {
    std::wstring result;
    for (const wchar_t* at = format; *at != 0; ++at) {
        result += *at;
        if (*at != L'%')
            continue;
        bool hasLength = false;
        while (at[1] != 0 && std::wcschr(L"-+ #0123456789.*hlLjztIw", at[1]) != nullptr) {
            ++at;
            hasLength = hasLength || std::wcschr(L"hlLw", *at) != nullptr;
            result += *at == L'w' ? L'l' : *at;
        }
        if (at[1] == 0)
            break;
        ++at;
        const bool isText = std::wcschr(L"sScC", *at) != nullptr;
        if (isText && !hasLength)
            result += *at == L's' || *at == L'c' ? L'l' : L'h';
        result += *at == L'S' ? L's' : *at == L'C' ? L'c' : *at;
    }
    return result;
}

int Print(LPWSTR text, std::size_t room, LPCWSTR format, va_list args) {
    const std::wstring standard = AfxWithMemory([&] { return StandardFormat(format); });
    return ::__mingw_vsnwprintf(text, room, standard.c_str(), args);
}
#else
int Print(LPSTR text, std::size_t room, LPCSTR format, va_list args) {
    return std::vsnprintf(text, room, format, args);
}
#endif

} // namespace

BOOL CString::LoadResource(UINT id) {
    const HINSTANCE module = AfxFindStringResourceHandle(id);
    if (module != nullptr) {
        // With a length of 0, the system returns the address of the resource. The resource has no
        // terminating zero.
        LPCWSTR text = nullptr;
        const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
        if (length > 0) {
            *this = CString(text, length);
            return TRUE;
        }
    }
    TCHAR prompt[256];
    const int length = AfxLoadString(id, prompt, _countof(prompt));
    *this = CString(prompt, length);
    return length > 0;
}

void CString::AppendFormatted(std::size_t keep, LPCTSTR format, va_list args) {
    if (format == nullptr)
        AfxThrowInvalidArgException();
    // The arguments may point into this string, so the string changes only after the new text is complete.
    TCHAR brief[256];
    va_list measured;
    va_copy(measured, args);
    const int length = Print(brief, _countof(brief), format, measured);
    va_end(measured);
    if (length < 0) {
        // Formatting failed: a UTF-16 argument cannot be converted to the code page, or the text is longer
        // than INT_MAX.
        m_text.resize(keep);
        return;
    }
    CString made;
    if (static_cast<std::size_t>(length) < _countof(brief)) {
        made = CString(brief, length);
    } else {
        LPTSTR const buffer = made.GetBuffer(length);
        Print(buffer, static_cast<std::size_t>(length) + 1, format, args);
        made.ReleaseBuffer(length);
    }
    if (keep == 0)
        m_text.swap(made.m_text);
    else
        *this += made;
}

void CString::FormatV(LPCTSTR format, va_list args) {
    AppendFormatted(0, format, args);
}
void CString::FormatPlain(LPCTSTR format, ...) {
    va_list args;
    va_start(args, format);
    struct End {
        va_list& args;
        ~End() { va_end(args); }
    } end{args};
    AppendFormatted(0, format, args);
}
void CString::AppendFormatPlain(LPCTSTR format, ...) {
    va_list args;
    va_start(args, format);
    struct End {
        va_list& args;
        ~End() { va_end(args); }
    } end{args};
    AppendFormatted(m_text.size(), format, args);
}

void CString::FormatMessagePlain(LPCTSTR format, ...) {
    va_list args;
    va_start(args, format);
    LPTSTR message = nullptr;
    ::SetLastError(NO_ERROR);
    const DWORD length = ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format,
                                         0, 0, reinterpret_cast<LPTSTR>(&message), 0, &args);
    va_end(args);
    struct Free {
        void operator()(LPTSTR block) const { ::LocalFree(block); }
    };
    const std::unique_ptr<TCHAR, Free> owner(message);
    if (length == 0 && ::GetLastError() != NO_ERROR)
        AfxThrowMemoryException();
    *this = CString(message, static_cast<int>(length));
}
