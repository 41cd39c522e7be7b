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

/// Version of the interface this library follows: 4.2.
#define _MFC_VER 0x0420

// Markers that existing programs write in their declarations. This library needs no special calling
// convention and no special storage, so they stand for nothing.
#define AFXAPI
#define AFX_CDECL
#define AFX_DATA
#define AFX_DATADEF
#define afx_msg

/// The file that ASSERT and DEBUG_NEW name. A source may replace it by an array of its own:
/// `#undef THIS_FILE` and `static char THIS_FILE[] = __FILE__;`.
#define THIS_FILE __FILE__

// A macro that declares an override cannot know whether the class around it spells out `override`; clang
// warns about the mixture, so the macros switch the warning off around what they declare.
#if defined(__clang__)
#define AFX_BEGIN_IMPLIED_OVERRIDES                                                                          \
    _Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Winconsistent-missing-override\"")
#define AFX_END_IMPLIED_OVERRIDES _Pragma("clang diagnostic pop")
#else
#define AFX_BEGIN_IMPLIED_OVERRIDES
#define AFX_END_IMPLIED_OVERRIDES
#endif

/// Reports a failed assertion to the debugger and to stderr, stops in the debugger if there is one, and ends
/// the process with status 3. Never returns. `expression` may be null.
[[noreturn]] MFC_API void AfxAssertFailed(LPCSTR expression, LPCSTR file, int line);

/// Asserts that `object` is not null and points to readable memory, then calls its AssertValid().
MFC_API void AfxAssertValidObject(const CObject* object, LPCSTR file, int line);

/// TRUE if all `bytes` from `address` on can be read, and also written if `readWrite` is TRUE. The answer
/// holds for the moment of the call only. FALSE for null.
MFC_API BOOL AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite = TRUE);

/// TRUE if `text` is readable up to its terminating zero, or, with a `length` of 0 or more, for `length`
/// characters.
MFC_API BOOL AfxIsValidString(LPCSTR text, int length = -1);

/// Ends the process with status 3 and without clean-up.
[[noreturn]] MFC_API void AfxAbort();

/// Writes formatted text to the debugger; see TRACE. Takes plain C arguments only.
MFC_API void AfxTraceFormatted(LPCTSTR format, ...);

/// The value of an argument as a C variadic function can take it. CString has an overload that gives its
/// characters; any other class with a copy constructor of its own is refused when compiling.
template <class T> constexpr T AfxVariadicArgument(T value) {
    static_assert(std::is_trivially_copyable_v<T>, "this class cannot be an argument of a format");
    return value;
}

/// Formats like CString::Format, CString arguments included, and writes the text to the debugger.
template <class... Args> void AfxTrace(LPCTSTR format, Args... args) {
    AfxTraceFormatted(format, AfxVariadicArgument(args)...);
}

/// ASSERT(f): in debug builds (_DEBUG) a false `f` ends the program; in others `f` is not evaluated.
/// VERIFY(f): the same, but `f` is evaluated in every build.
/// TRACE(format, ...): debug builds write to the debugger; in others the arguments are not evaluated.
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

#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)

/// Debug builds assert that `object` points to an object of class `class_name` or of one derived from it.
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

/// What DEBUG_NEW calls. File and line are there for the reader of a debugger's stack; memory comes from the
/// ordinary operator new and is given back by the ordinary operator delete.
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

/// Takes the text that objects write about themselves in their Dump members, and passes it to a file or,
/// without one, to the debugger.
class MFC_API CDumpContext {
public:
    /// `file` is not owned and must outlive the context; null stands for the debugger.
    explicit CDumpContext(CFile* file = nullptr);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// 0: objects inside a collection are left out; greater: they dump themselves too.
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

    /// Writes `count` bytes as rows of at most `width` two-digit hexadecimal numbers, each row led by `line`.
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
