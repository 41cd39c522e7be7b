#pragma once

#include "afx/HandleMap.h"
#include "afx/Module.h"
#include "afx/Thread.h"
#include "afx/Wnd.h"

#include <memory>

/// Temporary window objects refer to a window and never destroy it.
struct AfxWndMapTraits {
    static std::unique_ptr<CWnd> Wrap(HWND handle) { return std::unique_ptr<CWnd>(new CWnd(handle)); }
    static void Unwrap(CWnd& window) { window.m_hWnd = nullptr; }
};

/// What the window classes know about the calling thread.
struct ThreadState {
    HandleMap<CWnd, HWND, AfxWndMapTraits> windows;
    MSG currentMessage{};             ///< the message whose handler runs
    int messageDepth = 0;             ///< handlers that run, one inside the other
    CWnd* windowInCreation = nullptr; ///< waits for the next window
    HHOOK creationHook = nullptr;
    int creationHookDepth = 0;
    HHOOK messageFilterHook = nullptr;
    HWND exchangingWindow = nullptr; ///< window inside UpdateData(): its controls' notifications are dropped
    HMENU popupMenu = nullptr;       ///< popup that was opened last, to find owner-drawn items
    CWinThread* thread = nullptr;    ///< NULL in the main thread: the application stands for it
    AFX_MODULE_STATE* moduleState = nullptr;
    char className[96] = ""; ///< answer of AfxRegisterWndClass()
};

/// The calling thread's state, made at first use.
ThreadState& CurrentThreadState();
/// Deletes the calling thread's temporary window, DC, menu and GDI objects, unless a message handler is
/// running: pointers that the handler holds outlive the modal loops it runs.
void DeleteTemporariesWhenIdle();
/// Starts and ends the calling thread's ProcessMessageFilter() calls.
void HookMessageFilter();
void UnhookMessageFilter();
/// The answer to a message whose handler let an exception out; see CWinThread::ProcessWndProcException().
LRESULT AnswerUncaughtException(CException* exception, const MSG& message);

inline HWND SafeWindow(const CWnd* window) {
    return window == nullptr ? nullptr : window->m_hWnd;
}
