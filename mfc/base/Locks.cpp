// SPDX-License-Identifier: MIT
// CSingleLock and CMultiLock.

#include "afx/Locks.h"

namespace {

/// Only semaphores count. The other objects take Unlock() without arguments.
bool IsSemaphore(const CSyncObject& object) {
    return object.IsKindOf(RUNTIME_CLASS(CSemaphore)) != FALSE;
}

} // namespace

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject) {
    ASSERT(pObject != nullptr);
    if (bInitialLock)
        Lock();
}

CSingleLock::~CSingleLock() {
    Unlock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut) {
    ASSERT(!m_bAcquired);
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock() {
    const BOOL unlocked = m_bAcquired && m_pObject->Unlock();
    if (unlocked)
        m_bAcquired = FALSE;
    return unlocked;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    if (!IsSemaphore(*m_pObject))
        return Unlock();
    const BOOL unlocked = m_bAcquired && m_pObject->Unlock(lCount, lPrevCount);
    if (unlocked)
        m_bAcquired = FALSE;
    return unlocked;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock) {
    ASSERT(dwCount > 0 && dwCount <= MAXIMUM_WAIT_OBJECTS);
    for (DWORD i = 0; i < dwCount; ++i) {
        ASSERT(!ppObjects[i]->IsKindOf(RUNTIME_CLASS(CCriticalSection)));
        m_items.push_back({ppObjects[i], false});
    }
    if (bInitialLock)
        Lock();
}

CMultiLock::~CMultiLock() {
    Unlock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask) {
    if (m_items.size() > MAXIMUM_WAIT_OBJECTS) {
        ::SetLastError(ERROR_INVALID_PARAMETER);
        return WAIT_FAILED;
    }
    HANDLE handles[MAXIMUM_WAIT_OBJECTS];
    DWORD count = 0;
    for (const Item& item : m_items)
        handles[count++] = *item.object;
    const DWORD result =
        dwWakeMask == 0 ? ::WaitForMultipleObjects(count, handles, bWaitForAll, dwTimeOut)
                        : ::MsgWaitForMultipleObjects(count, handles, bWaitForAll, dwTimeOut, dwWakeMask);
    const bool signalled = result < WAIT_OBJECT_0 + count;
    const bool abandoned = result >= WAIT_ABANDONED_0 && result < WAIT_ABANDONED_0 + count;
    if (!signalled && !abandoned)
        return result;
    if (bWaitForAll)
        for (Item& item : m_items)
            item.locked = true;
    else
        m_items[result - (signalled ? WAIT_OBJECT_0 : WAIT_ABANDONED_0)].locked = true;
    return result;
}

BOOL CMultiLock::Unlock() {
    BOOL all = TRUE;
    for (Item& item : m_items) {
        if (!item.locked)
            continue;
        item.locked = !item.object->Unlock();
        all = all && !item.locked;
    }
    return all;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    BOOL all = TRUE;
    bool any = false;
    for (Item& item : m_items) {
        if (!item.locked || !IsSemaphore(*item.object))
            continue;
        item.locked = !item.object->Unlock(lCount, lPrevCount);
        all = all && !item.locked;
        any = true;
    }
    return any && all;
}

BOOL CMultiLock::IsLocked(DWORD dwObject) {
    ASSERT(dwObject < m_items.size());
    return m_items[dwObject].locked;
}
