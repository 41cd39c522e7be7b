// SPDX-License-Identifier: MIT
// CWnd: translation of queued messages, and modal loops.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afxpriv.h"

namespace {

/// Milliseconds. A loop that is never idle shows a hidden window (MLF_SHOWONIDLE) after this time.
constexpr DWORD longestHiddenTime = 100;

} // namespace

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND window = pMsg->hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const bool isKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool isMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (isKey || isMouse) && IsDialogMessage(lpMsg);
}

int CWnd::RunModalLoop(DWORD dwFlags) {
    ASSERT(m_hWnd != nullptr);
    CWinThread* const thread = AfxGetThread();
    if (thread == nullptr)
        AfxThrowNotSupportedException();

    const HWND window = m_hWnd;
    const HWND parent = ::GetParent(window);
    const bool tellsParent = (dwFlags & MLF_NOIDLEMSG) == 0 && parent != nullptr;
    bool showPending = (dwFlags & MLF_SHOWONIDLE) != 0 && (GetStyle() & WS_VISIBLE) == 0;
    const DWORD start = ::GetTickCount();
    const auto showOnce = [&] {
        if (showPending) {
            ::ShowWindow(window, SW_SHOWNORMAL);
            ::UpdateWindow(window);
            showPending = false;
        }
    };
    // The loop also ends if the window is destroyed without EndModalLoop().
    const auto goesOn = [&] { return m_hWnd == window && ContinueModal(); };
    m_bModalLoop = TRUE;
    m_bContinueModal = TRUE;

    MSG* const message = &thread->m_msgCur;
    bool idle = true;
    LONG idleCount = 0;
    while (goesOn()) {
        while (idle && goesOn() && !::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE)) {
            showOnce();
            if (tellsParent && idleCount == 0)
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
            idle = (dwFlags & MLF_NOKICKIDLE) == 0 &&
                   ::SendMessage(window, WM_KICKIDLE, MSGF_DIALOGBOX, idleCount) != 0;
            ++idleCount;
            DeleteTemporariesWhenIdle();
        }
        while (goesOn()) {
            if (!thread->PumpMessage()) {
                // The program ends. The outer loop needs a WM_QUIT too.
                AfxPostQuitMessage(static_cast<int>(message->wParam));
                m_bModalLoop = FALSE;
                m_bContinueModal = FALSE;
                return -1;
            }
            if (::GetTickCount() - start > longestHiddenTime)
                showOnce();
            if (thread->IsIdleMessage(message)) {
                idle = true;
                idleCount = 0;
            }
            if (!::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE))
                break;
        }
    }
    m_bModalLoop = FALSE;
    m_bContinueModal = FALSE;
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return m_bContinueModal;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (m_bContinueModal) {
        m_bContinueModal = FALSE;
        ::PostMessage(m_hWnd, WM_NULL, 0, 0); // wakes the loop
    }
}
