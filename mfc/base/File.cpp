// SPDX-License-Identifier: MIT
// CFile: files of the system, without a buffer.

#include <afx.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "mfc/base/FileTime.h"
#include "mfc/base/PathNames.h"

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

CString AfxFullPath(LPCTSTR name) {
    CString path;
    const DWORD needed = ::GetFullPathName(name, 0, nullptr, nullptr);
    if (needed == 0)
        return name;
    const DWORD length = ::GetFullPathName(name, needed, path.GetBuffer(static_cast<int>(needed)), nullptr);
    path.ReleaseBuffer(length < needed ? static_cast<int>(length) : 0);
    return path;
}

CString AfxLastPart(const CString& path) {
    const int slash =
        path.FindOneOf(_T("\\/")) < 0 ? -1 : std::max(path.ReverseFind('\\'), path.ReverseFind('/'));
    return path.Mid(slash + 1);
}

CString AfxWithoutExtension(const CString& name) {
    const int dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

namespace {

DWORD AccessOf(UINT openFlags) {
    switch (openFlags & (CFile::modeWrite | CFile::modeReadWrite)) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD ShareOf(UINT openFlags) {
    switch (openFlags & (CFile::shareExclusive | CFile::shareDenyWrite | CFile::shareDenyNone)) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: // exclusive; shareCompat has the same effect
        return 0;
    }
}

void CopyPath(TCHAR (&target)[MAX_PATH], const CString& path) {
    const int length = std::min(path.GetLength(), MAX_PATH - 1);
    std::memcpy(target, static_cast<LPCTSTR>(path), static_cast<std::size_t>(length));
    target[length] = '\0';
}

constexpr DWORD kSettableAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                      FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DIRECTORY |
                                      FILE_ATTRIBUTE_ARCHIVE;

/// Copies times, size and attributes. A template, because Windows has two record types with the same fields.
template <class Info> void TakeInfo(CFileStatus& status, const Info& info) {
    status.m_ctime = CTime(info.ftCreationTime);
    status.m_mtime = CTime(info.ftLastWriteTime);
    status.m_atime = CTime(info.ftLastAccessTime);
    status.m_size = static_cast<ULONGLONG>(info.nFileSizeHigh) << 32 | info.nFileSizeLow;
    status.m_attribute = static_cast<BYTE>(info.dwFileAttributes & kSettableAttributes);
}

} // namespace

CFile::CFile() = default;

CFile::CFile(HANDLE file) : m_hFile(file) {
    ASSERT(file != nullptr);
}

CFile::CFile(LPCTSTR fileName, UINT openFlags) {
    CFileException error;
    if (!CFile::Open(fileName, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() {
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        CFile::Abort();
}

BOOL CFile::Open(LPCTSTR fileName, UINT openFlags, CFileException* error) {
    ASSERT(fileName != nullptr);
    ASSERT(m_hFile == hFileNull);
    SECURITY_ATTRIBUTES security{sizeof security, nullptr, (openFlags & modeNoInherit) == 0};
    DWORD creation = OPEN_EXISTING;
    if (openFlags & modeCreate)
        creation = (openFlags & modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;

    m_bCloseOnDelete = FALSE;
    m_strFileName = AfxFullPath(fileName);
    const HANDLE file = ::CreateFile(fileName, AccessOf(openFlags), ShareOf(openFlags), &security, creation,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD osError = ::GetLastError();
        m_strFileName.Empty();
        if (error != nullptr) {
            error->m_lOsError = static_cast<LONG>(osError);
            error->m_cause = CFileException::OsErrorToException(static_cast<LONG>(osError));
            error->m_strFileName = fileName;
        }
        return FALSE;
    }
    m_hFile = file;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

void CFile::Close() {
    ASSERT(m_hFile != hFileNull);
    const HANDLE file = m_hFile;
    const CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull && !::CloseHandle(file))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        ::CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

CFile* CFile::Duplicate() const {
    ASSERT(m_hFile != hFileNull);
    auto file = std::make_unique<CFile>(); // first: an exception after DuplicateHandle() would leak `copy`
    file->m_strFileName = m_strFileName;
    HANDLE copy = nullptr;
    if (!::DuplicateHandle(::GetCurrentProcess(), m_hFile, ::GetCurrentProcess(), &copy, 0, FALSE,
                           DUPLICATE_SAME_ACCESS))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    file->m_hFile = copy;
    file->m_bCloseOnDelete = TRUE; // the copy is the new object's own, also of a borrowed handle
    return file.release();
}

UINT CFile::Read(void* buffer, UINT count) {
    ASSERT(m_hFile != hFileNull);
    DWORD read = 0;
    if (count != 0 && !::ReadFile(m_hFile, buffer, count, &read, nullptr))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    return read;
}

void CFile::Write(const void* buffer, UINT count) {
    ASSERT(m_hFile != hFileNull);
    DWORD written = 0;
    if (count == 0)
        return;
    if (!::WriteFile(m_hFile, buffer, count, &written, nullptr))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    if (written != count)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !::FlushFileBuffers(m_hFile))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
    ASSERT(m_hFile != hFileNull);
    ASSERT(from == begin || from == current || from == end);
    LARGE_INTEGER distance;
    distance.QuadPart = offset;
    LARGE_INTEGER position{};
    if (!::SetFilePointerEx(m_hFile, distance, &position, from))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
    ASSERT(m_hFile != hFileNull);
    LARGE_INTEGER position{};
    if (!::SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const {
    ASSERT(m_hFile != hFileNull);
    LARGE_INTEGER length{};
    if (!::GetFileSizeEx(m_hFile, &length))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG length) {
    Seek(static_cast<LONGLONG>(length), begin);
    if (!::SetEndOfFile(m_hFile))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
}

void CFile::LockRange(ULONGLONG position, ULONGLONG count) {
    ASSERT(m_hFile != hFileNull);
    if (!::LockFile(m_hFile, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32),
                    static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
}

void CFile::UnlockRange(ULONGLONG position, ULONGLONG count) {
    ASSERT(m_hFile != hFileNull);
    if (!::UnlockFile(m_hFile, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32),
                      static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strFileName);
}

CString CFile::GetFileName() const {
    return AfxLastPart(m_strFileName);
}

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFile::GetFilePath() const {
    return m_strFileName;
}

void CFile::SetFilePath(LPCTSTR path) {
    m_strFileName = path;
}

BOOL CFile::GetStatus(CFileStatus& status) const {
    status = CFileStatus{};
    CopyPath(status.m_szFullName, m_strFileName);
    if (m_hFile == hFileNull)
        return TRUE;
    BY_HANDLE_FILE_INFORMATION info;
    if (!::GetFileInformationByHandle(m_hFile, &info))
        return FALSE;
    TakeInfo(status, info);
    return TRUE;
}

BOOL CFile::GetStatus(LPCTSTR fileName, CFileStatus& status) {
    WIN32_FILE_ATTRIBUTE_DATA info;
    if (!::GetFileAttributesEx(fileName, GetFileExInfoStandard, &info))
        return FALSE;
    status = CFileStatus{};
    CopyPath(status.m_szFullName, AfxFullPath(fileName));
    TakeInfo(status, info);
    return TRUE;
}

void CFile::SetStatus(LPCTSTR fileName, const CFileStatus& status) {
    const auto fail = [&] { CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), fileName); };
    const DWORD old = ::GetFileAttributes(fileName);
    if (old == INVALID_FILE_ATTRIBUTES)
        fail();
    const DWORD wanted = status.m_attribute == normal ? FILE_ATTRIBUTE_NORMAL : status.m_attribute;
    // The system does not change the times of a read-only file. The file becomes writable first and
    // read-only last.
    if ((old & FILE_ATTRIBUTE_READONLY) && !::SetFileAttributes(fileName, FILE_ATTRIBUTE_NORMAL))
        fail();
    const FILETIME created = FileTimeOf(status.m_ctime.GetTime());
    const FILETIME accessed = FileTimeOf(status.m_atime.GetTime());
    const FILETIME modified = FileTimeOf(status.m_mtime.GetTime());
    const auto given = [](CTime time, const FILETIME& value) {
        return time.GetTime() != 0 ? &value : nullptr;
    };
    const FILETIME* const c = given(status.m_ctime, created);
    const FILETIME* const a = given(status.m_atime, accessed);
    const FILETIME* const m = given(status.m_mtime, modified);
    if (c != nullptr || a != nullptr || m != nullptr) {
        const HANDLE file = ::CreateFile(fileName, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            fail();
        const BOOL set = ::SetFileTime(file, c, a, m);
        const DWORD osError = ::GetLastError();
        ::CloseHandle(file);
        if (!set)
            CFileException::ThrowOsError(static_cast<LONG>(osError), fileName);
    }
    if (!::SetFileAttributes(fileName, wanted))
        fail();
}

void CFile::Rename(LPCTSTR oldName, LPCTSTR newName) {
    if (!::MoveFile(oldName, newName))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), oldName);
}

void CFile::Remove(LPCTSTR fileName) {
    if (!::DeleteFile(fileName))
        CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), fileName);
}

void CFile::AssertValid() const {
    CObject::AssertValid();
}

void CFile::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << " file " << m_strFileName;
}
