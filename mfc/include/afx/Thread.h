#pragma once

#include "afx/Wnd.h"

using AFX_THREADPROC = UINT (*)(LPVOID);

/// A thread with a message loop, or a worker thread that AfxBeginThread() started.
class MFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< when this window is destroyed the message loop ends
    CWnd* m_pActiveWnd = nullptr; ///< stands in for m_pMainWnd in GetMainWnd(), if set
    BOOL m_bAutoDelete = TRUE;    ///< whether the object deletes itself when its thread ends
    HANDLE m_hThread = nullptr;   ///< owned; NULL for the main thread
    DWORD m_nThreadID = 0;
    MSG m_msgCur{}; ///< the message that PumpMessage() took last

    operator HANDLE() const { return m_hThread; }

    /// Starts the thread of an object that was made with `new`. FALSE on failure.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    /// Posts a message without a window; ON_THREAD_MESSAGE handles it.
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }

    /// Sets up. FALSE ends the thread at once (through ExitInstance()).
    virtual BOOL InitInstance();
    /// The message loop; returns ExitInstance()'s answer.
    virtual int Run();
    /// Looks at a message before it is translated. The base runs thread-message handlers and asks the
    /// windows.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Takes one message and dispatches it. FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called while there is no message, with 0, 1, 2 ... until it returns FALSE. The base updates the user
    /// interface at 0 and deletes temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether idle processing starts anew after this message; not so for mouse moves on the spot and the
    /// like.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Cleans up and gives the exit status: by default that of WM_QUIT.
    virtual int ExitInstance();
    /// An exception that no handler caught. The base answers -1 to WM_CREATE, validates the window for
    /// WM_PAINT, and tells the user for all others (but not for a CUserException: the user has been told).
    /// Returns the message's result.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Looks at messages in the loops of menus, message boxes and system dialogs (MSGF_... codes). TRUE eats
    /// one.
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

/// Starts a worker thread. The object deletes itself when `pfnThreadProc` returns, unless m_bAutoDelete is
/// cleared while the thread is suspended. NULL on failure.
MFC_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                   int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                   DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Starts a thread with a message loop; `pThreadClass` is a class derived from CWinThread.
MFC_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                   UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                   LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

/// The object of the calling thread: the application in the main thread; NULL in a thread the library does
/// not know.
MFC_API CWinThread* AfxGetThread();
/// The calling thread's main window, or NULL.
MFC_API CWnd* AfxGetMainWnd();
/// Sends WM_QUIT to the calling thread.
MFC_API void AfxPostQuitMessage(int nExitCode);
