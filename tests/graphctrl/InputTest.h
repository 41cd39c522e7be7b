// SPDX-License-Identifier: MIT
// The harness of tests of mouse, keyboard and menu: all traffic in order.
#pragma once

#include "tests/graphctrl/GraphTest.h"

#include <functional>

/// A control with samples whose whole traffic is noted, in order: what reaches the parent, and as remarks
/// "focus" (the control gets it), "default key" and the like (input handed on to the default procedure), and
/// "event selection 3" or "event selection gone" (what assistive tools hear).
class GraphInputTest : public GraphTest {
protected:
    void SetUp() override;
    void TearDown() override;

    Strings Click(CPoint point) { return Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y)); }
    Strings Key(UINT key) { return Send(WM_KEYDOWN, key, 1); }
    /// The mark set silently, and the picture brought up to date.
    void Mark(int index);

    /// The line of a notification that writes `index` and `count` only.
    static std::string Told(UINT code, int index, int count = 0) {
        return ToldMouse(code, 0, CPoint(0, 0), index, count);
    }
    /// The line of a mouse notification.
    static std::string ToldMouse(UINT code, UINT flags, CPoint point, int index = 0, int count = 0);
    /// The line of the posted message that the mark is at `index`.
    static std::string PostedMark(int index);
    /// What screen readers hear when the mark goes to `index`.
    static std::string Event(int index);

private:
    static void CALLBACK OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD,
                                 DWORD);

    static GraphInputTest* s_current;
    HWINEVENTHOOK m_events = nullptr;
};
