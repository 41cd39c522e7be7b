// SPDX-License-Identifier: MIT
// Scroll bar and wheel, with everything they cause.

#include "tests/scrollgraph/ScrollTest.h"

#include <climits>
#include <cmath>

class ScrollInputTest : public ScrollTest {
protected:
    void SetUp() override {
        ScrollTest::SetUp();
        Load(300);
        graph.RedrawData();
        m_dataRegion = testkit::Text(UpdateRect());
        // A window above the bar, to see whether the bar comes back to the front.
        ASSERT_TRUE(m_above.Create("STATIC", "", WS_CHILD, CRect(0, 0, 5, 5), &graph, 5));
    }
    void SetView(double pos, double max, double min = 0, double width = 1200) {
        graph.m_dScrollPos = pos;
        graph.m_dScrollMax = max;
        graph.m_dScrollMin = min;
        graph.m_dViewWidth = width;
        graph.UpdateScrollInfo();
        m_above.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
        Settle();
        ::ValidateRect(graph.m_wndScrollBar.m_hWnd, nullptr);
        m_above.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    }
    /// What has changed on the screen: "data", and of the bar "repaint" and "front".
    std::string Shown() {
        const std::string rect = testkit::Text(UpdateRect());
        std::string text = rect == "0,0,0,0" ? "" : rect == m_dataRegion ? "data" : rect;
        const std::string bar = testkit::Text(BarUpdateRect());
        text += bar == "0,0,0,0" ? "" : bar == "0,0,190,14" ? " repaint" : " " + bar;
        return text + (graph.GetTopWindow() == &graph.m_wndScrollBar ? " front" : "");
    }
    void Scroll(UINT code, UINT thumb = 0) {
        graph.SendMessage(WM_HSCROLL, MAKEWPARAM(code, thumb),
                          reinterpret_cast<LPARAM>(graph.m_wndScrollBar.m_hWnd));
    }

private:
    std::string m_dataRegion;
    CWnd m_above;
};

TEST_F(ScrollInputTest, ScrollingRepaintsTheDataAndBringsTheBarBack) {
    const struct {
        double pos;
        UINT code;
        const char* shown;
    } cases[] = {{500, SB_LINELEFT, "data repaint front"},
                 {0.999, SB_LINELEFT, ""},
                 {4800, SB_LINERIGHT, "data repaint front"},
                 {500, SB_THUMBTRACK, "data repaint front"},
                 {500, SB_THUMBPOSITION, ""},
                 {500, SB_ENDSCROLL, ""}};
    for (const auto& each : cases) {
        SetView(each.pos, 6000);
        Scroll(each.code, 700);
        EXPECT_EQ(Shown(), each.shown) << each.code;
    }
    SetView(500, 1000, 300);
    Scroll(SB_PAGERIGHT);
    EXPECT_EQ(graph.m_dScrollPos, 300) << "in a range narrower than the view its left end counts";
}

TEST_F(ScrollInputTest, TheParentIsToldOnceViewAndBarAreInPlace) {
    graph.SetScrollSync(TRUE);
    SetView(900, 6000);
    std::string seen;
    parent.onNoted = [&](const testkit::RecordingParent::Entry&) {
        seen = View() + " " + Bar() + " " + Shown();
    };
    Scroll(SB_PAGERIGHT);
    EXPECT_EQ(seen, "pos 1500 max 6000 min 0 width 1200 0..1200 page 240 pos 300 data");
}

TEST_F(ScrollInputTest, PositionsAreToldTruncated) {
    const struct {
        double position;
        int told;
    } cases[] = {{12.9, 12}, {-12.9, -12}, {1e300, INT_MAX}, {NAN, 0}};
    for (const auto& each : cases)
        EXPECT_EQ(
            Traffic([&] { graph.SendScrollInfo(each.position); }),
            Strings{"notify 1264 id 77 flags 0 at 0,0 index " + std::to_string(each.told) + " count 0"});
}

TEST_F(ScrollInputTest, TheWheelIsTheHosts) {
    SetView(500, 6000);
    int handedOn = 0;
    graph.onDefault = [&](UINT message, WPARAM, LPARAM) { handedOn += message == WM_MOUSEWHEEL; };
    EXPECT_EQ(Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0), Strings());
    EXPECT_EQ(handedOn, 1);
    EXPECT_EQ(graph.m_dScrollPos, 500);
    EXPECT_EQ(Shown(), "");

    graph.ProcessMouseWheel(-1);
    EXPECT_EQ(Shown(), "data") << "the bar is told, and stays where it is";
    SetView(0.9, 6000);
    graph.ProcessMouseWheel(120);
    EXPECT_EQ(Shown(), "");
}

TEST_F(ScrollInputTest, AClickOnTheBarScrolls) {
    SetView(500, 6000);
    graph.SetScrollSync(TRUE);
    // The button comes up by itself: the arrow's loop finds it in the queue.
    const CRect bar = [&] {
        CRect rect;
        graph.m_wndScrollBar.GetClientRect(&rect);
        return rect;
    }();
    const LPARAM rightArrow = MAKELPARAM(bar.right - 4, bar.Height() / 2);
    const HWND window = graph.m_wndScrollBar.m_hWnd;
    const Strings log = Traffic([&] {
        ::PostMessage(window, WM_LBUTTONUP, 0, rightArrow);
        ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, rightArrow);
    });
    EXPECT_EQ(log, Strings{"notify 1264 id 77 flags 0 at 0,0 index 512 count 0"});
}
