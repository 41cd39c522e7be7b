// SPDX-License-Identifier: MIT
// CSingleLock and CMultiLock: locks that end with a scope.
#pragma once

#include "afx/SyncObject.h"

#include <vector>

/// A lock on one object. The destructor unlocks the object.
class MFC_API CSingleLock {
public:
    /// `pObject` must outlive the lock. `bInitialLock` TRUE locks the object at once.
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock();
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    /// Waits at most `dwTimeOut` milliseconds. Returns FALSE after that time.
    BOOL Lock(DWORD dwTimeOut = INFINITE);
    /// Unlocks the object, if this lock holds it. Returns whether the object was unlocked.
    BOOL Unlock();
    /// Like Unlock(), for a semaphore with the arguments of CSyncObject::Unlock().
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() { return m_bAcquired; }

private:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

/// A lock on several objects, none of them a CCriticalSection. The destructor unlocks what is locked.
class MFC_API CMultiLock {
public:
    /// The objects must outlive the lock. `dwCount` is 1 to MAXIMUM_WAIT_OBJECTS.
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock();
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// Waits for all objects, or with `bWaitForAll` FALSE for one. Returns the result of the system's wait
    /// function: WAIT_OBJECT_0 + index of the object, WAIT_ABANDONED_0 + index, WAIT_TIMEOUT or WAIT_FAILED. If
    /// `dwWakeMask` holds QS_ flags, such messages in the thread's queue end the wait for one object too; the result
    /// is then WAIT_OBJECT_0 + number of objects. With `bWaitForAll` the system waits for all objects and such a
    /// message.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    /// Unlocks the objects that this lock holds. Returns whether all of them were unlocked.
    BOOL Unlock();
    /// Unlocks only the semaphores that this lock holds, with the arguments of CSyncObject::Unlock(). Returns whether
    /// there was one, and all of them were unlocked.
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    /// Whether this lock holds the object with this index.
    BOOL IsLocked(DWORD dwObject);

private:
    struct Item {
        CSyncObject* object;
        bool locked;
    };

    std::vector<Item> m_items;
};
