// SPDX-License-Identifier: MIT
// Assertions, traces, checks of memory, and CDumpContext.
#pragma once

#include <windows.h>

#include <tchar.h>

#include <climits>
#include <cstdarg>
#include <cstddef>
#include <type_traits>

#include <afx/Export.h>

class CFile;
class CObject;
class CString;

/// Version of the MFC interface that the library implements: 4.2.
#define _MFC_VER 0x0420

// Markers that existing programs write in declarations. The library needs no special calling convention or
// storage, so the markers are empty.
#define AFXAPI
#define AFX_CDECL
#define AFX_DATA
#define AFX_DATADEF
#define afx_msg

/// The file name that ASSERT, ASSERT_VALID and DEBUG_NEW pass on. A source may define its own array instead:
/// `#undef THIS_FILE` and `static char THIS_FILE[] = __FILE__;`.
#define THIS_FILE __FILE__

// clang warns if some overrides of a class use `override` and others do not. A macro cannot know what the
// class uses, so the macros disable the warning around their declarations.
#if defined(__clang__)
#define AFX_BEGIN_IMPLIED_OVERRIDES                                                                          \
    _Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Winconsistent-missing-override\"")
#define AFX_END_IMPLIED_OVERRIDES _Pragma("clang diagnostic pop")
#else
#define AFX_BEGIN_IMPLIED_OVERRIDES
#define AFX_END_IMPLIED_OVERRIDES
#endif

/// Writes a message to the debugger and to stderr, breaks into an attached debugger, and ends the process
/// with status 3. `expression` may be null.
[[noreturn]] MFC_API void AfxAssertFailed(LPCSTR expression, LPCSTR file, int line);

/// Asserts that `object` is not null and that its memory is readable, then calls AssertValid().
MFC_API void AfxAssertValidObject(const CObject* object, LPCSTR file, int line);

/// TRUE if `bytes` bytes from `address` on are readable and, with `readWrite`, writable at the moment of the
/// call. FALSE for null.
MFC_API BOOL AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite = TRUE);

/// TRUE if `text` is readable up to its terminating zero. With a `length` of 0 or more, TRUE if `length`
/// characters are readable.
MFC_API BOOL AfxIsValidString(LPCSTR text, int length = -1);
MFC_API BOOL AfxIsValidString(LPCWSTR text, int length = -1);

/// Ends the process with status 3 and without clean-up.
[[noreturn]] MFC_API void AfxAbort();

/// Writes formatted text to the debugger. The arguments must be plain C types; AfxTrace() also takes CString.
MFC_API void AfxTraceFormatted(LPCTSTR format, ...);

/// Converts an argument for a C variadic function. An overload converts a CString to its characters. The
/// compiler rejects any other class with its own copy constructor.
template <class T> constexpr T AfxVariadicArgument(T value) {
    static_assert(std::is_trivially_copyable_v<T>, "this class cannot be an argument of a format");
    return value;
}

/// Formats like CString::Format, with CString arguments, and writes the text to the debugger.
template <class... Args> void AfxTrace(LPCTSTR format, Args... args) {
    AfxTraceFormatted(format, AfxVariadicArgument(args)...);
}

/// ASSERT(f): in debug builds (_DEBUG) a false `f` ends the program; other builds do not evaluate `f`.
/// VERIFY(f): like ASSERT(f), but every build evaluates `f`. TRACE(format, ...): debug builds write to the
/// debugger; other builds do not evaluate the arguments.
#ifdef _DEBUG
#define ASSERT(f) ((f) ? (void)0 : ::AfxAssertFailed(#f, THIS_FILE, __LINE__))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, THIS_FILE, __LINE__))
#define ASSERT_POINTER(p, type)                                                                              \
    ASSERT(((p) != nullptr) && ::AfxIsValidAddress((const void*)(p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type)                                                                      \
    ASSERT(((p) == nullptr) || ::AfxIsValidAddress((const void*)(p), sizeof(type), FALSE))
#define TRACE(...) ::AfxTrace(__VA_ARGS__)
#define DEBUG_NEW new (THIS_FILE, __LINE__)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define ASSERT_POINTER(p, type) ((void)0)
#define ASSERT_NULL_OR_POINTER(p, type) ((void)0)
#define TRACE(...) (true ? (void)0 : ::AfxTrace(__VA_ARGS__))
#define DEBUG_NEW new
#endif

/// Checks of arguments. Like ASSERT(f), and in every build a false `f` calls `exception`: an expression that throws,
/// such as AfxThrowMemoryException(). ENSURE() and ENSURE_ARG() throw CInvalidArgException*.
#define ENSURE_THROW(f, exception)                                                                           \
    do {                                                                                                     \
        const bool afxHolds = !!(f);                                                                         \
        ASSERT(afxHolds&& #f);                                                                               \
        if (!afxHolds)                                                                                       \
            exception;                                                                                       \
    } while (false)
#define ENSURE(f) ENSURE_THROW(f, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(f) ENSURE(f)

#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)

/// In debug builds, asserts that `object` is of class `class_name` or of a class derived from it.
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

/// The operators behind DEBUG_NEW. A debugger shows file and line as arguments on the call stack. The
/// ordinary operators new and delete manage the memory.
inline void* operator new(std::size_t bytes, LPCSTR, int) {
    return ::operator new(bytes);
}
inline void* operator new[](std::size_t bytes, LPCSTR, int) {
    return ::operator new[](bytes);
}
inline void operator delete(void* block, LPCSTR, int) noexcept {
    ::operator delete(block);
}
inline void operator delete[](void* block, LPCSTR, int) noexcept {
    ::operator delete[](block);
}

/// Receives the text that objects write in their Dump members, and writes it to a file or to the debugger.
class MFC_API CDumpContext {
public:
    /// `file` must outlive the context, which does not own it. Null stands for the debugger.
    explicit CDumpContext(CFile* file = nullptr);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// With depth 0, arrays and lists do not dump their elements; with a greater depth they do. Maps never
    /// dump their elements.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int depth) { m_nDepth = depth; }

    CDumpContext& operator<<(LPCSTR text);
    CDumpContext& operator<<(LPCWSTR text);
    CDumpContext& operator<<(const void* pointer);
    CDumpContext& operator<<(const CObject* object);
    CDumpContext& operator<<(const CObject& object);
    CDumpContext& operator<<(const CString& text);
    CDumpContext& operator<<(BYTE value);
    CDumpContext& operator<<(WORD value);
    CDumpContext& operator<<(int value);
    CDumpContext& operator<<(UINT value);
    CDumpContext& operator<<(LONG value);
    CDumpContext& operator<<(DWORD value);
    CDumpContext& operator<<(LONGLONG value);
    CDumpContext& operator<<(ULONGLONG value);
    CDumpContext& operator<<(float value);
    CDumpContext& operator<<(double value);

    /// Writes `count` bytes as two-digit hexadecimal numbers, at most `width` in a row. Each row begins
    /// with `line`.
    void HexDump(LPCTSTR line, const BYTE* bytes, int count, int width);

    /// Flushes the file, if there is one.
    void Flush();

private:
    CDumpContext& Print(const char* format, ...);

    CFile* m_pFile;
    int m_nDepth = 0;
};

/// The context that writes to the debugger.
extern MFC_API CDumpContext afxDump;
