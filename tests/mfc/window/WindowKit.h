#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace windowkit {

/// Makes a hidden top-level window of a plain class for `window`. A popup: showing it needs no window
/// manager.
inline BOOL CreateTop(CWnd& window) {
    return window.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), "top", WS_POPUP, 0, 0, 200, 100, nullptr,
                           nullptr);
}

/// Makes a child with the command ID `id`.
inline BOOL CreateChild(CWnd& window, CWnd& parent, UINT id) {
    return window.Create(nullptr, "child", WS_CHILD, CRect(0, 0, 50, 20), &parent, id);
}

struct MapCounts {
    std::size_t permanent = 0;
    std::size_t temporary = 0;

    static MapCounts Now() {
        MapCounts counts;
        AfxGetWndMapCounts(&counts.permanent, &counts.temporary);
        return counts;
    }
};

struct FormerApp {
    CWinApp* former = AfxGetModuleState()->m_pCurrentWinApp;
};

/// Stands for the test program's application while it lives: its message boxes are noted instead of shown,
/// uncaught exceptions too.
class ScopedApp : private FormerApp, public CWinApp {
public:
    ScopedApp() : CWinApp("Scoped") { m_hInstance = AfxGetInstanceHandle(); }
    ~ScopedApp() override { AfxGetModuleState()->m_pCurrentWinApp = former; }

    std::vector<std::string> boxes;      ///< texts of message boxes
    std::vector<UINT> exceptionMessages; ///< messages whose handlers let an exception out
    int idleCalls = 0;

    int DoMessageBox(LPCTSTR prompt, UINT, UINT) override {
        boxes.emplace_back(prompt);
        return IDOK;
    }
    LRESULT ProcessWndProcException(CException* e, const MSG* message) override {
        exceptionMessages.push_back(message->message);
        return CWinApp::ProcessWndProcException(e, message);
    }
    BOOL OnIdle(LONG count) override {
        ++idleCalls;
        return CWinApp::OnIdle(count);
    }
};

/// Takes a WM_QUIT out of the queue; FALSE if none waits.
inline bool TakeQuit(int* status = nullptr) {
    MSG message{};
    bool found = false;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            found = true;
            if (status != nullptr)
                *status = static_cast<int>(message.wParam);
        } else {
            ::DispatchMessage(&message);
        }
    }
    return found;
}

} // namespace windowkit
