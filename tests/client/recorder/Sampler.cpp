// SPDX-License-Identifier: MIT
// The recorder's threads. Compiled as in a release: there ENSURE throws and does not stop the program.
#undef _DEBUG
#include "stdafx.h"
#include "Recorder.h"

LONG g_nMostAtOnce = 0;

namespace {

struct SAMPLER
{
    CCriticalSection section;   // guards nSamples and nAtOnce
    CSemaphore places;
    CEvent start;
    CEvent pair;                // two samplers have been there at the same time
    CMutex report;
    int nEach;
    int nSamples;
    LONG nAtOnce;
    SAMPLER(int n) : places(2, 2), start(FALSE, TRUE), pair(FALSE, TRUE), nEach(n), nSamples(0), nAtOnce(0) {}
};

UINT SampleProc(LPVOID pParam)
{
    SAMPLER* p = (SAMPLER*)pParam;
    p->start.Lock();
    CSingleLock place(&p->places, TRUE);
    CSingleLock lock(&p->section);
    lock.Lock();
    p->nAtOnce++;
    g_nMostAtOnce = __max(g_nMostAtOnce, p->nAtOnce);
    if (p->nAtOnce == 2)
        p->pair.SetEvent();
    lock.Unlock();
    p->pair.Lock(10000);
    for (int i = 0; i < p->nEach; i++)
    {
        lock.Lock();
        int nBefore = p->nSamples;
        ::Sleep(1);             // the channel takes its time
        p->nSamples = nBefore + (TakeSample(i % 100) >= 0);
        lock.Unlock();
    }
    lock.Lock();
    p->nAtOnce--;
    return 0;
}

}

int TakeSample(int nChannel)
{
    ENSURE(nChannel >= 0);
    ENSURE_THROW(nChannel < 100, AfxThrowMemoryException());
    return nChannel;
}

int RecordSamples(int nThreads, int nEach)
{
    SAMPLER sampler(nEach);
    CSyncObject* all[] = { &sampler.report, &sampler.start };
    CMultiLock both(all, 2);
    if (both.Lock(0) != WAIT_TIMEOUT)       // nobody has set the event
        return -1;
    CArray<HANDLE, HANDLE> threads;
    for (int i = 0; i < nThreads; i++)
    {
        CWinThread* pThread = AfxBeginThread(SampleProc, &sampler, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
        HANDLE hThread = NULL;
        ::DuplicateHandle(::GetCurrentProcess(), pThread->m_hThread, ::GetCurrentProcess(), &hThread, 0, FALSE,
            DUPLICATE_SAME_ACCESS);
        threads.Add(hThread);
        pThread->ResumeThread();
    }
    sampler.start.SetEvent();
    if (both.Lock(1000) != WAIT_OBJECT_0 || !both.IsLocked(0) || !both.IsLocked(1))
        return -2;
    for (int i = 0; i < nThreads; i++)
    {
        ::WaitForSingleObject(threads[i], INFINITE);
        ::CloseHandle(threads[i]);
    }
    if (!both.Unlock())
        return -3;
    return sampler.nSamples;
}
