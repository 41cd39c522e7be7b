// SPDX-License-Identifier: MIT
// Windows, logs and an application for the tests of windows.
#pragma once

#include <afxwin.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Utf8.h"

namespace windowkit {

/// Events in order.
using Log = std::vector<std::string>;

/// The parts, separated by blanks.
template <class FIRST, class... PARTS> std::string Note(const FIRST& first, const PARTS&... parts) {
    std::ostringstream text;
    text << first;
    ((text << ' ' << parts), ...);
    return text.str();
}

/// Returns the log and empties it.
inline Log Taken(Log& log) {
    return std::exchange(log, {});
}
/// Makes a hidden popup window for `window`. Popups become visible without a window manager.
inline BOOL CreateTop(CWnd& window) {
    return window.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), _T("top"), WS_POPUP, 0, 0, 200, 100, nullptr,
                           nullptr);
}

/// Makes a child with the command ID `id`.
inline BOOL CreateChild(CWnd& window, CWnd& parent, UINT id) {
    return window.Create(nullptr, _T("child"), WS_CHILD, CRect(0, 0, 50, 20), &parent, id);
}

/// Makes a hidden window of a class of the system, without an object. With `parent`, the window is a child
/// with the ID `id`.
inline HWND CreateForeign(LPCTSTR className, CWnd* parent = nullptr, int id = 0, DWORD style = 0) {
    return ::CreateWindow(className, _T(""), style | (parent != nullptr ? WS_CHILD : 0), 0, 0, 10, 10,
                          parent != nullptr ? parent->m_hWnd : nullptr,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), AfxGetInstanceHandle(), nullptr);
}

/// Runs all idle work of this thread.
inline void RunIdle() {
    for (LONG count = 0; AfxGetThread()->OnIdle(count); ++count) {
    }
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

/// Replaces the test program's application while the object exists. Logs message boxes, which are not shown.
class ScopedApp : private FormerApp, public CWinApp {
public:
    ScopedApp() : CWinApp(_T("Scoped")) { m_hInstance = AfxGetInstanceHandle(); }
    ~ScopedApp() override { AfxGetModuleState()->m_pCurrentWinApp = former; }

    std::vector<std::string> boxes; ///< texts of message boxes
    int DoMessageBox(LPCTSTR prompt, UINT, UINT) override {
        boxes.push_back(testkit::Utf8(prompt));
        return IDOK;
    }
};

/// Removes every message from the queue; whether WM_QUIT was among them.
inline bool TakeQuit() {
    MSG message{};
    bool found = false;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        found = found || message.message == WM_QUIT;
        ::DispatchMessage(&message);
    }
    return found;
}

} // namespace windowkit
