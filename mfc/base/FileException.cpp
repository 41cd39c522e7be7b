// SPDX-License-Identifier: MIT
// CFileException and CArchiveException: messages, and causes of error numbers.

#include <afx.h>

#include <cerrno>
#include <iterator>

#include "mfc/base/Resource.h"

IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

// Messages by cause. %s is the file name.
LPCTSTR const fileMessages[] = {
    _T("No error occurred."),
    _T("An error occurred while accessing %s."),
    _T("%s was not found."),
    _T("%s contains an incorrect path."),
    _T("%s could not be opened because there are too many open files."),
    _T("Access to %s was denied."),
    _T("An incorrect file handle was associated with %s."),
    _T("%s could not be removed because it is the current directory."),
    _T("%s could not be created because the directory is full."),
    _T("Seek failed on %s."),
    _T("A hardware error occurred while accessing %s."),
    _T("A sharing violation occurred while accessing %s."),
    _T("A locking violation occurred while accessing %s."),
    _T("The disk is full; %s could not be written."),
    _T("An attempt was made to access %s past its end."),
};

LPCTSTR const archiveMessages[] = {
    _T("No error occurred."),
    _T("An error occurred while accessing %s."),
    _T("An attempt was made to write to %s, which is being read."),
    _T("An attempt was made to access %s past its end."),
    _T("An attempt was made to read from %s, which is being written."),
    _T("%s has a bad format."),
    _T("%s contains an unexpected object."),
    _T("%s contains an object of an incorrect version."),
};

template <std::size_t COUNT> void FormatMessageOf(LPCTSTR const (&messages)[COUNT], int cause,
                                                  const CString& fileName, LPTSTR text, UINT maxLength) {
    if (cause < 0 || static_cast<std::size_t>(cause) >= COUNT)
        cause = CFileException::genericException;
    CString message;
    message.Format(messages[cause], fileName.IsEmpty() ? _T("an unnamed file") : fileName.GetString());
    AfxCopyMessage(text, maxLength, message);
}

} // namespace

CFileException::CFileException(int cause, LONG osError, LPCTSTR fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {
}

BOOL CFileException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) {
    CException::GetErrorMessage(text, maxLength, helpContext);
    FormatMessageOf(fileMessages, m_cause, m_strFileName, text, maxLength);
    return TRUE;
}

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_INVALID_ACCESS:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_CANNOT_MAKE:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_TARGET_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_SEEK:
    case ERROR_SEEK_ON_DEVICE:
    case ERROR_NEGATIVE_SEEK:
        return badSeek;
    case ERROR_CRC:
    case ERROR_BAD_UNIT:
    case ERROR_NOT_READY:
    case ERROR_BAD_COMMAND:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
        return lockViolation;
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

int CFileException::ErrnoToException(int errorNumber) {
    switch (errorNumber) {
    case 0:
        return none;
    case EPERM:
    case EACCES:
    case EEXIST:
    case EROFS:
    case EISDIR:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EDEADLOCK:
        return sharingViolation;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
        return badPath;
    case ENOSPC:
        return diskFull;
    case EINVAL:
    case ESPIPE:
        return badSeek;
    case EIO:
        return hardIO;
    default:
        return genericException;
    }
}

void CFileException::ThrowOsError(LONG osError, LPCTSTR fileName) {
    AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}

void CFileException::ThrowErrno(int errorNumber, LPCTSTR fileName) {
    const DWORD osError = _doserrno;
    AfxThrowFileException(ErrnoToException(errorNumber), static_cast<LONG>(osError), fileName);
}

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName) {
    throw new CFileException(cause, osError, fileName);
}

CArchiveException::CArchiveException(int cause, LPCTSTR archiveName)
    : m_cause(cause), m_strFileName(archiveName) {
}

BOOL CArchiveException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) {
    CException::GetErrorMessage(text, maxLength, helpContext);
    FormatMessageOf(archiveMessages, m_cause, m_strFileName, text, maxLength);
    return TRUE;
}

void AfxThrowArchiveException(int cause, LPCTSTR archiveName) {
    throw new CArchiveException(cause, archiveName);
}
