// SPDX-License-Identifier: MIT
// The exception classes, the functions that throw them, and the macros of older programs.
#pragma once

#include <afx/Object.h>
#include <afx/String.h>

/// Base of all exceptions of the library, which throws pointers. A handler with the keyword `catch` must call
/// Delete(); the CATCH macros call it automatically.
class MFC_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException();
    /// `autoDelete` FALSE is for objects that Delete() must not delete, such as static ones.
    explicit CException(BOOL autoDelete);
    ~CException() override;

    /// Deletes the object, unless the constructor received `autoDelete` FALSE.
    void Delete();

    /// Copies the message for the user, cut to `maxLength` TCHARs including the terminating zero, and sets
    /// `*helpContext` to 0. Without a message, returns FALSE and copies an empty text. `text` may be null
    /// only if `maxLength` is 0.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr);

    /// Shows the message in a message box. Without a message, shows the string resource `idFallback`; without
    /// that, "No error message is available". Returns the result of AfxMessageBox.
    virtual int ReportError(UINT type = MB_OK, UINT idFallback = 0);

private:
    BOOL m_bAutoDelete;
};

/// Base of the exceptions without data.
class MFC_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL autoDelete);
    /// The string resource `idMessage` is the message for the user.
    CSimpleException(BOOL autoDelete, UINT idMessage);
    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) override;

protected:
    /// The message if the constructor received no string resource, or if the resource does not exist. Null
    /// means that the exception has no message.
    virtual LPCTSTR DefaultMessage() const;

private:
    UINT m_idMessage = 0;
};

/// Out of memory. The library throws a static object, so throwing needs no memory.
class MFC_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete);
    CMemoryException(BOOL autoDelete, UINT idMessage);

protected:
    LPCTSTR DefaultMessage() const override;
};

/// An operation that is not supported.
class MFC_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL autoDelete);
    CNotSupportedException(BOOL autoDelete, UINT idMessage);

protected:
    LPCTSTR DefaultMessage() const override;
};

/// The system cannot find or allocate a resource.
class MFC_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
    explicit CResourceException(BOOL autoDelete);
    CResourceException(BOOL autoDelete, UINT idMessage);

protected:
    LPCTSTR DefaultMessage() const override;
};

/// Ends an operation after the user has seen a message. The exception has no message of its own, unless the
/// constructor receives a string resource.
class MFC_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL autoDelete);
    CUserException(BOOL autoDelete, UINT idMessage);
};

/// An invalid argument.
class MFC_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL autoDelete);
    CInvalidArgException(BOOL autoDelete, UINT idMessage);

protected:
    LPCTSTR DefaultMessage() const override;
};

/// A failed file operation.
class MFC_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        generic = genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr);

    /// The cause for an error number of Windows (GetLastError()) or of the C library (errno).
    static int OsErrorToException(LONG osError);
    static int ErrnoToException(int errorNumber);

    /// Throw a CFileException* for an error number of Windows or of the C library.
    [[noreturn]] static void ThrowOsError(LONG osError, LPCTSTR fileName = nullptr);
    [[noreturn]] static void ThrowErrno(int errorNumber, LPCTSTR fileName = nullptr);

    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) override;

    /// One of the enumerators above.
    int m_cause;
    /// Error number of Windows, -1 if unknown.
    LONG m_lOsError;
    CString m_strFileName;
};

/// A failed archive operation.
class MFC_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum {
        none,
        genericException,
        generic = genericException,
        readOnly,
        endOfFile,
        writeOnly,
        badIndex,
        badClass,
        badSchema
    };

    explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr);
    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) override;

    /// One of the enumerators above.
    int m_cause;
    CString m_strFileName;
};

[[noreturn]] MFC_API void AfxThrowMemoryException();
[[noreturn]] MFC_API void AfxThrowNotSupportedException();
[[noreturn]] MFC_API void AfxThrowResourceException();
[[noreturn]] MFC_API void AfxThrowUserException();
[[noreturn]] MFC_API void AfxThrowInvalidArgException();
[[noreturn]] MFC_API void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
[[noreturn]] MFC_API void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);

/// Deletes the exception at the end of a CATCH block, unless THROW_LAST rethrows it.
class MFC_API AfxCaughtException {
public:
    explicit AfxCaughtException(CException* exception) : m_pException(exception) {}
    ~AfxCaughtException();
    AfxCaughtException(const AfxCaughtException&) = delete;
    AfxCaughtException& operator=(const AfxCaughtException&) = delete;
    void PassOn() { m_pException = nullptr; }

private:
    CException* m_pException;
};

// The macros of programs that are older than C++ exceptions. THROW_LAST rethrows the exception of the CATCH
// block; THROW throws a new one.
#define TRY                                                                                                  \
    {                                                                                                        \
        try {

#define CATCH(class_name, exception)                                                                         \
    }                                                                                                        \
    catch (class_name * exception) {                                                                         \
        AfxCaughtException afxCaughtException(exception);

#define AND_CATCH(class_name, exception) CATCH(class_name, exception)

#define END_CATCH                                                                                            \
    }                                                                                                        \
    }

#define CATCH_ALL(exception) CATCH(CException, exception)
#define AND_CATCH_ALL(exception) CATCH(CException, exception)
#define END_CATCH_ALL END_CATCH

#define THROW(exception) throw exception
#define THROW_LAST() (afxCaughtException.PassOn(), throw)
