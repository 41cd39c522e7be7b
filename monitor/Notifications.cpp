// SPDX-License-Identifier: MIT
// Sends the notifications.

#include "monitor/Notifications.h"

namespace kavlix::monitor {

void NotifyParent(const CWnd& window, UINT code) {
    const HWND parent = ::GetParent(window.m_hWnd);
    if (parent == nullptr)
        return;
    NMHDR record{};
    record.hwndFrom = window.m_hWnd;
    record.idFrom = static_cast<UINT_PTR>(window.GetDlgCtrlID());
    record.code = code;
    ::SendMessage(parent, WM_NOTIFY, record.idFrom, reinterpret_cast<LPARAM>(&record));
}

bool WatchMouseLeave(const CWnd& window) {
    TRACKMOUSEEVENT watch{};
    watch.cbSize = sizeof watch;
    watch.dwFlags = TME_LEAVE;
    watch.hwndTrack = window.m_hWnd;
    return ::TrackMouseEvent(&watch) != FALSE;
}

} // namespace kavlix::monitor
