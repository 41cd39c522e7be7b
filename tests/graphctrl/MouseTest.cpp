// SPDX-License-Identifier: MIT
// What a click, a key or a command leaves before the host hears of it, and mouse moves.

#include "tests/graphctrl/InputTest.h"

#include <climits>

namespace {

constexpr const char* kDataRegion = "20,17,218,181"; // what RedrawData() invalidates, pixels

class GraphMouseTest : public GraphInputTest {
protected:
    void SetUp() override {
        GraphInputTest::SetUp();
        Add(0, {1, 2, 3, 4, 5});
        FixX(0, 4);
        Settle();
    }
};

} // namespace

TEST_F(GraphMouseTest, AClickBesideThePlotRepaintsNothing) {
    Mark(2);
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 190));
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(131, 80));
    EXPECT_EQ(Text(UpdateRect()), kDataRegion);
}

TEST_F(GraphMouseTest, HostsFindTheNewStateInTheNotification) {
    const struct {
        const char* name;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        int index;
    } cases[] = {{"click", WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(131, 80), 2},
                 {"key", WM_KEYDOWN, VK_RIGHT, 1, 2},
                 {"command", WM_COMMAND, ID_GRAPH_CLEAR_SELECTION_MARK, 0, -1}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        Mark(1);
        parent.SetFocus();
        testkit::Pump();
        int notifications = 0;
        parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
            if (entry.message != WM_NOTIFY)
                return;
            ++notifications;
            EXPECT_EQ(graph.m_SelectionMarkPos, each.index);
            EXPECT_EQ(Text(UpdateRect()), kDataRegion);
            EXPECT_EQ(::GetFocus(), parent.m_hWnd);
            MSG waiting = {};
            EXPECT_TRUE(
                ::PeekMessage(&waiting, parent.m_hWnd, WM_GRAPH_SELMARK, WM_GRAPH_SELMARK, PM_NOREMOVE));
            EXPECT_EQ(static_cast<int>(waiting.wParam), each.index);
        };
        graph.SendMessage(each.message, each.wParam, each.lParam);
        parent.onNoted = nullptr;
        EXPECT_EQ(notifications, 1);
        testkit::Pump();
    }
}

TEST_F(GraphMouseTest, EveryMoveIsTold) {
    Mark(1);
    const struct {
        UINT flags;
        CPoint point;
    } cases[] = {{0, {131, 80}}, {0, {131, 80}}, {MK_LBUTTON | MK_SHIFT, {0, 0}}, {MK_RBUTTON, {-7, 500}}};
    for (const auto& each : cases)
        EXPECT_EQ(Send(WM_MOUSEMOVE, each.flags, MAKELPARAM(each.point.x, each.point.y)),
                  Strings{ToldMouse(GCN_MOUSEMOVE, each.flags, each.point)});
    EXPECT_EQ(graph.m_SelectionMarkPos, 1);
    EXPECT_EQ(Send(WM_LBUTTONUP, 0, MAKELPARAM(131, 80)), Strings{"default up"});
}

TEST_F(GraphMouseTest, SendFunctionsTellWithoutPosting) {
    Mark(3);
    EXPECT_EQ(Traffic([this] { graph.SendSelchangeNotifyMessage(); }), Strings{Told(GCN_SELCHANGE, 3)});
    EXPECT_EQ(Traffic([this] { graph.SendRemoveDataNotifyMessage(-5, INT_MAX); }),
              Strings{Told(GCN_REMOVEDATA, -5, INT_MAX)});
    EXPECT_EQ(Traffic([this] { graph.SetSelectionMarkPos(1); }), Strings{Event(1)});
    EXPECT_EQ(Traffic([this] { graph.SetSelectionMarkPos(1); }), Strings());
    EXPECT_EQ(Traffic([this] { graph.ResetData(1); }), Strings{Event(-1)});
}
