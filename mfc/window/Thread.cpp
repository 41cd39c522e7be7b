// SPDX-License-Identifier: MIT
// CWinThread: the message loop, idle work, uncaught exceptions.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afxpriv.h"
#include "afxres.h"

#include <new>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace {

/// Message of the system's caret timer. No header defines it.
constexpr UINT caretTimerMessage = 0x0118;

LRESULT CALLBACK FilterMessage(int nCode, WPARAM wParam, LPARAM lParam) {
    CWinThread* const thread = AfxGetThread();
    if (nCode >= 0 && thread != nullptr &&
        thread->ProcessMessageFilter(nCode, reinterpret_cast<LPMSG>(lParam)))
        return 1;
    return ::CallNextHookEx(CurrentThreadState().messageFilterHook, nCode, wParam, lParam);
}

/// Asks the bars of a visible window to bring their items up to date. A handler may destroy the window.
void UpdateBars(CWnd& window) {
    const HWND handle = window.m_hWnd;
    if (handle == nullptr || !::IsWindowVisible(handle))
        return;
    AfxCallWndProc(&window, handle, WM_IDLEUPDATECMDUI, TRUE, 0);
    CWnd::SendMessageToDescendants(handle, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

} // namespace

void HookMessageFilter() {
    ThreadState& state = CurrentThreadState();
    if (state.messageFilterHook == nullptr)
        state.messageFilterHook =
            ::SetWindowsHookEx(WH_MSGFILTER, FilterMessage, nullptr, ::GetCurrentThreadId());
}

void UnhookMessageFilter() {
    ThreadState& state = CurrentThreadState();
    if (state.messageFilterHook != nullptr)
        ::UnhookWindowsHookEx(state.messageFilterHook);
    state.messageFilterHook = nullptr;
}

CWinThread::CWinThread() : m_nThreadID(::GetCurrentThreadId()) {
}

CWinThread::~CWinThread() {
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    ThreadState& state = CurrentThreadState();
    if (state.thread == this)
        state.thread = nullptr;
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        while (idle && !::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++);
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage() {
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!PreTranslateMessage(&m_msgCur)) {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessage(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (pMsg->message == m_nMsgLast && pMsg->pt.x == m_ptCursorLast.x && pMsg->pt.y == m_ptCursorLast.y)
            return FALSE;
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != caretTimerMessage;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0) {
        const HWND main = SafeWindow(m_pMainWnd);
        if (main != nullptr)
            UpdateBars(*m_pMainWnd);
        const std::vector<HWND>& frames = CurrentThreadState().frames;
        for (std::size_t i = 0; i < frames.size(); ++i) { // a handler may create a frame
            CWnd* const frame = CWnd::FromHandlePermanent(frames[i]);
            if (frame != nullptr && frame->IsFrameWnd() && frames[i] != main && !::IsChild(main, frames[i]))
                UpdateBars(*frame);
        }
    }
    DeleteTemporariesWhenIdle();
    return lCount <= 0;
}

BOOL CWinThread::DispatchThreadMessage(MSG* pMsg) {
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        const AFX_MSGMAP_ENTRY* const entry = AfxFindMessageEntry(map->lpEntries, pMsg->message, 0, 0);
        if (entry == nullptr || entry->nSig != AfxSig::ThreadMessage)
            continue;
        try {
            (this->*entry->pfn.threadMessage)(pMsg->wParam, pMsg->lParam);
        } catch (CException* exception) {
            ProcessWndProcException(exception, pMsg);
            exception->Delete();
        } catch (const std::bad_alloc&) {
            CMemoryException exception(FALSE);
            ProcessWndProcException(&exception, pMsg);
        }
        return TRUE;
    }
    return FALSE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr && DispatchThreadMessage(pMsg))
        return TRUE;
    CWnd* const main = GetMainWnd();
    const HWND mainWindow = SafeWindow(main);
    if (CWnd::WalkPreTranslateTree(mainWindow, pMsg))
        return TRUE;
    // Windows outside the main window, such as modeless dialogs, also use the accelerators of the
    // main window.
    if (main == nullptr || pMsg->hwnd == nullptr)
        return FALSE;
    HWND top = pMsg->hwnd;
    for (HWND above = ::GetParent(top); above != nullptr && top != mainWindow; above = ::GetParent(top))
        top = above;
    return top != mainWindow && main->PreTranslateMessage(pMsg);
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) {
    return FALSE;
}

CWnd* CWinThread::GetMainWnd() {
    return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd;
}

int CWinThread::ExitInstance() {
    return static_cast<int>(m_msgCur.wParam);
}

void CWinThread::Delete() {
    if (m_bAutoDelete)
        delete this;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT) {
        ::ValidateRect(pMsg->hwnd, nullptr);
        return 0;
    }
    if (e->IsKindOf(RUNTIME_CLASS(CUserException)))
        return 0;
    const bool isCommand = pMsg->message == WM_COMMAND && pMsg->lParam == 0;
    e->ReportError(MB_ICONSTOP, isCommand ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
    return isCommand ? TRUE : FALSE;
}

LRESULT AnswerUncaughtException(CException* exception, const MSG& message) {
    if (CWinThread* const thread = AfxGetThread())
        return thread->ProcessWndProcException(exception, &message);
    // A thread without a CWinThread object uses the base class's ProcessWndProcException().
    CWinThread plain;
    return plain.ProcessWndProcException(exception, &message);
}

CWinThread* AfxGetThread() {
    ThreadState& state = CurrentThreadState();
    if (state.thread != nullptr)
        return state.thread;
    CWinApp* const app = AfxStateOfModule(nullptr)->m_pCurrentWinApp;
    return app != nullptr && app->m_nThreadID == ::GetCurrentThreadId() ? app : nullptr;
}

CWnd* AfxGetMainWnd() {
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

void AfxPostQuitMessage(int nExitCode) {
    ::PostQuitMessage(nExitCode);
}
