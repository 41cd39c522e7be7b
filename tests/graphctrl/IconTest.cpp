// The maximize icon: pressed, left, entered again, released, and the mouse lost in between.

#include "tests/graphctrl/InputTest.h"

namespace {

constexpr COLORREF kUnpainted = RGB(255, 0, 255);

class GraphIconTest : public GraphInputTest {
protected:
    void SetUp() override {
        GraphInputTest::SetUp();
        graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
        ShowIcon(TRUE);
    }

    void ShowIcon(BOOL shown) {
        graph.ShowIconMaximize(shown, FALSE);
        graph.Redraw();
        Settle();
        if (!shown)
            return;
        icon = ToDevice(graph.m_rectIconMaximize);
        inside = icon.CenterPoint();
    }

    /// Plays steps: P press on the icon, i and o a move inside and outside, U and u release inside and
    /// outside, D a double-click on the icon, s somebody else takes the mouse, c the same window takes it
    /// again. The traffic of each, and how the icon was drawn after a step that drew it.
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
        if (step == 'c')
            graph.SetCapture();
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
        {"Piiu", {in, in, ToldMouse(GCN_MAXIMIZE, MK_SHIFT, outside), "default up", "icon up"}},
        {"Pooiiou", {out, "icon up", out, in, "icon down", in, out, "icon up", "default up", "icon up"}},
        {"PUioU", {maximize, "default up", "icon up", in, out, "default up"}},
        {"PsU", {"icon up", "default up"}},
        {"PosioU", {out, "icon up", "icon up", in, out, "default up"}},
        {"PcU", {maximize, "default up", "icon up"}},
        {"PPU", {"icon down", maximize, "default up", "icon up"}},
        {"PoPu",
         {out, "icon up", "icon down", ToldMouse(GCN_MAXIMIZE, MK_SHIFT, outside), "default up", "icon up"}},
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
    EXPECT_EQ(Play("sUio"), (Strings{"default up", in, out})) << "nothing was pressed";
    EXPECT_FALSE(graph.m_IconMaximized) << "the picture of the icon is the parent's business";
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

TEST_F(GraphIconTest, AnIconThatHasGoneIsNotRepainted) {
    Play("P");
    graph.SetTitleStyle(CGraphCtrl::TitleStyleText);
    ShowIcon(FALSE);
    testkit::MetafileRecorder none;
    CDC dc;
    dc.Attach(none.Dc());
    graph.DrawIconMaximize(dc);
    dc.Detach();
    none.Close();
    EXPECT_EQ(none.Lines(testkit::kDrawing), Strings());
    testkit::DibSurface before(300, 200), after(300, 200);
    before.Grab(graph.m_hWnd);
    graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(100, 100));
    after.Grab(graph.m_hWnd);
    EXPECT_EQ(testkit::Difference(before, after), "");
}

TEST_F(GraphIconTest, APressEndsWithItsWindow) {
    Play("P");
    graph.DestroyWindow();
    ASSERT_TRUE(graph.Create("MFCGraphCtrl", "", WS_CHILD, CRect(0, 0, 300, 200), &parent, kControlId));
    EXPECT_EQ(Send(WM_LBUTTONUP, 0, MAKELPARAM(inside.x, inside.y)), Strings{"default up"});
}
