// SPDX-License-Identifier: MIT
// CStdioFile: a file with the buffer of the C library.

#include <afx.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <string>

#include "mfc/base/Resource.h"

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

HANDLE HandleOf(FILE* stream) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
}

/// The stream mode for a file that CFile has already opened, created or truncated.
const char* ModeOf(UINT openFlags) {
    const bool binary = (openFlags & CFile::typeBinary) != 0;
    switch (openFlags & (CFile::modeWrite | CFile::modeReadWrite)) {
    case CFile::modeWrite:
        return binary ? "wb" : "wt";
    case CFile::modeReadWrite:
        return binary ? "r+b" : "r+t";
    default:
        return binary ? "rb" : "rt";
    }
}

#ifdef _UNICODE
constexpr wchar_t kReplacement = 0xFFFD; // stands for what cannot be converted

/// The number of bytes of a character in `codePage`, by its first byte.
int LengthByFirstByte(BYTE first, UINT codePage) {
    if (codePage == CP_UTF8)
        return first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    return ::IsDBCSLeadByte(first) ? 2 : 1;
}

/// Reads the other bytes of a character and converts the character to at most `room` units. Returns the number of
/// units.
int ReadRestOfCharacter(FILE* stream, BYTE first, int length, UINT codePage, LPWSTR units, int room) {
    char bytes[4] = {static_cast<char>(first)};
    int count = 1;
    for (; count < length; ++count) {
        const int next = std::fgetc(stream);
        const bool belongs = codePage == CP_UTF8 ? (next & 0xC0) == 0x80 : next >= ' ';
        if (next == EOF || !belongs) {
            std::ungetc(next, stream);
            break;
        }
        bytes[count] = static_cast<char>(next);
    }
    wchar_t converted[2] = {};
    const int made = ::MultiByteToWideChar(CP_ACP, 0, bytes, count, converted, 2);
    const bool fits = made > 0 && made <= room;
    std::copy_n(fits ? converted : &kReplacement, fits ? made : 1, units);
    return fits ? made : 1;
}

/// fgets() with the bytes converted from the code page of the process. A surrogate pair is not divided: a pair after
/// the first position waits for the next call, and a pair that never fits becomes U+FFFD.
LPWSTR ReadPiece(FILE* stream, LPWSTR text, int limit) {
    const UINT codePage = ::GetACP();
    int length = 0;
    while (length < limit - 1 && (length == 0 || text[length - 1] != L'\n')) {
        const int first = std::fgetc(stream);
        if (first == EOF)
            break;
        if (first < 0x80) {
            text[length++] = static_cast<wchar_t>(first);
            continue;
        }
        const int room = std::min(limit - 1 - length, 2);
        const int bytes = LengthByFirstByte(static_cast<BYTE>(first), codePage);
        if (bytes == 4 && room < 2 && length > 0) {
            std::ungetc(first, stream);
            break;
        }
        length += ReadRestOfCharacter(stream, static_cast<BYTE>(first), bytes, codePage, text + length, room);
    }
    if (length == 0 && limit > 1)
        return nullptr;
    text[length] = 0;
    return text;
}
#else
LPSTR ReadPiece(FILE* stream, LPSTR text, int limit) {
    return std::fgets(text, limit, stream);
}
#endif

} // namespace

CStdioFile::CStdioFile() = default;

CStdioFile::CStdioFile(FILE* stream) : m_pStream(stream) {
    ASSERT(stream != nullptr);
    m_hFile = HandleOf(stream);
}

CStdioFile::CStdioFile(LPCTSTR fileName, UINT openFlags) {
    CFileException error;
    if (!CStdioFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile() {
    if (m_pStream != nullptr && m_bCloseOnDelete)
        CStdioFile::Abort();
    m_hFile = hFileNull;
}

BOOL CStdioFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    m_pStream = nullptr;
    if (!CFile::Open(fileName, openFlags & ~(typeText | typeBinary), error))
        return FALSE;
    int flags = (openFlags & typeBinary) ? _O_BINARY : _O_TEXT;
    if ((openFlags & (modeWrite | modeReadWrite)) == 0)
        flags |= _O_RDONLY;
    const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(m_hFile), flags);
    if (descriptor != -1)
        m_pStream = ::_fdopen(descriptor, ModeOf(openFlags));
    if (m_pStream != nullptr)
        return TRUE;

    if (error != nullptr) {
        error->m_lOsError = -1;
        error->m_cause = CFileException::ErrnoToException(errno);
        error->m_strFileName = fileName;
    }
    if (descriptor != -1) {
        ::_close(descriptor); // also closes the handle
        m_hFile = hFileNull;
    }
    CFile::Abort();
    return FALSE;
}

void CStdioFile::Close() {
    ASSERT(m_pStream != nullptr);
    FILE* const stream = m_pStream;
    const CString name = m_strFileName;
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (stream != nullptr && std::fclose(stream) != 0)
        CFileException::ThrowErrno(errno, name);
}

void CStdioFile::Abort() {
    if (m_pStream != nullptr && m_bCloseOnDelete)
        std::fclose(m_pStream);
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

CFile* CStdioFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

UINT CStdioFile::Read(void* buffer, UINT count) {
    ASSERT(m_pStream != nullptr);
    if (count == 0)
        return 0;
    const std::size_t read = std::fread(buffer, 1, count, m_pStream);
    if (read == 0 && std::ferror(m_pStream)) {
        std::clearerr(m_pStream);
        CFileException::ThrowErrno(errno, m_strFileName);
    }
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* buffer, UINT count) {
    ASSERT(m_pStream != nullptr);
    if (std::fwrite(buffer, 1, count, m_pStream) != count)
        CFileException::ThrowErrno(errno, m_strFileName);
}

LPTSTR CStdioFile::ReadString(LPTSTR text, UINT maxCount) {
    ASSERT(m_pStream != nullptr);
    if (maxCount == 0)
        return nullptr;
    const int limit = static_cast<int>(maxCount < 0x7FFFFFFF ? maxCount : 0x7FFFFFFF);
    LPTSTR const result = ReadPiece(m_pStream, text, limit);
    if (result == nullptr && std::ferror(m_pStream)) {
        std::clearerr(m_pStream);
        CFileException::ThrowErrno(errno, m_strFileName);
    }
    return result;
}

BOOL CStdioFile::ReadString(CString& text) {
    text.Empty();
    TCHAR piece[512];
    bool any = false;
    while (ReadString(piece, _countof(piece)) != nullptr) {
        any = true;
        const std::size_t length = _tcslen(piece);
        if (length > 0 && piece[length - 1] == '\n') {
            piece[length - 1] = '\0';
            text += piece;
            break;
        }
        text += piece;
    }
    return any;
}

void CStdioFile::WriteString(LPCTSTR text) {
    ASSERT(m_pStream != nullptr);
    if (std::fputs(AfxBytes(text).c_str(), m_pStream) < 0)
        CFileException::ThrowErrno(errno, m_strFileName);
}

void CStdioFile::Flush() {
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0)
        CFileException::ThrowErrno(errno, m_strFileName);
}

ULONGLONG CStdioFile::Seek(LONGLONG offset, UINT from) {
    ASSERT(m_pStream != nullptr);
    if (::_fseeki64(m_pStream, offset, static_cast<int>(from)) != 0)
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const {
    ASSERT(m_pStream != nullptr);
    const long long position = ::_ftelli64(m_pStream);
    if (position < 0)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const {
    ASSERT(m_pStream != nullptr);
    std::fflush(m_pStream);
    return CFile::GetLength();
}

void CStdioFile::SetLength(ULONGLONG length) {
    Flush();
    if (::_chsize_s(::_fileno(m_pStream), static_cast<long long>(length)) != 0)
        CFileException::ThrowErrno(errno, m_strFileName);
    Seek(0, end);
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CStdioFile::Dump(CDumpContext& dc) const {
    CFile::Dump(dc);
}
