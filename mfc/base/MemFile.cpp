// SPDX-License-Identifier: MIT
// CMemFile: a file in memory.

#include <afx.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT growBytes) : m_nGrowBytes(growBytes), m_bAutoDelete(TRUE) {
}

CMemFile::CMemFile(BYTE* buffer, UINT size, UINT growBytes) {
    CMemFile::Attach(buffer, size, growBytes);
}

CMemFile::~CMemFile() {
    CMemFile::Abort();
}

void CMemFile::Attach(BYTE* buffer, UINT size, UINT growBytes) {
    ASSERT(m_lpBuffer == nullptr);
    m_nGrowBytes = growBytes;
    m_nPosition = 0;
    m_nBufferSize = size;
    m_nFileSize = growBytes == 0 ? size : 0;
    m_lpBuffer = buffer;
    m_bAutoDelete = growBytes != 0;
}

BYTE* CMemFile::Detach() {
    BYTE* const buffer = m_lpBuffer;
    m_lpBuffer = nullptr;
    m_nFileSize = m_nBufferSize = m_nPosition = 0;
    return buffer;
}

void CMemFile::Close() {
    Abort();
}

void CMemFile::Abort() {
    BYTE* const buffer = Detach();
    if (buffer != nullptr && m_bAutoDelete)
        Free(buffer);
}

CFile* CMemFile::Duplicate() const {
    AfxThrowNotSupportedException();
}

UINT CMemFile::Read(void* buffer, UINT count) {
    if (m_nPosition >= m_nFileSize)
        return 0;
    const SIZE_T bytes = std::min<SIZE_T>(count, m_nFileSize - m_nPosition);
    Memcpy(static_cast<BYTE*>(buffer), m_lpBuffer + m_nPosition, bytes);
    m_nPosition += bytes;
    return static_cast<UINT>(bytes);
}

void CMemFile::Write(const void* buffer, UINT count) {
    if (count == 0)
        return;
    if (m_nPosition > static_cast<SIZE_T>(-1) - count)
        AfxThrowMemoryException();
    const SIZE_T after = m_nPosition + count;
    if (after > m_nBufferSize)
        GrowFile(after);
    if (m_nPosition > m_nFileSize) // Seek() went beyond the end: fill the bytes between with zeros
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    Memcpy(m_lpBuffer + m_nPosition, static_cast<const BYTE*>(buffer), count);
    m_nPosition = after;
    m_nFileSize = std::max(m_nFileSize, after);
}

void CMemFile::Flush() {
}

ULONGLONG CMemFile::Seek(LONGLONG offset, UINT from) {
    ASSERT(from == begin || from == current || from == end);
    const SIZE_T base = from == begin ? 0 : from == current ? m_nPosition : m_nFileSize;
    const ULONGLONG target = static_cast<ULONGLONG>(base) + static_cast<ULONGLONG>(offset);
    const bool before = offset < 0 && static_cast<ULONGLONG>(base) + static_cast<ULONGLONG>(offset) > base;
    if (before || target > static_cast<SIZE_T>(-1))
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    m_nPosition = static_cast<SIZE_T>(target);
    return target;
}

ULONGLONG CMemFile::GetPosition() const {
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const {
    return m_nFileSize;
}

void CMemFile::SetLength(ULONGLONG length) {
    if (length > static_cast<SIZE_T>(-1))
        AfxThrowMemoryException();
    const auto bytes = static_cast<SIZE_T>(length);
    if (bytes > m_nBufferSize)
        GrowFile(bytes);
    m_nPosition = std::min(m_nPosition, bytes);
    m_nFileSize = bytes;
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG) {
    AfxThrowNotSupportedException();
}

void CMemFile::Dump(CDumpContext& dc) const {
    CFile::Dump(dc);
}

BYTE* CMemFile::Alloc(SIZE_T bytes) {
    return static_cast<BYTE*>(std::malloc(bytes));
}

BYTE* CMemFile::Realloc(BYTE* block, SIZE_T bytes) {
    return static_cast<BYTE*>(std::realloc(block, bytes));
}

BYTE* CMemFile::Memcpy(BYTE* target, const BYTE* source, SIZE_T bytes) {
    if (bytes != 0)
        std::memcpy(target, source, bytes);
    return target;
}

void CMemFile::Free(BYTE* block) {
    std::free(block);
}

void CMemFile::GrowFile(SIZE_T length) {
    if (length <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0) // the memory has a fixed size
        AfxThrowMemoryException();
    SIZE_T size = m_nBufferSize;
    const SIZE_T steps = (length - size + m_nGrowBytes - 1) / m_nGrowBytes;
    if (steps > (static_cast<SIZE_T>(-1) - size) / m_nGrowBytes)
        AfxThrowMemoryException();
    size += steps * m_nGrowBytes;
    BYTE* const grown = m_lpBuffer == nullptr ? Alloc(size) : Realloc(m_lpBuffer, size);
    if (grown == nullptr)
        AfxThrowMemoryException();
    m_lpBuffer = grown;
    m_nBufferSize = size;
}
