// SPDX-License-Identifier: MIT
// Starting threads: AfxBeginThread() and CWinThread::CreateThread().

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afxres.h"

#include <new>
#include <process.h>

/// The function that a new thread runs, and the functions that start a thread.
struct AfxThreadStart {
    static unsigned RunProcedure(CWinThread& thread) {
        if (thread.m_pfnThreadProc != nullptr)
            return thread.m_pfnThreadProc(thread.m_pThreadParams);
        HookMessageFilter();
        return static_cast<unsigned>(thread.InitInstance() ? thread.Run() : thread.ExitInstance());
    }

    static unsigned __stdcall Run(void* parameter) {
        CWinThread* const thread = static_cast<CWinThread*>(parameter);
        ThreadState& state = CurrentThreadState();
        state.thread = thread;
        unsigned status = 0;
        try {
            status = RunProcedure(*thread);
        } catch (CException* exception) {
            // The C library's frames below must not be unwound.
            exception->ReportError(MB_ICONSTOP, AFX_IDP_INTERNAL_FAILURE);
            exception->Delete();
            status = static_cast<unsigned>(-1);
        } catch (const std::bad_alloc&) {
            CMemoryException exception(FALSE);
            exception.ReportError(MB_ICONSTOP, AFX_IDP_INTERNAL_FAILURE);
            status = static_cast<unsigned>(-1);
        }
        UnhookMessageFilter();
        state.windows.DeleteTemporaries();
        state.thread = nullptr;
        thread->Delete();
        return status;
    }

    static CWinThread* Begin(CWinThread* thread, int priority, UINT stackSize, DWORD flags,
                             LPSECURITY_ATTRIBUTES security) {
        // Created suspended, so that the thread runs with its priority from the start.
        if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security)) {
            thread->Delete();
            return nullptr;
        }
        thread->SetThreadPriority(priority);
        if ((flags & CREATE_SUSPENDED) == 0)
            thread->ResumeThread();
        return thread;
    }

    static CWinThread* BeginWorker(AFX_THREADPROC procedure, LPVOID parameter, int priority, UINT stackSize,
                                   DWORD flags, LPSECURITY_ATTRIBUTES security) {
        CWinThread* const thread = new CWinThread;
        thread->m_pfnThreadProc = procedure;
        thread->m_pThreadParams = parameter;
        return Begin(thread, priority, stackSize, flags, security);
    }
};

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    ASSERT(m_hThread == nullptr);
    unsigned id = 0;
    // Created suspended: a running thread could end and delete its object before m_hThread is set.
    const uintptr_t handle = _beginthreadex(lpSecurityAttrs, nStackSize, &AfxThreadStart::Run, this,
                                            dwCreateFlags | CREATE_SUSPENDED, &id);
    if (handle == 0)
        return FALSE;
    m_hThread = reinterpret_cast<HANDLE>(handle);
    m_nThreadID = id;
    if ((dwCreateFlags & CREATE_SUSPENDED) == 0)
        ::ResumeThread(m_hThread);
    return TRUE;
}

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return AfxThreadStart::BeginWorker(pfnThreadProc, pParam, nPriority, nStackSize, dwCreateFlags,
                                       lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    auto* const thread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    if (thread == nullptr)
        AfxThrowMemoryException();
    return AfxThreadStart::Begin(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}
