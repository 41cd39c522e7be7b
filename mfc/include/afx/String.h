#pragma once

#include <string>

#include <afx/Diagnostics.h>

class CArchive;

/// Text in the code page of the process. Each object owns its characters; copying copies them, moving does
/// not. Positions and lengths count bytes. What needs memory throws CMemoryException* when there is none or
/// when the text would exceed INT_MAX characters, and leaves the string as it was. A position outside the
/// string asserts in debug builds and throws CInvalidArgException* in others; a count beyond the end means
/// "up to the end", a negative one 0.
class MFC_API CString {
public:
    CString() noexcept;
    CString(const CString& other);
    CString(CString&& other) noexcept;
    /// `repeat` times `ch`; empty if `repeat` is 0 or less.
    CString(TCHAR ch, int repeat = 1);
    /// Null gives an empty string; MAKEINTRESOURCE(id) loads that string resource (empty if there is none).
    CString(LPCTSTR text);
    CString(const unsigned char* text);
    /// The first `length` characters, zeros included.
    CString(LPCTSTR text, int length);
    /// Converts from UTF-16.
    CString(LPCWSTR text);
    CString(LPCWSTR text, int length);
    ~CString();

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCTSTR text);
    CString& operator=(const unsigned char* text);
    CString& operator=(LPCWSTR text);
    CString& operator=(TCHAR ch);

    CString& operator+=(const CString& other);
    CString& operator+=(LPCTSTR text);
    CString& operator+=(TCHAR ch);
    void Append(LPCTSTR text);
    void Append(LPCTSTR text, int length);

    int GetLength() const;
    BOOL IsEmpty() const;
    void Empty();
    TCHAR GetAt(int index) const;
    TCHAR operator[](int index) const;
    void SetAt(int index, TCHAR ch);

    /// The characters with a zero behind them, valid until the string is next changed.
    operator LPCTSTR() const;
    LPCTSTR GetString() const;

    /// Less than, equal to or greater than 0. Compare goes by byte values, CompareNoCase by those of the
    /// lower-case texts, Collate and CollateNoCase by the order of the user's locale. Null counts as an empty
    /// text.
    int Compare(LPCTSTR other) const;
    int CompareNoCase(LPCTSTR other) const;
    int Collate(LPCTSTR other) const;
    int CollateNoCase(LPCTSTR other) const;

    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    /// The longest beginning that consists of characters of `set`, or of characters outside it.
    CString SpanIncluding(LPCTSTR set) const;
    CString SpanExcluding(LPCTSTR set) const;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();

    /// Remove white space, one character, or every character of a set, from the end or ends named.
    CString& TrimLeft();
    CString& TrimLeft(TCHAR target);
    CString& TrimLeft(LPCTSTR targets);
    CString& TrimRight();
    CString& TrimRight(TCHAR target);
    CString& TrimRight(LPCTSTR targets);
    CString& Trim();
    CString& Trim(TCHAR target);
    CString& Trim(LPCTSTR targets);

    /// Position of the first match at or behind `start`, else -1; -1 also for a start outside the string.
    int Find(TCHAR ch, int start = 0) const;
    int Find(LPCTSTR sub, int start = 0) const;
    int ReverseFind(TCHAR ch) const;
    int FindOneOf(LPCTSTR set) const;

    /// Return how many places were changed. An empty or null `oldText` matches nothing; a null `newText` is
    /// empty.
    int Replace(TCHAR oldChar, TCHAR newChar);
    int Replace(LPCTSTR oldText, LPCTSTR newText);
    int Remove(TCHAR ch);
    /// Return the new length. A position behind the end means the end, a negative one the beginning.
    int Insert(int index, TCHAR ch);
    int Insert(int index, LPCTSTR text);
    int Delete(int index, int count = 1);

    /// The next piece between characters of `separators`, from `position` on, which moves behind it; empty
    /// pieces are skipped. At the end the result is empty and `position` -1.
    CString Tokenize(LPCTSTR separators, int& position) const;

    /// Replace (Append: extend) the text by what printf would write. CString arguments serve for %s. Any
    /// length is possible. With an `id`, the format is that string resource; nothing changes if there is
    /// none.
    template <class... Args> void Format(LPCTSTR format, Args... args) {
        FormatPlain(format, AfxVariadicArgument(args)...);
    }
    template <class... Args> void Format(UINT id, Args... args) {
        CString format;
        if (format.LoadResource(id))
            FormatPlain(format.GetString(), AfxVariadicArgument(args)...);
    }
    template <class... Args> void AppendFormat(LPCTSTR format, Args... args) {
        AppendFormatPlain(format, AfxVariadicArgument(args)...);
    }
    template <class... Args> void AppendFormat(UINT id, Args... args) {
        CString format;
        if (format.LoadResource(id))
            AppendFormatPlain(format.GetString(), AfxVariadicArgument(args)...);
    }
    void FormatV(LPCTSTR format, va_list args);

    /// Replace the text by a message with inserts (%1, %2!d!, ...), as the system's function of that name
    /// reads them. Throws CMemoryException* if the system cannot make the message.
    template <class... Args> void FormatMessage(LPCTSTR format, Args... args) {
        FormatMessagePlain(format, AfxVariadicArgument(args)...);
    }
    template <class... Args> void FormatMessage(UINT id, Args... args) {
        CString format;
        if (format.LoadResource(id))
            FormatMessagePlain(format.GetString(), AfxVariadicArgument(args)...);
    }

    /// Replaces the text by a string resource, looked up through the chain of modules. FALSE, and an empty
    /// string, if there is none.
    BOOL LoadString(UINT id) { return LoadResource(id); }

    /// Characters to write to, with room for at least `minLength` of them and a terminating zero.
    /// ReleaseBuffer must follow before any other member is called.
    LPTSTR GetBuffer(int minLength);
    LPTSTR GetBuffer();
    /// Characters to write to; the length of the string is `length` from now on.
    LPTSTR GetBufferSetLength(int length);
    /// Ends what GetBuffer began: the new length, or -1 for "up to the first zero".
    void ReleaseBuffer(int newLength = -1);
    void FreeExtra();
    /// As GetBuffer() and ReleaseBuffer(); characters are never shared between strings here.
    LPTSTR LockBuffer();
    void UnlockBuffer();

private:
    friend MFC_API CString operator+(const CString& left, const CString& right);
    friend MFC_API CString operator+(const CString& left, LPCTSTR right);
    friend MFC_API CString operator+(LPCTSTR left, const CString& right);
    friend MFC_API CString operator+(const CString& left, TCHAR right);
    friend MFC_API CString operator+(TCHAR left, const CString& right);
    friend MFC_API bool operator==(const CString& left, const CString& right);
    friend MFC_API CArchive& operator<<(CArchive& ar, const CString& text);
    friend MFC_API CArchive& operator>>(CArchive& ar, CString& text);

    BOOL LoadResource(UINT id);
    void FormatPlain(LPCTSTR format, ...);
    void AppendFormatPlain(LPCTSTR format, ...);
    void FormatMessagePlain(LPCTSTR format, ...);
    void AppendFormatted(std::size_t keep, LPCTSTR format, va_list args);
    void Join(const char* text, std::size_t length);
    std::size_t CheckedIndex(int index) const;

    std::string m_text;
};

/// A CString as the argument of a variadic function: its characters, valid as long as the string is.
inline LPCTSTR AfxVariadicArgument(const CString& text) {
    return text.GetString();
}

MFC_API CString operator+(const CString& left, const CString& right);
MFC_API CString operator+(const CString& left, LPCTSTR right);
MFC_API CString operator+(LPCTSTR left, const CString& right);
MFC_API CString operator+(const CString& left, TCHAR right);
MFC_API CString operator+(TCHAR left, const CString& right);

/// Comparisons are those of CString::Compare; two CStrings are compared with the zeros inside them.
MFC_API bool operator==(const CString& left, const CString& right);
inline bool operator==(const CString& left, LPCTSTR right) {
    return left.Compare(right) == 0;
}
inline bool operator==(LPCTSTR left, const CString& right) {
    return right.Compare(left) == 0;
}
inline bool operator!=(const CString& left, const CString& right) {
    return !(left == right);
}
inline bool operator!=(const CString& left, LPCTSTR right) {
    return left.Compare(right) != 0;
}
inline bool operator!=(LPCTSTR left, const CString& right) {
    return right.Compare(left) != 0;
}
inline bool operator<(const CString& left, const CString& right) {
    return left.Compare(right) < 0;
}
inline bool operator<(const CString& left, LPCTSTR right) {
    return left.Compare(right) < 0;
}
inline bool operator<(LPCTSTR left, const CString& right) {
    return right.Compare(left) > 0;
}
inline bool operator>(const CString& left, const CString& right) {
    return left.Compare(right) > 0;
}
inline bool operator>(const CString& left, LPCTSTR right) {
    return left.Compare(right) > 0;
}
inline bool operator>(LPCTSTR left, const CString& right) {
    return right.Compare(left) < 0;
}
inline bool operator<=(const CString& left, const CString& right) {
    return left.Compare(right) <= 0;
}
inline bool operator<=(const CString& left, LPCTSTR right) {
    return left.Compare(right) <= 0;
}
inline bool operator<=(LPCTSTR left, const CString& right) {
    return right.Compare(left) >= 0;
}
inline bool operator>=(const CString& left, const CString& right) {
    return left.Compare(right) >= 0;
}
inline bool operator>=(const CString& left, LPCTSTR right) {
    return left.Compare(right) >= 0;
}
inline bool operator>=(LPCTSTR left, const CString& right) {
    return right.Compare(left) <= 0;
}

/// Length, then characters; the length takes 1 byte below 255, else 3 or 7.
MFC_API CArchive& operator<<(CArchive& ar, const CString& text);
MFC_API CArchive& operator>>(CArchive& ar, CString& text);

/// Sets `part` to piece number `index` (from 0) of `full`, whose pieces are separated by `separator`. FALSE,
/// and an empty `part`, if there is no such piece.
MFC_API BOOL AfxExtractSubString(CString& part, LPCTSTR full, int index, TCHAR separator = _T('\n'));
