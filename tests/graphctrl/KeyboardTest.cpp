// SPDX-License-Identifier: MIT
// Keys, what a dialog is told about them, and a control that has no parent.

#include "tests/graphctrl/InputTest.h"

namespace {

class GraphKeyboardTest : public GraphInputTest {};

} // namespace

TEST_F(GraphKeyboardTest, KeysMoveTheMarkByOneAndTellWhatChanged) {
    const struct {
        const char* name;
        int samples, mark;
        UINT key;
        int moved;
        LPARAM details = 1; ///< repeat count and flags of the message
    } cases[] = {
        {"Right without a mark", 3, -1, VK_RIGHT, 0},
        {"Right at the last", 3, 2, VK_RIGHT, 2},
        {"Right, repeated", 3, 0, VK_RIGHT, 1, 0x40000005},
        {"Left without a mark", 3, -1, VK_LEFT, -1},
        {"Left at the first", 3, 0, VK_LEFT, 0},
        {"Escape", 3, 0, VK_ESCAPE, -1},
        {"End", 3, 1, VK_END, 1},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        graph.ResetData(0);
        for (int i = 0; i < each.samples; ++i)
            Add(0, {1.0});
        Add(1, {1, 2, 3, 4, 5, 6}); // does not bound the mark
        Mark(each.mark);
        Strings expected = {"default key"};
        if (each.moved != each.mark)
            expected = {Event(each.moved), Told(GCN_SELCHANGE, each.moved), "default key",
                        PostedMark(each.moved)};
        EXPECT_EQ(Send(WM_KEYDOWN, each.key, each.details), expected);
        EXPECT_EQ(graph.m_SelectionMarkPos, each.moved);
        Mark(each.mark);
        graph.SendMessage(WM_KEYDOWN, each.key, each.details);
        EXPECT_EQ(Text(UpdateRect()), each.moved != each.mark ? "20,17,218,181" : "0,0,0,0");
    }
}

TEST_F(GraphKeyboardTest, DialogsAreToldWhichKeysTheControlWants) {
    Add(0, {1, 2});
    const struct {
        int mark;
        UINT message; // that the dialog asks about, 0 for keys in general
        WPARAM key;
        bool wanted;
    } cases[] = {{-1, 0, 0, false},
                 {-1, WM_KEYDOWN, VK_ESCAPE, false},
                 {0, WM_KEYDOWN, VK_ESCAPE, true},
                 {1, WM_KEYDOWN, VK_TAB, false}};
    for (const auto& each : cases) {
        Mark(each.mark);
        const MSG asked = {nullptr, each.message, each.key, 0, 0, {0, 0}};
        const LPARAM about = each.message != 0 ? reinterpret_cast<LPARAM>(&asked) : 0;
        EXPECT_EQ(graph.SendMessage(WM_GETDLGCODE, each.key, about),
                  DLGC_WANTARROWS | (each.wanted ? DLGC_WANTMESSAGE : 0))
            << each.message << " " << each.key << " with the mark at " << each.mark;
    }
}

TEST_F(GraphKeyboardTest, WithoutAParentTheMouseDoesNothingAndKeysMoveTheMark) {
    OpenGraph alone;
    Strings handedOn;
    alone.onDefault = [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_KEYDOWN || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST))
            handedOn.push_back(std::to_string(message));
    };
    ASSERT_TRUE(alone.CreateEx(0, _T("MFCGraphCtrl"), _T(""), WS_POPUP | WS_VISIBLE, 0, 210, 300, 200,
                               nullptr, nullptr));
    for (const double value : {1.0, 2.0, 3.0})
        alone.AddData(0, value, nullptr);
    alone.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    alone.ShowIconMaximize(TRUE, FALSE);
    alone.Redraw();
    alone.UpdateWindow();
    parent.SetFocus();
    testkit::Pump();
    ASSERT_EQ(::GetParent(alone.m_hWnd), nullptr);
    handedOn.clear();
    parent.Forget();

    const CPoint icon = ToDevice(alone.m_rectIconMaximize).CenterPoint();
    for (const CPoint point : {CPoint(131, 80), icon})
        for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONDBLCLK}) {
            alone.SendMessage(message, MK_LBUTTON, MAKELPARAM(point.x, point.y));
            EXPECT_EQ(alone.m_SelectionMarkPos, -1);
            EXPECT_FALSE(alone.m_IconMaximizeTracking);
            EXPECT_EQ(::GetFocus(), parent.m_hWnd);
            EXPECT_EQ(::GetCapture(), nullptr);
        }
    EXPECT_EQ(handedOn, Strings());
    alone.SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(handedOn, Strings{std::to_string(WM_LBUTTONUP)});
    ::ValidateRect(alone.m_hWnd, nullptr);

    handedOn.clear();
    alone.SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(alone.m_SelectionMarkPos, 0);
    EXPECT_TRUE(::GetUpdateRect(alone.m_hWnd, nullptr, FALSE));
    EXPECT_EQ(handedOn, Strings{std::to_string(WM_KEYDOWN)});
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings());
    alone.DestroyWindow();
}
