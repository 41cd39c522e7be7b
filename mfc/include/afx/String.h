// SPDX-License-Identifier: MIT
// CString, text in the code page of the process or, with UNICODE, in UTF-16.
#pragma once

#include <string>

#include <afx/Diagnostics.h>

class CArchive;

/// The characters of a CString.
typedef std::basic_string<TCHAR> AfxText;

/// Text in the code page of the process; with UNICODE, text in UTF-16. Copies have their own characters; a move
/// transfers them. Positions and lengths count TCHARs: bytes or, with UNICODE, UTF-16 code units. If memory runs
/// out, or if the text would exceed INT_MAX - 1 TCHARs, members throw
/// CMemoryException* and the string stays unchanged. In GetAt(), SetAt() and operator[], a position outside
/// the string asserts in debug builds and throws CInvalidArgException* in other builds. A count beyond the
/// end means "up to the end"; a negative count means 0.
class MFC_API CString {
public:
    CString() noexcept;
    CString(const CString& other);
    CString(CString&& other) noexcept;
    /// `repeat` copies of `ch`; an empty string if `repeat` is 0 or less.
    CString(TCHAR ch, int repeat = 1);
    /// Null makes an empty string. MAKEINTRESOURCE(id) loads the string resource; a missing resource makes an
    /// empty string.
    /// A text in the other character set is converted. If the conversion fails, the string is empty.
    CString(LPCSTR text);
    CString(LPCWSTR text);
    CString(const unsigned char* text);
    /// The first `length` characters; zeros among them are copied too. `length` counts bytes or UTF-16 code
    /// units, as `text` has them.
    CString(LPCSTR text, int length);
    CString(LPCWSTR text, int length);
    ~CString();

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCSTR text);
    CString& operator=(LPCWSTR text);
    CString& operator=(const unsigned char* text);
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

    /// The characters with a terminating zero, valid until the string changes.
    operator LPCTSTR() const;
    LPCTSTR GetString() const;

    /// The result is -1, 0 or 1. Compare orders by the values of the TCHARs, CompareNoCase by those of
    /// the lower-case texts, Collate and CollateNoCase by the user's locale. Null counts as an empty text.
    int Compare(LPCTSTR other) const;
    int CompareNoCase(LPCTSTR other) const;
    int Collate(LPCTSTR other) const;
    int CollateNoCase(LPCTSTR other) const;

    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    /// The longest beginning that has only characters of `set` (SpanIncluding), or that has no character of
    /// `set` (SpanExcluding).
    CString SpanIncluding(LPCTSTR set) const;
    CString SpanExcluding(LPCTSTR set) const;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();

    /// Remove the white space, the characters equal to `target`, or the characters that are in `targets`, at
    /// the left, the right or both ends.
    CString& TrimLeft();
    CString& TrimLeft(TCHAR target);
    CString& TrimLeft(LPCTSTR targets);
    CString& TrimRight();
    CString& TrimRight(TCHAR target);
    CString& TrimRight(LPCTSTR targets);
    CString& Trim();
    CString& Trim(TCHAR target);
    CString& Trim(LPCTSTR targets);

    /// Position of the first match at or after `start`; -1 if there is none, or if `start` is outside the
    /// string. ReverseFind() returns the last match, FindOneOf() the first character that is in `set`.
    int Find(TCHAR ch, int start = 0) const;
    int Find(LPCTSTR sub, int start = 0) const;
    int ReverseFind(TCHAR ch) const;
    int FindOneOf(LPCTSTR set) const;

    /// Return the number of replacements (Remove: of removed characters). An empty or null `oldText` matches
    /// nothing; a null `newText` counts as empty.
    int Replace(TCHAR oldChar, TCHAR newChar);
    int Replace(LPCTSTR oldText, LPCTSTR newText);
    int Remove(TCHAR ch);
    /// Return the new length. An index beyond the end stands for the end, a negative index for the beginning.
    int Insert(int index, TCHAR ch);
    int Insert(int index, LPCTSTR text);
    int Delete(int index, int count = 1);

    /// Returns the next piece between characters of `separators`. The search starts at `position`; the call
    /// sets `position` to the start of the next search. Empty pieces are skipped. If no piece is left, the
    /// result is empty and `position` is -1. Without separators, the rest of the text is one piece.
    CString Tokenize(LPCTSTR separators, int& position) const;

    /// Replace the text with formatted text (AppendFormat: append formatted text), as printf does. %s and %c take
    /// TCHARs, %hs and %hc take char, %ls and %lc take wchar_t; %S and %C take the character type that TCHAR is not.
    /// %s accepts CString arguments. With an `id`, the format is a string resource; if the resource does not exist, the
    /// text stays unchanged. If formatting fails, Format empties the text and AppendFormat leaves the text
    /// unchanged.
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

    /// Replace the text with a message with inserts (%1, %2!d!, ...), as the Win32 function FormatMessage
    /// does. Throws CMemoryException* if the system cannot create the message.
    template <class... Args> void FormatMessage(LPCTSTR format, Args... args) {
        FormatMessagePlain(format, AfxVariadicArgument(args)...);
    }
    template <class... Args> void FormatMessage(UINT id, Args... args) {
        CString format;
        if (format.LoadResource(id))
            FormatMessagePlain(format.GetString(), AfxVariadicArgument(args)...);
    }

    /// Loads a string resource from the resource chain, or a text of the library (see AfxLoadString()). If
    /// neither exists, returns FALSE and empties the string.
    BOOL LoadString(UINT id) { return LoadResource(id); }

    /// A writable buffer for at least `minLength` characters and a terminating zero. Call ReleaseBuffer()
    /// before any other member.
    LPTSTR GetBuffer(int minLength);
    LPTSTR GetBuffer();
    /// A writable buffer; the string has the length `length` from now on.
    LPTSTR GetBufferSetLength(int length);
    /// Ends the use of the buffer and sets the new length. -1 stands for the position of the first zero.
    void ReleaseBuffer(int newLength = -1);
    void FreeExtra();
    /// LockBuffer() returns the writable buffer. UnlockBuffer() does nothing, because strings never share
    /// their characters in this library.
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
    void Join(LPCTSTR text, std::size_t length);
    std::size_t CheckedIndex(int index) const;

    AfxText m_text;
};

/// Converts a CString for a variadic function. The characters are valid while the string exists.
inline LPCTSTR AfxVariadicArgument(const CString& text) {
    return text.GetString();
}

MFC_API CString operator+(const CString& left, const CString& right);
MFC_API CString operator+(const CString& left, LPCTSTR right);
MFC_API CString operator+(LPCTSTR left, const CString& right);
MFC_API CString operator+(const CString& left, TCHAR right);
MFC_API CString operator+(TCHAR left, const CString& right);

/// The operators compare like CString::Compare, which stops at a zero. Only == and != of two CStrings include
/// the characters after a zero.
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

/// Stores the length and then the characters. A length below 255 takes 1 byte, a length below 65,534 takes
/// 3 bytes, a larger length takes 7 bytes. With UNICODE, three bytes before the length mark UTF-16 characters.
/// Loading accepts both kinds and converts.
MFC_API CArchive& operator<<(CArchive& ar, const CString& text);
MFC_API CArchive& operator>>(CArchive& ar, CString& text);

/// Sets `part` to piece number `index`, counted from 0, of `full`. `separator` separates the pieces. If the
/// piece does not exist, returns FALSE and empties `part`.
MFC_API BOOL AfxExtractSubString(CString& part, LPCTSTR full, int index, TCHAR separator = _T('\n'));
