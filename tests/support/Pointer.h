// SPDX-License-Identifier: MIT
// The real mouse pointer, moved and pressed through the system's input.
#pragma once

#include <windows.h>

namespace testkit {

/// Moves the pointer into the bottom right corner of the screen, away from the windows of the tests: a window
/// that appears under the pointer gets a mouse move message.
void ParkPointer();
/// Moves the pointer to `client` in the client area of `window`, presses and releases the left button, and
/// handles the messages. Then moves the pointer back into the corner.
void ClickWithPointer(HWND window, POINT client);

} // namespace testkit
