// SPDX-License-Identifier: MIT
// CFile, CStdioFile and CMemFile.
#pragma once

#include <cstdio>

#include <afx/Object.h>
#include <afx/String.h>
#include <afx/Time.h>

class CFileException;

/// Result of CFile::GetStatus.
struct CFileStatus {
    CTime m_ctime;
    CTime m_mtime;
    CTime m_atime;
    ULONGLONG m_size;
    /// Flags of CFile::Attribute.
    BYTE m_attribute;
    /// Full path, cut to MAX_PATH - 1 characters; empty if the name of an open file is unknown.
    TCHAR m_szFullName[MAX_PATH];
};

/// A binary file without a buffer. On failure, members throw CFileException* unless the comment names another
/// result.
class MFC_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT {
        modeRead = OF_READ,
        modeWrite = OF_WRITE,
        modeReadWrite = OF_READWRITE,
        shareCompat = OF_SHARE_COMPAT,
        shareExclusive = OF_SHARE_EXCLUSIVE,
        shareDenyWrite = OF_SHARE_DENY_WRITE,
        shareDenyRead = OF_SHARE_DENY_READ,
        shareDenyNone = OF_SHARE_DENY_NONE,
        /// Child processes do not inherit the handle.
        modeNoInherit = 0x0080,
        /// Creates the file, or truncates an existing file to length 0. With modeNoTruncate, an existing file
        /// keeps its content.
        modeCreate = OF_CREATE,
        modeNoTruncate = 0x2000,
        /// Text or binary mode of CStdioFile. CFile ignores the two flags.
        typeText = 0x4000,
        typeBinary = 0x8000
    };
    enum Attribute : BYTE {
        normal = 0x00,
        readOnly = FILE_ATTRIBUTE_READONLY,
        hidden = FILE_ATTRIBUTE_HIDDEN,
        system = FILE_ATTRIBUTE_SYSTEM,
        volume = 0x08,
        directory = FILE_ATTRIBUTE_DIRECTORY,
        archive = FILE_ATTRIBUTE_ARCHIVE
    };
    enum SeekPosition : UINT { begin = FILE_BEGIN, current = FILE_CURRENT, end = FILE_END };

    /// The value of m_hFile while the object has no open file.
    static const HANDLE hFileNull;

    CFile();
    /// Uses an open handle. The destructor does not close the handle.
    explicit CFile(HANDLE file);
    /// Opens the file; the destructor closes it.
    CFile(LPCTSTR fileName, UINT openFlags);
    ~CFile() override;

    /// Opens a file. Returns FALSE on failure; `*error` receives the cause unless `error` is null. The object
    /// must not have an open file.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    /// Closes the file, which must be open.
    virtual void Close();
    /// Closes the file if one is open. Ignores errors. CStdioFile does not close a stream that its
    /// constructor received.
    virtual void Abort();
    /// Returns a second object for the same open file; the caller owns it. CMemFile and CStdioFile do not
    /// support the function.
    virtual CFile* Duplicate() const;

    /// Reads up to `count` bytes, fewer only at the end of the file. Returns the number of bytes.
    virtual UINT Read(void* buffer, UINT count);
    /// Writes all bytes, or throws. The cause is diskFull if the medium took fewer bytes.
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();

    /// Moves the position and returns it, counted from the start of the file. A position before the start
    /// throws badSeek.
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// Truncates the file or extends it with undefined bytes. CFile and CStdioFile also move the position to
    /// the new end.
    virtual void SetLength(ULONGLONG length);
    virtual void LockRange(ULONGLONG position, ULONGLONG count);
    virtual void UnlockRange(ULONGLONG position, ULONGLONG count);

    /// The open file's name with extension, its name without extension, and its full path.
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    /// Changes the results of GetFileName(), GetFileTitle() and GetFilePath(). The file on the disk keeps its
    /// name.
    virtual void SetFilePath(LPCTSTR path);
    operator HANDLE() const { return m_hFile; }

    /// Fills `status` for the open file or for a file name. FALSE on failure. Without an open file, the first
    /// form fills in the name only.
    BOOL GetStatus(CFileStatus& status) const;
    static BOOL GetStatus(LPCTSTR fileName, CFileStatus& status);
    /// Sets attributes and times. A time of 0 leaves the file's time unchanged. The size is not set.
    static void SetStatus(LPCTSTR fileName, const CFileStatus& status);
    static void Rename(LPCTSTR oldName, LPCTSTR newName);
    static void Remove(LPCTSTR fileName);

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HANDLE m_hFile = hFileNull;

protected:
    CString m_strFileName;
    BOOL m_bCloseOnDelete = FALSE;
};

/// A file with the buffer of the C library. The mode is text unless typeBinary is set; in text mode a line
/// end is a single '\n' in memory. Duplicate, LockRange and UnlockRange throw CNotSupportedException*.
class MFC_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile();
    /// Uses an open stream. The destructor does not close the stream.
    explicit CStdioFile(FILE* stream);
    CStdioFile(LPCTSTR fileName, UINT openFlags);
    ~CStdioFile() override;

    /// Reads a line, at most `maxCount` - 1 characters, with the '\n' if the line's end was reached. Null at
    /// the end of the file.
    virtual LPTSTR ReadString(LPTSTR text, UINT maxCount);
    /// Reads a line of any length without its '\n'. At the end of the file, returns FALSE and an empty text.
    virtual BOOL ReadString(CString& text);
    virtual void WriteString(LPCTSTR text);

    BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr) override;
    void Close() override;
    void Abort() override;
    CFile* Duplicate() const override;
    UINT Read(void* buffer, UINT count) override;
    void Write(const void* buffer, UINT count) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG length) override;
    void LockRange(ULONGLONG position, ULONGLONG count) override;
    void UnlockRange(ULONGLONG position, ULONGLONG count) override;
    void Dump(CDumpContext& dc) const override;

    /// Null while the object has no open file.
    FILE* m_pStream = nullptr;
};

/// A file in memory. Members throw CMemoryException* if memory runs out. Duplicate, LockRange and UnlockRange
/// throw CNotSupportedException*.
class MFC_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// The memory grows in steps of `growBytes`. With 0 the memory does not grow, and writing beyond its
    /// end throws.
    explicit CMemFile(UINT growBytes = 1024);
    /// Calls Attach.
    CMemFile(BYTE* buffer, UINT size, UINT growBytes = 0);
    ~CMemFile() override;

    /// Uses `buffer` as the file's memory. With `growBytes` 0, the buffer's bytes are the content and the
    /// caller keeps the buffer. Otherwise the file starts empty, the buffer must come from malloc, and the
    /// file frees it.
    void Attach(BYTE* buffer, UINT size, UINT growBytes = 0);
    /// Empties the file and returns its memory; null if the file has none. The caller frees the memory with
    /// free(), unless the memory is a buffer that the caller attached with `growBytes` 0.
    BYTE* Detach();

    void Close() override;
    void Abort() override;
    CFile* Duplicate() const override;
    UINT Read(void* buffer, UINT count) override;
    void Write(const void* buffer, UINT count) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG length) override;
    void LockRange(ULONGLONG position, ULONGLONG count) override;
    void UnlockRange(ULONGLONG position, ULONGLONG count) override;
    void Dump(CDumpContext& dc) const override;

protected:
    /// These functions manage the file's memory. Alloc and Realloc return null if memory runs out.
    virtual BYTE* Alloc(SIZE_T bytes);
    virtual BYTE* Realloc(BYTE* block, SIZE_T bytes);
    virtual BYTE* Memcpy(BYTE* target, const BYTE* source, SIZE_T bytes);
    virtual void Free(BYTE* block);
    /// Makes the memory at least `length` bytes large.
    virtual void GrowFile(SIZE_T length);

    SIZE_T m_nGrowBytes = 0;
    SIZE_T m_nPosition = 0;
    SIZE_T m_nBufferSize = 0;
    SIZE_T m_nFileSize = 0;
    BYTE* m_lpBuffer = nullptr;
    BOOL m_bAutoDelete = FALSE;
};
