// SPDX-License-Identifier: MIT
// CArchive: the buffer, numbers and texts. Objects and classes are in ArchiveObjects.cpp.

#include <afxtempl.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "mfc/base/ArchiveTables.h"

namespace {

constexpr UINT smallestBuffer = 128;

// The length before a stored text: one byte; or mark8 and a WORD; or mark8, mark16 and a DWORD. Counts
// (WriteCount) use mark16 and mark32 in the same way.
constexpr BYTE mark8 = 0xFF;
constexpr WORD mark16 = 0xFFFF;
constexpr WORD wideMark16 = 0xFFFE; // mark8 and wideMark16 precede the length of a text in UTF-16
constexpr DWORD mark32 = 0xFFFFFFFF;

} // namespace

CArchive::CArchive(CFile* file, UINT mode, int bufferSize, void* buffer)
    : m_pFile(file), m_nMode(mode), m_pBuffer(static_cast<BYTE*>(buffer)),
      m_nBufferSize(static_cast<UINT>(std::max(bufferSize, 0))) {
    ASSERT(file != nullptr);
    if (m_pBuffer == nullptr || m_nBufferSize == 0) {
        m_nBufferSize = std::max(m_nBufferSize, smallestBuffer);
        m_pOwnBuffer = AfxWithMemory([this] { return std::make_unique<BYTE[]>(m_nBufferSize); });
        m_pBuffer = m_pOwnBuffer.get();
    }
}

CArchive::~CArchive() {
    if (m_pFile == nullptr || (m_nMode & bNoFlushOnDelete) != 0)
        return;
    try {
        Close();
    } catch (CException* exception) {
        exception->Delete();
    }
}

void CArchive::RequireMode(Mode mode) const {
    if (m_pFile == nullptr)
        AfxThrowArchiveException(CArchiveException::genericException);
    if (mode == load && IsStoring())
        AfxThrowArchiveException(CArchiveException::writeOnly, FileName());
    if (mode == store && IsLoading())
        AfxThrowArchiveException(CArchiveException::readOnly, FileName());
}

CString CArchive::FileName() const {
    return m_pFile == nullptr ? CString() : m_pFile->GetFilePath();
}

void CArchive::Flush() {
    if (m_pFile == nullptr)
        return;
    if (IsLoading()) {
        if (!IsBufferEmpty())
            m_pFile->Seek(-static_cast<LONGLONG>(m_nFilled - m_nPosition), CFile::current);
        m_nPosition = m_nFilled = 0;
    } else if (m_nPosition > 0) {
        m_pFile->Write(m_pBuffer, m_nPosition);
        m_nPosition = 0;
    }
}

void CArchive::Close() {
    Flush();
    m_pFile = nullptr;
}

void CArchive::Abort() {
    m_pFile = nullptr;
    m_nPosition = m_nFilled = 0;
}

void CArchive::FillBuffer() {
    m_nPosition = m_nFilled = 0;
    m_nFilled = m_pFile->Read(m_pBuffer, m_nBufferSize);
}

UINT CArchive::Read(void* buffer, UINT count) {
    RequireMode(load);
    BYTE* target = static_cast<BYTE*>(buffer);
    UINT left = count;
    while (left > 0) {
        if (IsBufferEmpty()) {
            if (left >= m_nBufferSize) {
                const UINT direct = m_pFile->Read(target, left);
                return count - left + direct;
            }
            FillBuffer();
            if (m_nFilled == 0)
                break;
        }
        const UINT now = std::min(left, m_nFilled - m_nPosition);
        std::memcpy(target, m_pBuffer + m_nPosition, now);
        m_nPosition += now;
        target += now;
        left -= now;
    }
    return count - left;
}

void CArchive::ReadAll(void* buffer, UINT count) {
    if (Read(buffer, count) != count)
        AfxThrowArchiveException(CArchiveException::endOfFile, FileName());
}

void CArchive::Write(const void* buffer, UINT count) {
    RequireMode(store);
    const BYTE* source = static_cast<const BYTE*>(buffer);
    if (count > m_nBufferSize - m_nPosition) {
        Flush();
        if (count >= m_nBufferSize) {
            m_pFile->Write(source, count);
            return;
        }
    }
    if (count > 0)
        std::memcpy(m_pBuffer + m_nPosition, source, count);
    m_nPosition += count;
}

void CArchive::WriteString(LPCTSTR text) {
    if (text != nullptr)
        Write(text, static_cast<UINT>(_tcslen(text) * sizeof(TCHAR)));
}

UINT CArchive::SkipLineEnd() {
    constexpr UINT longest = 2 * sizeof(TCHAR);
    const UINT left = m_nFilled - m_nPosition;
    if (left < longest && m_nBufferSize >= longest) {
        std::memmove(m_pBuffer, m_pBuffer + m_nPosition, left);
        m_nPosition = 0;
        m_nFilled = left;
        m_nFilled += m_pFile->Read(m_pBuffer + left, m_nBufferSize - left);
    }
    TCHAR next[2] = {};
    std::memcpy(next, m_pBuffer + m_nPosition, std::min(m_nFilled - m_nPosition, longest));
    UINT length = 0;
    if (next[0] == '\n')
        length = 1;
    else if (next[0] == '\r' && next[1] == '\n')
        length = 2;
    m_nPosition += length * sizeof(TCHAR);
    return length;
}

LPTSTR CArchive::ReadString(LPTSTR text, UINT maxCount) {
    UINT length = 0;
    bool any = false;
    for (TCHAR ch; length < maxCount && Read(&ch, sizeof ch) == sizeof ch;) {
        any = true;
        if (ch == '\n') {
            if (length > 0 && text[length - 1] == '\r')
                --length;
            break;
        }
        text[length++] = ch;
        // The line end directly behind the last character that fits is not an empty line of its own.
        if (length == maxCount) {
            if (SkipLineEnd() == 1 && text[length - 1] == '\r')
                --length;
            break;
        }
    }
    text[length] = 0;
    return any || maxCount == 0 ? text : nullptr;
}

BOOL CArchive::ReadString(CString& text) {
    text.Empty();
    bool any = false;
    for (TCHAR ch; Read(&ch, sizeof ch) == sizeof ch;) {
        any = true;
        if (ch == '\n') {
            if (!text.IsEmpty() && text[text.GetLength() - 1] == '\r')
                text.Delete(text.GetLength() - 1);
            break;
        }
        text += ch;
    }
    return any;
}

void CArchive::WriteCount(DWORD_PTR count) {
    if (count < mark16) {
        *this << static_cast<WORD>(count);
        return;
    }
    *this << mark16;
    if (count < mark32) {
        *this << static_cast<DWORD>(count);
        return;
    }
    *this << mark32 << static_cast<ULONGLONG>(count);
}

DWORD_PTR CArchive::ReadCount() {
    const WORD brief = Get<WORD>();
    if (brief != mark16)
        return brief;
    const DWORD middle = Get<DWORD>();
    if (middle != mark32)
        return middle;
    const ULONGLONG full = Get<ULONGLONG>();
    if (full > MAXULONG_PTR)
        AfxThrowArchiveException(CArchiveException::badIndex, FileName());
    return static_cast<DWORD_PTR>(full);
}

CArchive& operator<<(CArchive& ar, const CString& text) {
    const DWORD length = static_cast<DWORD>(text.m_text.size());
    if constexpr (sizeof(TCHAR) > 1)
        ar << mark8 << wideMark16;
    if (length < mark8)
        ar << static_cast<BYTE>(length);
    else if (length < wideMark16)
        ar << mark8 << static_cast<WORD>(length);
    else
        ar << mark8 << mark16 << length;
    // CString keeps a length below INT_MAX, so the number of bytes fits a UINT.
    ar.Write(text.m_text.data(), length * UINT{sizeof(TCHAR)});
    return ar;
}

namespace {

/// Reads the length before a stored text. `isWide` becomes true if the text is in UTF-16.
DWORD ReadTextLength(CArchive& ar, bool& isWide) {
    BYTE brief = 0;
    ar >> brief;
    if (brief != mark8)
        return brief;
    WORD middle = 0;
    ar >> middle;
    if (middle == wideMark16) {
        if (isWide)
            AfxThrowArchiveException(CArchiveException::genericException);
        isWide = true;
        return ReadTextLength(ar, isWide);
    }
    DWORD length = middle;
    if (middle == mark16)
        ar >> length;
    return length;
}

/// Reads in pieces, so that a damaged length fails at the end of the file before much memory is allocated.
template <class Char> std::basic_string<Char> ReadCharacters(CArchive& ar, DWORD length) {
    std::basic_string<Char> text;
    Char piece[4096];
    while (length > 0) {
        const UINT now = std::min<DWORD>(length, _countof(piece));
        if (ar.Read(piece, now * UINT{sizeof(Char)}) != now * sizeof(Char))
            AfxThrowArchiveException(CArchiveException::endOfFile);
        AfxWithMemory([&] { text.append(piece, now); });
        length -= now;
    }
    if (text.size() > INT_MAX - 1)
        AfxThrowMemoryException();
    return text;
}

} // namespace

CArchive& operator>>(CArchive& ar, CString& text) {
    bool isWide = false;
    const DWORD length = ReadTextLength(ar, isWide);
    if (isWide) {
        const std::wstring loaded = ReadCharacters<wchar_t>(ar, length);
        text = CString(loaded.data(), static_cast<int>(loaded.size()));
    } else {
        const std::string loaded = ReadCharacters<char>(ar, length);
        text = CString(loaded.data(), static_cast<int>(loaded.size()));
    }
    return ar;
}

CArchive& operator<<(CArchive& ar, SIZE size) {
    return ar << size.cx << size.cy;
}
CArchive& operator<<(CArchive& ar, POINT point) {
    return ar << point.x << point.y;
}
CArchive& operator<<(CArchive& ar, const RECT& rect) {
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}
CArchive& operator>>(CArchive& ar, SIZE& size) {
    return ar >> size.cx >> size.cy;
}
CArchive& operator>>(CArchive& ar, POINT& point) {
    return ar >> point.x >> point.y;
}
CArchive& operator>>(CArchive& ar, RECT& rect) {
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}
