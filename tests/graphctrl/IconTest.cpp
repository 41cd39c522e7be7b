// SPDX-License-Identifier: MIT
// The maximize icon: pressed, left, entered again, released, and the mouse lost in between.

#include "tests/graphctrl/InputTest.h"

namespace {

constexpr COLORREF kUnpainted = RGB(255, 0, 255);

class GraphIconTest : public GraphInputTest {
protected:
    void SetUp() override {
        GraphInputTest::SetUp();
        graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
        graph.ShowIconMaximize(TRUE, FALSE);
        graph.Redraw();
        Settle();
        icon = ToDevice(graph.m_rectIconMaximize);
        inside = icon.CenterPoint();
    }

    /// Plays steps: P press on the icon, i and o a move inside and outside, U and u release inside and
    /// outside, D a double-click on the icon, s another window takes the mouse. The result is the traffic of
    /// each step, and how the icon was drawn after a step that drew the icon.
    Strings Play(const std::string& steps) {
        Strings all;
        for (const char step : steps) {
            Cover();
            const Strings lines = Traffic([&] { Do(step); });
            all.insert(all.end(), lines.begin(), lines.end());
            if (const char* drawn = Drawn())
                all.push_back(drawn);
            EXPECT_EQ(::GetCapture() == graph.m_hWnd, graph.m_IconMaximizeTracking != FALSE) << step;
        }
        if (::GetCapture() == parent.m_hWnd)
            ::ReleaseCapture();
        return all;
    }

    CRect icon;
    CPoint inside;
    const CPoint outside{100, 100};

    void Do(char step) {
        const struct {
            char step;
            UINT message;
            WPARAM flags;
            CPoint point;
        } messages[] = {
            {'P', WM_LBUTTONDOWN, MK_LBUTTON, inside}, {'i', WM_MOUSEMOVE, MK_LBUTTON, inside},
            {'o', WM_MOUSEMOVE, MK_LBUTTON, outside},  {'U', WM_LBUTTONUP, MK_SHIFT, inside},
            {'u', WM_LBUTTONUP, MK_SHIFT, outside},    {'D', WM_LBUTTONDBLCLK, MK_LBUTTON, inside}};
        for (const auto& each : messages)
            if (each.step == step)
                graph.SendMessage(each.message, each.flags, MAKELPARAM(each.point.x, each.point.y));
        if (step == 's')
            parent.SetCapture();
    }

    void Cover() {
        const HDC dc = ::GetDC(graph.m_hWnd);
        const HBRUSH brush = ::CreateSolidBrush(kUnpainted);
        ::FillRect(dc, &icon, brush);
        ::DeleteObject(brush);
        ::ReleaseDC(graph.m_hWnd, dc);
    }

    /// How the icon is drawn in the window now; nullptr when nothing was drawn since Cover().
    const char* Drawn() {
        const HDC dc = ::GetDC(graph.m_hWnd);
        // The bar of the icon begins one pixel in from its corner, two when pressed.
        const COLORREF corner = ::GetPixel(dc, icon.left + 1, icon.top + 1);
        const COLORREF next = ::GetPixel(dc, icon.left + 2, icon.top + 2);
        ::ReleaseDC(graph.m_hWnd, dc);
        if (corner == kUnpainted)
            return nullptr;
        if (corner == graph.m_CaptionColor)
            return "icon up";
        return next == graph.m_CaptionColor ? "icon down" : "icon in pieces";
    }
};

} // namespace

TEST_F(GraphIconTest, PressTrackAndRelease) {
    const std::string in = ToldMouse(GCN_MOUSEMOVE, MK_LBUTTON, inside);
    const std::string out = ToldMouse(GCN_MOUSEMOVE, MK_LBUTTON, outside);
    const std::string maximize = ToldMouse(GCN_MAXIMIZE, MK_SHIFT, inside);
    const struct {
        const char* steps;
        Strings traffic; // of the steps after the first, which presses the icon
    } cases[] = {
        {"PU", {maximize, "default up", "icon up"}},
        {"Pou", {out, "icon up", "default up", "icon up"}},
        {"PoiU", {out, "icon up", in, "icon down", maximize, "default up", "icon up"}},
        {"PsU", {"icon up", "default up"}},
        {"PosioU", {out, "icon up", "icon up", in, out, "default up"}},
        {"PPU", {"icon down", maximize, "default up", "icon up"}},
        {"PUDU",
         {maximize, "default up", "icon up", ToldMouse(GCN_DBLCLK_CAPTION, MK_LBUTTON, inside, -1),
          "default up"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.steps);
        parent.SetFocus();
        Strings expected = {"focus", "icon down"};
        expected.insert(expected.end(), each.traffic.begin(), each.traffic.end());
        EXPECT_EQ(Play(each.steps), expected);
        EXPECT_FALSE(graph.m_IconMaximizeTracking);
        EXPECT_FALSE(graph.m_IconMaximizePressed);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
    EXPECT_EQ(Play("sUio"), (Strings{"default up", in, out}));
    EXPECT_FALSE(graph.m_IconMaximized);
}

TEST_F(GraphIconTest, TheIconIsDownAndTheMouseFreeWhenMaximizeIsTold) {
    // The parent moves, resizes and repaints windows there, or waits for a dialog and its clicks.
    int told = 0;
    parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
        if (entry.message != WM_NOTIFY || entry.code != GCN_MAXIMIZE)
            return;
        EXPECT_EQ(::GetCapture(), nullptr);
        ++told;
        graph.Redraw();
        graph.UpdateWindow();
        EXPECT_STREQ(Drawn(), "icon down");
        if (told == 1) {
            EXPECT_EQ(Send(WM_LBUTTONUP, 0, MAKELPARAM(100, 100)), Strings{"default up"});
            graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(inside.x, inside.y));
            graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(inside.x, inside.y));
        }
    };
    Play("PU");
    EXPECT_EQ(told, 2) << "one for each click";
    EXPECT_STREQ(Drawn(), "icon up");
    EXPECT_FALSE(graph.m_IconMaximizeTracking || graph.m_IconMaximizePressed);
}
