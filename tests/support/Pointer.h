// The real mouse pointer, moved and pressed through the system's input.
#pragma once

#include <windows.h>

namespace testkit {

/// Moves the pointer into the screen's last corner, away from the windows of the tests: a window that comes
/// up under it gets a mouse move.
void ParkPointer();
/// Moves the pointer to a place of `window`'s client area, presses and lets go the left button there, and
/// handles the messages that follow. The pointer is parked again.
void ClickWithPointer(HWND window, POINT client);

} // namespace testkit
