#pragma once

#include <afx/Object.h>
#include <afx/String.h>

/// Base of all exceptions of the library. They are thrown by pointer. Who catches one with `catch` calls
/// Delete(); the CATCH macros do that themselves.
class MFC_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException();
    /// FALSE for an object that Delete() must not delete, such as a static one.
    explicit CException(BOOL autoDelete);
    ~CException() override;

    /// Deletes the object unless it was made with `autoDelete` FALSE.
    void Delete();

    /// Copies a text for the user, cut to `maxLength` bytes with its terminating zero, and sets
    /// `*helpContext` to 0. FALSE, and an empty text, if there is none. `text` must not be null unless
    /// `maxLength` is 0.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr);

    /// Shows the error's text in a message box; without one, the string resource `idFallback`; without that,
    /// "No error message is available". Returns what AfxMessageBox returns.
    virtual int ReportError(UINT type = MB_OK, UINT idFallback = 0);

private:
    BOOL m_bAutoDelete;
};

/// Base of the exceptions that tell nothing but their kind.
class MFC_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL autoDelete);
    /// With a string resource as the text for the user.
    CSimpleException(BOOL autoDelete, UINT idMessage);
    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) override;

protected:
    /// The text for the user if no string resource was given; null for none.
    virtual LPCTSTR DefaultMessage() const;

private:
    UINT m_idMessage = 0;
};

/// Out of memory. The one that the library throws itself is static: throwing it needs no memory.
class MFC_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete);
    CMemoryException(BOOL autoDelete, UINT idMessage);

protected:
    LPCTSTR DefaultMessage() const override;
};

/// A request for what is not supported.
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

/// Stops an operation of the user's after the user has been told; has no text.
class MFC_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL autoDelete);
    CUserException(BOOL autoDelete, UINT idMessage);
};

/// An argument that a function cannot work with.
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

    /// The cause that stands for an error number of the system, or of the C library.
    static int OsErrorToException(LONG osError);
    static int ErrnoToException(int errorNumber);

    /// Throw a CFileException* for an error number of the system, or of the C library.
    [[noreturn]] static void ThrowOsError(LONG osError, LPCTSTR fileName = nullptr);
    [[noreturn]] static void ThrowErrno(int errorNumber, LPCTSTR fileName = nullptr);

    BOOL GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext = nullptr) override;

    /// One of the values above.
    int m_cause;
    /// Error number of the system, -1 if unknown.
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

    /// One of the values above.
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

/// Deletes the exception that a CATCH block handles when the block is left, unless THROW_LAST passes it on.
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

// The macros of programs older than C++ exceptions. Inside a CATCH block THROW_LAST passes the caught
// exception on; THROW is for new ones.
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
