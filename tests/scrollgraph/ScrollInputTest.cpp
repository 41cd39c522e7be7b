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

TEST_F(ScrollInputTest, CodesOfTheScrollBar) {
    const struct {
        const char* name;
        double pos, max, min;
        UINT code, thumb;
        bool handled;
        double after;
    } cases[] = {
        {"line left", 500, 6000, 0, SB_LINELEFT, 0, true, 488},
        {"line left near the left end", 0.999, 6000, 0, SB_LINELEFT, 0, false, 0.999},
        {"line left at the left end", 0, 6000, 0, SB_LINELEFT, 0, false, 0},
        {"line left from 1", 1, 6000, 0, SB_LINELEFT, 0, true, 0},
        {"line right", 500, 6000, 0, SB_LINERIGHT, 0, true, 512},
        {"line right at the right end", 4795, 6000, 0, SB_LINERIGHT, 0, true, 4800},
        {"page left", 1000, 6000, 0, SB_PAGELEFT, 0, true, 400},
        {"page left to the left end", 599, 6000, 0, SB_PAGELEFT, 0, true, 0},
        {"page left from the left end", 0, 6000, 0, SB_PAGELEFT, 0, true, 0},
        {"page left over a lower minimum", 500, 6000, -900, SB_PAGELEFT, 0, true, 0},
        {"page right", 500, 6000, 0, SB_PAGERIGHT, 0, true, 1100},
        {"end of a drag", 500, 6000, 0, SB_THUMBPOSITION, 900, false, 500},
        {"drag", 500, 6000, 0, SB_THUMBTRACK, 300, true, 1500},
        {"drag to the end", 500, 6000, 0, SB_THUMBTRACK, 1200, true, 4800},
        {"drag over a minimum", 500, 6400, 400, SB_THUMBTRACK, 300, true, 1900},
        {"drag beyond", 500, 6000, 0, SB_THUMBTRACK, 65535, true, 4800},
        {"left end", 500, 6000, 0, SB_LEFT, 0, false, 500},
        {"right end", 500, 6000, 0, SB_RIGHT, 0, false, 500},
        {"end", 500, 6000, 0, SB_ENDSCROLL, 0, false, 500},
        {"unknown", 500, 6000, 0, 77, 0, false, 500},
        {"range narrower than the view", 500, 1000, 300, SB_PAGERIGHT, 0, true, 300},
    };
    for (const auto& each : cases) {
        for (const bool sync : {false, true}) {
            graph.SetScrollSync(sync ? 7 : 0);
            SetView(each.pos, each.max, each.min);
            const std::string bar = Bar();
            testkit::Pump();
            parent.Forget();
            Scroll(each.code, each.thumb);
            EXPECT_EQ(Shown(), each.handled ? "data repaint front" : "") << each.name;
            testkit::Pump();
            EXPECT_DOUBLE_EQ(graph.m_dScrollPos, each.after) << each.name;
            if (std::abs(each.after - each.pos) > 5) { // a unit of the bar
                EXPECT_NE(Bar(), bar) << each.name;
            }
            const Strings told{"notify 1264 id 77 flags 0 at 0,0 index " +
                               std::to_string(static_cast<int>(each.after)) + " count 0"};
            EXPECT_EQ(parent.Log(), sync && each.handled ? told : Strings()) << each.name;
            EXPECT_EQ(graph.m_dScrollMax, each.max) << each.name;
        }
    }
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
    } cases[] = {{12.9, 12}, {-12.9, -12}, {1e300, INT_MAX}, {-1e300, INT_MIN}, {NAN, 0}};
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

    graph.SetScrollSync(TRUE);
    const struct {
        const char* name;
        double pos, max, min;
        short delta;
        double after;
    } cases[] = {
        {"away", 500, 6000, 0, 120, 488},
        {"away far", 500, 6000, 0, 1200, 488},
        {"no delta", 500, 6000, 0, 0, 488},
        {"near", 500, 6000, 0, -1, 512},
        {"near far", 500, 6000, 0, -32768, 512},
        {"at the left end", 0.9, 6000, 0, 120, 0.9},
        {"to the left end", 5, 6000, 0, 1, 0},
        {"at the right end", 4800, 6000, 0, -120, 4800},
        {"at the minimum", 300, 6000, 300, 120, 300},
        {"range narrower than the view", 300, 1000, 300, -120, 300},
    };
    for (const auto& each : cases) {
        SetView(each.pos, each.max, each.min);
        const std::string bar = Bar();
        EXPECT_EQ(Traffic([&] {
                      graph.ProcessMouseWheel(each.delta);
                      EXPECT_EQ(Shown(), each.after != each.pos ? "data" : "") << each.name;
                  }),
                  Strings())
            << each.name;
        EXPECT_DOUBLE_EQ(graph.m_dScrollPos, each.after) << each.name;
        EXPECT_EQ(Bar() != bar, std::abs(each.after - each.pos) >= 5) << each.name; // a unit of the bar
    }
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
