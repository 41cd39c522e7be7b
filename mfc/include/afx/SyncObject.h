// SPDX-License-Identifier: MIT
// CSyncObject and the objects that synchronise threads: critical section, event, mutex, semaphore.
#pragma once

#include "afx/Export.h"
#include <afx.h>

/// A kernel object that a thread can wait for. The object owns its handle.
class MFC_API CSyncObject : public CObject {
    DECLARE_DYNAMIC(CSyncObject)

public:
    /// `pstrName` is the name of the object, for messages to programmers. May be NULL.
    explicit CSyncObject(LPCTSTR pstrName);
    /// Closes the handle.
    ~CSyncObject() override;

    operator HANDLE() const { return m_hObject; }
    /// Waits at most `dwTimeout` milliseconds. Returns FALSE after that time.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    /// Releases what Lock() acquired. FALSE on failure.
    virtual BOOL Unlock() = 0;
    /// Releases a count. The base does nothing and returns TRUE; only CSemaphore has counts.
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

    HANDLE m_hObject = nullptr;
    CString m_strName;

protected:
    /// Takes the handle of a new object. Throws CResourceException* for NULL.
    void Own(HANDLE object);
};

/// A counter of free places. Each Lock() takes one place.
class MFC_API CSemaphore : public CSyncObject {
    DECLARE_DYNAMIC(CSemaphore)

public:
    /// Objects of the same name, in all processes, share one semaphore. Throws CResourceException* on failure.
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);

    /// Frees one place. FALSE if all places are free.
    BOOL Unlock() override { return Unlock(1, nullptr); }
    /// Frees `lCount` places, and stores the former number of free places. FALSE, and nothing happens, if there
    /// were more places than the maximum.
    BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr) override;
};

/// An object that one thread at a time owns. The owner may lock the mutex again, and unlocks it as often.
class MFC_API CMutex : public CSyncObject {
    DECLARE_DYNAMIC(CMutex)

public:
    /// `bInitiallyOwn` TRUE: the calling thread owns the new mutex. Objects of the same name, in all processes,
    /// share one mutex. Throws CResourceException* on failure.
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);

    using CSyncObject::Unlock;
    /// FALSE if the calling thread does not own the mutex.
    BOOL Unlock() override;
};

/// A signal between threads. Lock() waits until the event is set.
class MFC_API CEvent : public CSyncObject {
    DECLARE_DYNAMIC(CEvent)

public:
    /// `bInitiallyOwn` TRUE: the event is set. `bManualReset` FALSE: the event resets itself when it has released
    /// one waiting thread. Objects of the same name, in all processes, share one event. Throws
    /// CResourceException* on failure.
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszNAME = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);

    /// Sets the event, which releases waiting threads.
    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    /// Releases the threads that wait now, or one thread if the event resets itself, and resets the event.
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }

    using CSyncObject::Unlock;
    /// Does nothing and returns TRUE: a waiting thread acquires nothing.
    BOOL Unlock() override { return TRUE; }
};

/// A mutex for the threads of one process, faster than CMutex. The object has no handle, so CMultiLock cannot wait
/// for it.
class MFC_API CCriticalSection : public CSyncObject {
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    CRITICAL_SECTION m_sect;

    operator CRITICAL_SECTION*() { return &m_sect; }
    /// Waits until the section is free. TRUE always.
    BOOL Lock();
    /// Like Lock(): the time is ignored.
    BOOL Lock(DWORD dwTimeout) override;
    using CSyncObject::Unlock;
    /// TRUE always. Only the owner may call the function.
    BOOL Unlock() override;
};
