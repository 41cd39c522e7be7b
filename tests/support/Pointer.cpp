// SPDX-License-Identifier: MIT
// Mouse input through SetCursorPos and SendInput.
#include "tests/support/Pointer.h"

#include "tests/support/RecordingParent.h"

namespace testkit {

void ParkPointer() {
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
}

void ClickWithPointer(HWND window, POINT client) {
    ::ClientToScreen(window, &client);
    ::SetCursorPos(client.x, client.y);
    for (const DWORD button : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = button;
        ::SendInput(1, &input, sizeof input);
        Pump();
    }
    ParkPointer();
    Pump();
}

} // namespace testkit
