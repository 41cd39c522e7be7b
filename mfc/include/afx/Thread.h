// SPDX-License-Identifier: MIT
// CWinThread, a thread with a message loop or a worker thread.
#pragma once

#include "afx/Wnd.h"

using AFX_THREADPROC = UINT (*)(LPVOID);

/// A thread with a message loop, or a worker thread that AfxBeginThread() started.
class MFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< main window; the message loop ends when the window is destroyed
    CWnd* m_pActiveWnd = nullptr; ///< if not NULL, GetMainWnd() returns this window instead of m_pMainWnd
    BOOL m_bAutoDelete = TRUE;    ///< TRUE: the object deletes itself when its thread ends
    HANDLE m_hThread = nullptr;   ///< handle of the thread, owned by the object; NULL for the main thread
    DWORD m_nThreadID = 0;
    MSG m_msgCur{}; ///< the latest message that the message loop has read

    operator HANDLE() const { return m_hThread; }

    /// Starts the thread of an object that was allocated with `new`. FALSE on failure.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    /// Posts a message without a window. ON_THREAD_MESSAGE declares the handler.
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }

    /// Initialises the thread. FALSE ends the thread at once, after ExitInstance().
    virtual BOOL InitInstance();
    /// The message loop. Returns the result of ExitInstance().
    virtual int Run();
    /// Called for each message before translation. The base runs thread-message handlers and calls
    /// PreTranslateMessage() of the windows.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Gets one message and dispatches it. FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Run() calls the function while no message waits. `lCount` is 0 at the first call, then 1, 2 and so on.
    /// The calls end when the function returns FALSE, and start again at 0 after a message that
    /// IsIdleMessage() accepts. The base updates the user interface at 0 and deletes temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether idle processing restarts after this message. FALSE for messages such as a mouse move to the
    /// same place.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Cleans up and returns the exit status. The base returns the status of WM_QUIT.
    virtual int ExitInstance();
    /// Called for an exception that no message handler caught. Returns the message's result. The base returns -1
    /// for WM_CREATE, validates the window for WM_PAINT, ignores CUserException, and shows a message for
    /// other exceptions.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Called for messages in the loops of menus, message boxes and system dialogs (MSGF_... codes). TRUE
    /// discards the message.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    virtual CWnd* GetMainWnd();

protected:
    friend struct AfxThreadStart;

    virtual void Delete();
    BOOL DispatchThreadMessage(MSG* pMsg);

    AFX_THREADPROC m_pfnThreadProc = nullptr;
    LPVOID m_pThreadParams = nullptr;
    POINT m_ptCursorLast{};
    UINT m_nMsgLast = 0;

    DECLARE_MESSAGE_MAP()
};

/// Starts a worker thread. An exception that `pfnThreadProc` does not catch is shown to the user, and ends the thread
/// with the status (UINT)-1. The object deletes itself when `pfnThreadProc` returns, unless the program sets
/// m_bAutoDelete to FALSE while the thread is suspended. NULL on failure.
MFC_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                   int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                   DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Starts a thread with a message loop. `pThreadClass` is a class derived from CWinThread.
MFC_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                   UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                   LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

/// The object of the calling thread; in the main thread, the application. NULL if the thread has no object.
MFC_API CWinThread* AfxGetThread();
/// The calling thread's main window, or NULL.
MFC_API CWnd* AfxGetMainWnd();
/// Posts WM_QUIT to the calling thread.
MFC_API void AfxPostQuitMessage(int nExitCode);
