// SPDX-License-Identifier: MIT
// The exception classes without data, and CException.

#include <afx.h>

#include <new>

#include "mfc/base/Resource.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

namespace {

// The static exceptions have no data, so threads can share them.
template <class EXCEPTION> [[noreturn]] void ThrowStatic() {
    static EXCEPTION exception(FALSE);
    throw &exception;
}

// Programs expect operator new to throw CMemoryException*.
const std::new_handler previousNewHandler = std::set_new_handler([] { AfxThrowMemoryException(); });

} // namespace

void AfxThrowMemoryException() {
    ThrowStatic<CMemoryException>();
}
void AfxThrowNotSupportedException() {
    ThrowStatic<CNotSupportedException>();
}
void AfxThrowResourceException() {
    ThrowStatic<CResourceException>();
}
void AfxThrowUserException() {
    ThrowStatic<CUserException>();
}
void AfxThrowInvalidArgException() {
    ThrowStatic<CInvalidArgException>();
}

CException::CException() : CException(TRUE) {
}
CException::CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {
}
CException::~CException() = default;

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) {
    if (helpContext != nullptr)
        *helpContext = 0;
    if (maxLength > 0)
        text[0] = 0;
    return FALSE;
}

int CException::ReportError(UINT type, UINT idFallback) {
    TCHAR message[512];
    UINT helpContext = 0;
    if (GetErrorMessage(message, _countof(message), &helpContext))
        return AfxMessageBox(message, type, helpContext);
    CString fallback;
    if (idFallback == 0 || !fallback.LoadString(idFallback))
        fallback = _T("No error message is available");
    return AfxMessageBox(fallback.GetString(), type, idFallback);
}

CSimpleException::CSimpleException() = default;
CSimpleException::CSimpleException(BOOL autoDelete) : CException(autoDelete) {
}
CSimpleException::CSimpleException(BOOL autoDelete, UINT idMessage)
    : CException(autoDelete), m_idMessage(idMessage) {
}

BOOL CSimpleException::GetErrorMessage(LPTSTR text, UINT maxLength, PUINT helpContext) {
    CException::GetErrorMessage(text, maxLength, helpContext);
    CString loaded;
    LPCTSTR message = DefaultMessage();
    if (m_idMessage != 0 && loaded.LoadString(m_idMessage))
        message = loaded;
    if (message == nullptr)
        return FALSE;
    AfxCopyMessage(text, maxLength, message);
    return TRUE;
}

LPCTSTR CSimpleException::DefaultMessage() const {
    return nullptr;
}

CMemoryException::CMemoryException() = default;
CMemoryException::CMemoryException(BOOL autoDelete) : CSimpleException(autoDelete) {
}
CMemoryException::CMemoryException(BOOL autoDelete, UINT idMessage)
    : CSimpleException(autoDelete, idMessage) {
}
LPCTSTR CMemoryException::DefaultMessage() const {
    return _T("Out of memory.");
}

CNotSupportedException::CNotSupportedException() = default;
CNotSupportedException::CNotSupportedException(BOOL autoDelete) : CSimpleException(autoDelete) {
}
CNotSupportedException::CNotSupportedException(BOOL autoDelete, UINT idMessage)
    : CSimpleException(autoDelete, idMessage) {
}
LPCTSTR CNotSupportedException::DefaultMessage() const {
    return _T("The program attempted an operation that is not supported.");
}

CResourceException::CResourceException() = default;
CResourceException::CResourceException(BOOL autoDelete) : CSimpleException(autoDelete) {
}
CResourceException::CResourceException(BOOL autoDelete, UINT idMessage)
    : CSimpleException(autoDelete, idMessage) {
}
LPCTSTR CResourceException::DefaultMessage() const {
    return _T("A resource that the program needs is not available.");
}

CUserException::CUserException() = default;
CUserException::CUserException(BOOL autoDelete) : CSimpleException(autoDelete) {
}
CUserException::CUserException(BOOL autoDelete, UINT idMessage) : CSimpleException(autoDelete, idMessage) {
}

CInvalidArgException::CInvalidArgException() = default;
CInvalidArgException::CInvalidArgException(BOOL autoDelete) : CSimpleException(autoDelete) {
}
CInvalidArgException::CInvalidArgException(BOOL autoDelete, UINT idMessage)
    : CSimpleException(autoDelete, idMessage) {
}
LPCTSTR CInvalidArgException::DefaultMessage() const {
    return _T("The program used an argument that is not valid.");
}

AfxCaughtException::~AfxCaughtException() {
    if (m_pException != nullptr)
        m_pException->Delete();
}

void AfxCopyMessage(LPTSTR text, UINT maxLength, LPCTSTR message) {
    if (maxLength > 0)
        lstrcpyn(text, message, maxLength > INT_MAX ? INT_MAX : static_cast<int>(maxLength));
}
