// SPDX-License-Identifier: MIT
// Assertions, checks of memory, traces and CDumpContext.

#include <afx.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "mfc/base/Resource.h"

CDumpContext afxDump;

void AfxAssertFailed(LPCSTR expression, LPCSTR file, int line) {
    char message[1024];
    std::snprintf(message, sizeof message, "%s(%d): assertion failed%s%s\n", file != nullptr ? file : "?",
                  line, expression != nullptr ? ": " : "", expression != nullptr ? expression : "");
    OutputDebugStringA(message);
    std::fputs(message, stderr);
    std::fflush(stderr);
    if (IsDebuggerPresent())
        DebugBreak();
    AfxAbort();
}

void AfxAbort() {
    // Not abort(): in a program with windows, abort() shows a message box and waits for the user.
    TerminateProcess(GetCurrentProcess(), 3);
    for (;;)
        Sleep(INFINITE);
}

BOOL AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite) {
    constexpr DWORD writable =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD readable = writable | PAGE_READONLY | PAGE_EXECUTE_READ;
    if (address == nullptr)
        return FALSE;
    UINT_PTR at = reinterpret_cast<UINT_PTR>(address);
    if (bytes > UINTPTR_MAX - at)
        return FALSE;
    const UINT_PTR end = at + (bytes == 0 ? 1 : bytes);
    while (at < end) {
        MEMORY_BASIC_INFORMATION region{};
        if (VirtualQuery(reinterpret_cast<const void*>(at), &region, sizeof region) == 0)
            return FALSE;
        if (region.State != MEM_COMMIT || (region.Protect & PAGE_GUARD) != 0 ||
            (region.Protect & (readWrite ? writable : readable)) == 0)
            return FALSE;
        at = reinterpret_cast<UINT_PTR>(region.BaseAddress) + region.RegionSize;
    }
    return TRUE;
}

template <class Char> static BOOL IsValidText(const Char* text, int length) {
    if (length >= 0)
        return AfxIsValidAddress(text, static_cast<UINT_PTR>(length) * sizeof(Char), FALSE);
    constexpr UINT_PTR page = 4096;
    const auto* at = reinterpret_cast<const BYTE*>(text); // UTF-16 can lie at an odd address
    for (;;) {
        // Memory protection applies to whole pages, so one readable byte makes the rest of its page readable.
        if (!AfxIsValidAddress(at, sizeof(Char), FALSE))
            return FALSE;
        // A character that crosses the page's end is part of neither page's rest.
        const UINT_PTR rest = (page - reinterpret_cast<UINT_PTR>(at) % page) / sizeof(Char);
        const BYTE* const end = at + (rest == 0 ? 1 : rest) * sizeof(Char);
        for (; at != end; at += sizeof(Char)) {
            Char ch;
            std::memcpy(&ch, at, sizeof ch);
            if (ch == 0)
                return TRUE;
        }
    }
}

BOOL AfxIsValidString(LPCSTR text, int length) {
    return IsValidText(text, length);
}
BOOL AfxIsValidString(LPCWSTR text, int length) {
    return IsValidText(text, length);
}

void AfxAssertValidObject(const CObject* object, LPCSTR file, int line) {
    if (object == nullptr)
        AfxAssertFailed("object != NULL", file, line);
    if (!AfxIsValidAddress(object, sizeof(CObject), FALSE))
        AfxAssertFailed("object is readable memory", file, line);
    object->AssertValid();
}

void AfxTraceFormatted(LPCTSTR format, ...) {
    CString text;
    va_list args;
    va_start(args, format);
    text.FormatV(format, args);
    va_end(args);
    OutputDebugString(text);
}

CDumpContext::CDumpContext(CFile* file) : m_pFile(file) {
}

CDumpContext& CDumpContext::operator<<(LPCSTR text) {
    if (text == nullptr)
        text = "(NULL)";
    if (m_pFile == nullptr) {
        OutputDebugStringA(text);
        return *this;
    }
    // The file is binary, so "\n" becomes "\r\n" here.
    for (const char* line = text; *line != 0;) {
        const std::size_t length = std::strcspn(line, "\n");
        m_pFile->Write(line, static_cast<UINT>(length));
        line += length;
        if (*line == '\n') {
            m_pFile->Write("\r\n", 2);
            ++line;
        }
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR text) {
    return *this << (text == nullptr ? nullptr : AfxBytes(CString(text)).c_str());
}
CDumpContext& CDumpContext::operator<<(const CString& text) {
    return *this << AfxBytes(text).c_str();
}
CDumpContext& CDumpContext::operator<<(const void* pointer) {
    return Print("$%p", pointer);
}
CDumpContext& CDumpContext::operator<<(const CObject* object) {
    if (object == nullptr)
        return *this << "NULL";
    object->Dump(*this);
    return *this;
}
CDumpContext& CDumpContext::operator<<(const CObject& object) {
    return *this << &object;
}
CDumpContext& CDumpContext::operator<<(BYTE value) {
    return Print("%u", unsigned{value});
}
CDumpContext& CDumpContext::operator<<(WORD value) {
    return Print("%u", unsigned{value});
}
CDumpContext& CDumpContext::operator<<(int value) {
    return Print("%d", value);
}
CDumpContext& CDumpContext::operator<<(UINT value) {
    return Print("%u", value);
}
CDumpContext& CDumpContext::operator<<(LONG value) {
    return Print("%ld", value);
}
CDumpContext& CDumpContext::operator<<(DWORD value) {
    return Print("%lu", value);
}
CDumpContext& CDumpContext::operator<<(LONGLONG value) {
    return Print("%lld", value);
}
CDumpContext& CDumpContext::operator<<(ULONGLONG value) {
    return Print("%llu", value);
}
CDumpContext& CDumpContext::operator<<(float value) {
    return Print("%g", static_cast<double>(value));
}
CDumpContext& CDumpContext::operator<<(double value) {
    return Print("%g", value);
}

CDumpContext& CDumpContext::Print(const char* format, ...) {
    char text[64];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    return *this << text;
}

void CDumpContext::HexDump(LPCTSTR line, const BYTE* bytes, int count, int width) {
    for (int i = 0; i < count; ++i) {
        if (width <= 1 || i % width == 0)
            *this << (i == 0 ? "" : "\n") << line;
        Print(" %02X", unsigned{bytes[i]});
    }
    if (count > 0)
        *this << "\n";
}

void CDumpContext::Flush() {
    if (m_pFile != nullptr)
        m_pFile->Flush();
}
