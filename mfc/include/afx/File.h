#pragma once

#include <cstdio>

#include <afx/Object.h>
#include <afx/String.h>
#include <afx/Time.h>

class CFileException;

/// What CFile::GetStatus tells about a file.
struct CFileStatus {
    CTime m_ctime;
    CTime m_mtime;
    CTime m_atime;
    ULONGLONG m_size;
    /// CFile::Attribute bits.
    BYTE m_attribute;
    /// Full path; empty for an open file of unknown name.
    TCHAR m_szFullName[MAX_PATH];
};

/// A binary file without buffering. Members throw CFileException* on failure unless they say otherwise.
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
        /// Makes the file, or truncates it to length 0; with modeNoTruncate an existing one is kept as it is.
        modeCreate = OF_CREATE,
        modeNoTruncate = 0x2000,
        /// Of meaning to derived classes only.
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

    /// The value of m_hFile while no file is open.
    static const HANDLE hFileNull;

    CFile();
    /// Takes an open handle; the destructor does not close it.
    explicit CFile(HANDLE file);
    /// Opens the file; the destructor closes it.
    CFile(LPCTSTR fileName, UINT openFlags);
    ~CFile() override;

    /// FALSE on failure, with the cause in `*error` unless that is null. One file at a time: closes nothing.
    virtual BOOL Open(LPCTSTR fileName, UINT openFlags, CFileException* error = nullptr);
    /// Closes the file, which must be open.
    virtual void Close();
    /// Closes the file if one is open, and ignores errors.
    virtual void Abort();
    /// A second object for the same open file, owned by the caller. CMemFile and CStdioFile do not support
    /// it.
    virtual CFile* Duplicate() const;

    /// Reads up to `count` bytes; fewer only at the end of the file. Returns how many.
    virtual UINT Read(void* buffer, UINT count);
    /// Writes all bytes, else throws (diskFull if the medium took fewer).
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();

    /// Moves the position; returns it, from the start of the file. A position before the start throws
    /// badSeek.
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// Cuts the file or extends it by bytes of undefined value. The position is at the new end.
    virtual void SetLength(ULONGLONG length);
    virtual void LockRange(ULONGLONG position, ULONGLONG count);
    virtual void UnlockRange(ULONGLONG position, ULONGLONG count);

    /// Name with extension, name without it, and full path of the open file.
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    /// Only changes what the three members above tell.
    virtual void SetFilePath(LPCTSTR path);
    operator HANDLE() const { return m_hFile; }

    /// FALSE on failure.
    BOOL GetStatus(CFileStatus& status) const;
    static BOOL GetStatus(LPCTSTR fileName, CFileStatus& status);
    /// Sets attributes and times; a time of 0 stays as it is. The size is not set.
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

/// A buffered file over the C library, in text mode unless opened with typeBinary: line ends are a single
/// '\n' in memory. Duplicate, LockRange and UnlockRange throw CNotSupportedException*.
class MFC_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile();
    /// Takes an open stream; the destructor does not close it.
    explicit CStdioFile(FILE* stream);
    CStdioFile(LPCTSTR fileName, UINT openFlags);
    ~CStdioFile() override;

    /// A line, cut at `maxCount` - 1 characters, with its '\n' if that was reached; null at the end of the
    /// file.
    virtual LPTSTR ReadString(LPTSTR text, UINT maxCount);
    /// A line of any length without its '\n'. FALSE, and an empty text, at the end of the file.
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

    /// Null while no file is open.
    FILE* m_pStream = nullptr;
};

/// A file in memory. Running out of memory throws CMemoryException*. Duplicate, LockRange and UnlockRange
/// throw CNotSupportedException*.
class MFC_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// Memory grows by at least `growBytes` at a time; 0: it does not grow, and writing beyond it throws.
    explicit CMemFile(UINT growBytes = 1024);
    /// As Attach.
    CMemFile(BYTE* buffer, UINT size, UINT growBytes = 0);
    ~CMemFile() override;

    /// Takes a buffer as the file's memory. With `growBytes` 0 its content is the file's, and the caller
    /// keeps it; else the file is empty, the buffer must come from malloc, and the file frees it.
    void Attach(BYTE* buffer, UINT size, UINT growBytes = 0);
    /// Gives the memory to the caller, who frees it with free, and leaves an empty file. Null if there is
    /// none.
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
    /// The file's memory is managed through these. Alloc and Realloc return null when there is no memory.
    virtual BYTE* Alloc(SIZE_T bytes);
    virtual BYTE* Realloc(BYTE* block, SIZE_T bytes);
    virtual BYTE* Memcpy(BYTE* target, const BYTE* source, SIZE_T bytes);
    virtual void Free(BYTE* block);
    /// Makes room for `length` bytes.
    virtual void GrowFile(SIZE_T length);

    SIZE_T m_nGrowBytes = 0;
    SIZE_T m_nPosition = 0;
    SIZE_T m_nBufferSize = 0;
    SIZE_T m_nFileSize = 0;
    BYTE* m_lpBuffer = nullptr;
    BOOL m_bAutoDelete = FALSE;
};
