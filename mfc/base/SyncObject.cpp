// SPDX-License-Identifier: MIT
// CSyncObject, CSemaphore, CMutex, CEvent and CCriticalSection.

#include "afx/SyncObject.h"

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR pstrName) : m_strName(pstrName) {
}

CSyncObject::~CSyncObject() {
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

void CSyncObject::Own(HANDLE object) {
    if (object == nullptr)
        AfxThrowResourceException();
    m_hObject = object;
}

BOOL CSyncObject::Lock(DWORD dwTimeout) {
    const DWORD result = ::WaitForSingleObject(m_hObject, dwTimeout);
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG) {
    return TRUE;
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName) {
    Own(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lpPrevCount) {
    return ::ReleaseSemaphore(m_hObject, lCount, lpPrevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    Own(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

BOOL CMutex::Unlock() {
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszNAME, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszNAME) {
    Own(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszNAME));
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr) {
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection() {
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock() {
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD) {
    return Lock();
}

BOOL CCriticalSection::Unlock() {
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}
