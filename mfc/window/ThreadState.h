// SPDX-License-Identifier: MIT
// Per-thread state of the window classes.
#pragma once

#include "afx/HandleMap.h"
#include "afx/Module.h"
#include "afx/Thread.h"
#include "afx/Wnd.h"

#include <memory>
#include <vector>

/// Wrap() creates a temporary window object. Unwrap() clears its handle, so that its destructor does not
/// destroy the window.
struct AfxWndMapTraits {
    static std::unique_ptr<CWnd> Wrap(HWND handle) { return std::unique_ptr<CWnd>(new CWnd(handle)); }
    static void Unwrap(CWnd& window) { window.m_hWnd = nullptr; }
};

/// Data of the window classes for the calling thread.
struct ThreadState {
    HandleMap<CWnd, HWND, AfxWndMapTraits> windows;
    MSG currentMessage{};             ///< the message whose handler is running
    int messageDepth = 0;             ///< number of nested handlers that are running
    std::vector<HWND> frames;         ///< windows of CFrameWnds, some of which may be gone
    CWnd* windowInCreation = nullptr; ///< the object that the next created window belongs to
    HHOOK creationHook = nullptr;
    int creationHookDepth = 0;
    HHOOK messageFilterHook = nullptr;
    HWND exchangingWindow = nullptr; ///< window inside UpdateData(); its controls' notifications are ignored
    HMENU popupMenu = nullptr;       ///< the popup that opened last; may contain an owner-drawn item
    CWinThread* thread = nullptr;    ///< object of the thread; NULL in the main thread, see AfxGetThread()
    AFX_MODULE_STATE* moduleState = nullptr;
    TCHAR className[96] = _T(""); ///< result buffer of AfxRegisterWndClass()
};

/// The state of the calling thread. The first call creates it.
ThreadState& CurrentThreadState();
/// Deletes the temporary window, DC, menu and GDI objects of the calling thread, but not while a message
/// handler runs. A handler may hold pointers to them while it runs a modal loop.
void DeleteTemporariesWhenIdle();
/// Start and end the ProcessMessageFilter() calls for the calling thread.
void HookMessageFilter();
void UnhookMessageFilter();
/// The result of a message whose handler threw an exception; see CWinThread::ProcessWndProcException().
LRESULT AnswerUncaughtException(CException* exception, const MSG& message);

inline HWND SafeWindow(const CWnd* window) {
    return window == nullptr ? nullptr : window->m_hWnd;
}
