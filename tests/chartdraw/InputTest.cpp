// SPDX-License-Identifier: MIT
// Mouse, wheel, keys and context menu of a chart, with the messages that Windows sends.
#include "tests/chartdraw/ChartTest.h"

#include "tests/support/Pointer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <random>

namespace {

/// Stands for the modal loop of a menu: notes the items, and chooses a command.
struct MenuLoop {
    static inline std::vector<UINT> items; ///< commands; 0 for a separator, negated for a grayed item
    static inline CPoint at;
    static inline BOOL chosen = 0;

    static BOOL WINAPI Track(HMENU menu, UINT, int x, int y, int, HWND, const RECT*) {
        items.clear();
        at = CPoint(x, y);
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            const UINT id = ::GetMenuItemID(menu, i);
            const bool isGray = (::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_GRAYED) != 0;
            items.push_back(isGray ? 0 - id : id);
        }
        return chosen;
    }
};

class ChartInputTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        testkit::ParkPointer();
        parent.SetRecordSize(sizeof(NMCHARTDRAW));
        ASSERT_TRUE(m_menu.Installed());
        MenuLoop::chosen = 0;
        chart.SetViewFlags(CChartDraw::ViewAll | CChartDraw::ViewZoomBoth);
        std::vector<double> values(101);
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = std::sin(static_cast<double>(i) / 8);
        Add(values);
        Settle();
    }
    void TearDown() override {
        Control(false);
        ChartTest::TearDown();
    }

    /// Lays the chart out, and forgets what the parent was told.
    void Settle() {
        testkit::Pump();
        chart.CalcDatas();
        parent.Forget();
    }
    /// The ranges of X and Y.
    using View = std::array<double, 4>;
    View Now() {
        View view;
        chart.GetXAxis().GetRange(view[0], view[1]);
        chart.GetYAxis().GetRange(view[2], view[3]);
        return view;
    }
    /// The values at a position of the last layout.
    double XAt(int x) {
        const View view = Now();
        return view[0] + (x - chart.m_rectPlot.left) * (view[1] - view[0]) / (chart.m_rectPlot.Width() - 1);
    }
    double YAt(int y) {
        const View view = Now();
        return view[3] - (y - chart.m_rectPlot.top) * (view[3] - view[2]) / (chart.m_rectPlot.Height() - 1);
    }
    int Told(UINT code = CDN_VIEW) const {
        int count = 0;
        for (const auto& entry : parent.Entries())
            count += entry.message == WM_NOTIFY && entry.code == code;
        return count;
    }
    void Mouse(UINT message, CPoint at, WPARAM keys = 0) {
        chart.SendMessage(message, keys, MAKELPARAM(at.x, at.y));
    }
    void Wheel(int delta, CPoint at, WPARAM keys = 0, UINT message = WM_MOUSEWHEEL) {
        chart.ClientToScreen(&at);
        chart.SendMessage(message, MAKEWPARAM(keys, delta), MAKELPARAM(at.x, at.y));
    }
    void Drag(CPoint from, CPoint to, bool isRight = false, WPARAM keys = 0) {
        Mouse(isRight ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, from, keys);
        Mouse(WM_MOUSEMOVE, CPoint((from.x + to.x) / 2, (from.y + to.y) / 2), keys);
        Mouse(WM_MOUSEMOVE, to, keys);
        Mouse(isRight ? WM_RBUTTONUP : WM_LBUTTONUP, to, keys);
    }
    void Control(bool isDown) {
        BYTE keys[256] = {};
        keys[VK_CONTROL] = isDown ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    void Key(UINT key, bool isControl = false) {
        Control(isControl);
        chart.SendMessage(WM_KEYDOWN, key, 1);
        Control(false);
    }
    void ExpectView(const View& expected, const char* what) {
        const View view = Now();
        for (std::size_t i = 0; i < view.size(); ++i)
            EXPECT_NEAR(view[i], expected[i], 1e-9 * (1 + std::abs(expected[i]))) << what << ", end " << i;
    }
    CPoint Middle() const { return chart.m_rectPlot.CenterPoint(); }

private:
    testkit::ImportHook m_menu{"Kavlix.dll", "TrackPopupMenu", reinterpret_cast<void*>(&MenuLoop::Track)};
};

} // namespace

TEST_F(ChartInputTest, AChartWithoutFlagsLeavesItsInputToOthers) {
    chart.SetViewFlags(CChartDraw::ViewFixed);
    const View before = Now();
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN})
        Mouse(message, Middle());
    EXPECT_NE(::GetCapture(), chart.m_hWnd);
    Wheel(WHEEL_DELTA, Middle());
    Wheel(WHEEL_DELTA, Middle(), 0, WM_MOUSEHWHEEL);
    for (const UINT key : {VK_LEFT, VK_ADD, VK_HOME, VK_BACK})
        Key(key);
    EXPECT_EQ(chart.SendMessage(WM_GETDLGCODE) & (DLGC_WANTARROWS | DLGC_WANTCHARS), 0);
    Mouse(WM_RBUTTONUP, Middle());
    EXPECT_EQ(Now(), before);
    ASSERT_EQ(parent.Entries().size(), 1U); // a menu is the parent's
    EXPECT_EQ(parent.Entries()[0].message, static_cast<UINT>(WM_CONTEXTMENU));
}

TEST_F(ChartInputTest, TheWheelZoomsAtThePointerAndPans) {
    const CPoint at(chart.m_rectPlot.left + 60, chart.m_rectPlot.top + 20);
    const View whole = Now();
    const double x = XAt(at.x), y = YAt(at.y);
    const auto zoomed = [](double low, double high, double about, double factor) {
        return std::pair(about + (low - about) * factor, about + (high - about) * factor);
    };
    const auto [left, right] = zoomed(whole[0], whole[1], x, 0.8);
    const auto [low, high] = zoomed(whole[2], whole[3], y, 0.8);
    const double width = whole[1] - whole[0];
    const struct {
        const char* what;
        UINT message;
        int delta, times;
        WPARAM keys;
        CPoint at;
        View expected;
    } turns[] = {
        {"both", WM_MOUSEWHEEL, 120, 1, 0, at, {left, right, low, high}},
        {"touch pad", WM_MOUSEWHEEL, 5, 24, 0, at, {left, right, low, high}},
        {"Ctrl", WM_MOUSEWHEEL, 120, 1, MK_CONTROL, at, {whole[0], whole[1], low, high}},
        {"over the X axis", WM_MOUSEWHEEL, 120, 1, 0, {at.x, 199}, {left, right, whole[2], whole[3]}},
        {"over the Y axis", WM_MOUSEWHEEL, 120, 1, 0, {1, at.y}, {whole[0], whole[1], low, high}},
        {"Shift",
         WM_MOUSEWHEEL,
         -240,
         1,
         MK_SHIFT,
         at,
         {whole[0] + width / 5, whole[1] + width / 5, whole[2], whole[3]}},
        {"tilted",
         WM_MOUSEHWHEEL,
         12,
         10,
         0,
         at,
         {whole[0] + width / 10, whole[1] + width / 10, whole[2], whole[3]}},
        {"outside", WM_MOUSEWHEEL, 120, 1, 0, {-5, 5}, whole},
    };
    for (const auto& turn : turns) {
        for (int i = 0; i < turn.times; ++i)
            Wheel(turn.delta, turn.at, turn.keys, turn.message);
        ExpectView(turn.expected, turn.what);
        EXPECT_EQ(Told(), turn.expected == whole ? 0 : turn.times) << turn.what;
        chart.ViewBack();
        ExpectView(whole, turn.what); // one turn, or a run of them, is one entry
        chart.FitView();
        Settle();
    }
    chart.SetViewFlags(CChartDraw::ViewAll);
    Wheel(120, at);
    ExpectView({left, right, whole[2], whole[3]}, "X alone");
    chart.FitView();
    Key(VK_ADD);
    ExpectView({10, 90, whole[2], whole[3]}, "X alone");
    // The cursor stays under the pointer.
    chart.GetCursor().SetMode(CChartCursor::All);
    Mouse(WM_MOUSEMOVE, at);
    for (const int delta : {600, 600, -1200}) {
        Wheel(delta, at, delta < 0 ? MK_SHIFT : 0);
        double cursor = 0;
        ASSERT_TRUE(chart.GetCursor().GetPosition(0, cursor));
        EXPECT_NEAR(cursor, XAt(at.x), (Now()[1] - Now()[0]) / 20 + 0.5);
    }
    // Several turns are one paint.
    ::ValidateRect(chart, nullptr);
    Wheel(120, at);
    RECT dirty = {};
    ASSERT_TRUE(::GetUpdateRect(chart, &dirty, FALSE));
    EXPECT_EQ(CRect(dirty), chart.m_rectChart);
}

TEST_F(ChartInputTest, DraggingPansAndBoxesZoom) {
    const View whole = Now();
    const CPoint from = Middle(), to(from.x - 40, from.y + 15);
    const double dx = XAt(from.x) - XAt(to.x), dy = YAt(from.y) - YAt(to.y);
    const View panned = {whole[0] + dx, whole[1] + dx, whole[2] + dy, whole[3] + dy};
    Drag(from, to);
    ExpectView(panned, "drag");
    EXPECT_EQ(Told(), 2);
    EXPECT_NE(::GetCapture(), chart.m_hWnd);
    Key(VK_BACK);
    ExpectView(whole, "back from the drag");

    for (const bool keeps : {false, true}) {
        Mouse(WM_LBUTTONDOWN, from);
        Mouse(WM_MOUSEMOVE, to);
        ExpectView(panned, "during the drag");
        EXPECT_EQ(::GetCapture(), chart.m_hWnd);
        ::SetCapture(chart.m_hWnd); // sends WM_CAPTURECHANGED too
        if (keeps)
            ::SetCapture(parent.m_hWnd);
        else
            Key(VK_ESCAPE);
        ExpectView(keeps ? panned : whole, keeps ? "capture lost" : "Escape");
        Mouse(WM_MOUSEMOVE, from);
        Mouse(WM_LBUTTONUP, from);
        ExpectView(keeps ? panned : whole, "a drag that has ended");
        EXPECT_NE(::GetCapture(), chart.m_hWnd);
        ::ReleaseCapture();
    }
    chart.FitView();
    Settle();
    // Neither a box that Escape has ended nor its release does anything more.
    Mouse(WM_RBUTTONDOWN, from);
    Mouse(WM_MOUSEMOVE, to);
    Key(VK_ESCAPE);
    Mouse(WM_RBUTTONUP, to);
    ExpectView(whole, "a box and Escape");
    EXPECT_TRUE(parent.Entries().empty());

    const CPoint corner(from.x + 50, from.y + 40);
    const View boxed = {XAt(from.x), XAt(corner.x), YAt(corner.y), YAt(from.y)};
    const View strip = {boxed[0], boxed[1], whole[2], whole[3]};
    const struct {
        const char* what;
        CPoint from, to;
        bool isRight;
        WPARAM keys;
        View expected;
    } boxes[] = {{"right button", from, corner, true, 0, boxed},
                 {"Shift", corner, from, false, MK_SHIFT, boxed},
                 {"flat", {from.x, from.y + 2}, {corner.x, from.y}, true, 0, strip},
                 {"tiny", from, {from.x + 2, from.y + 2}, false, MK_SHIFT, whole},
                 {"outside of the plot", {2, 2}, corner, true, 0, whole}};
    for (const auto& box : boxes) {
        Drag(box.from, box.to, box.isRight, box.keys);
        ExpectView(box.expected, box.what);
        EXPECT_EQ(Told(CDN_MENU), box.expected == whole && box.isRight) << box.what;
        Mouse(WM_LBUTTONDBLCLK, from);
        ExpectView(whole, "double-click");
        Settle();
    }
}

TEST_F(ChartInputTest, KeysDoWhatTheMouseDoes) {
    chart.GetXAxis().SetRange(40, 60);
    chart.GetYAxis().SetRange(-0.5, 0.5);
    Settle();
    const View start = Now();
    const struct {
        UINT key;
        bool isControl;
        View expected;
    } cases[] = {
        {VK_LEFT, false, {38, 58, -0.5, 0.5}},
        {VK_RIGHT, false, {42, 62, -0.5, 0.5}},
        {VK_UP, false, {40, 60, -0.4, 0.6}},
        {VK_DOWN, false, {40, 60, -0.6, 0.4}},
        {VK_PRIOR, false, {20, 40, -0.5, 0.5}},
        {VK_NEXT, false, {60, 80, -0.5, 0.5}},
        {VK_HOME, false, {0, 20, -0.5, 0.5}},
        {VK_END, false, {80, 100, -0.5, 0.5}},
        {VK_RIGHT, true, {42, 58, -0.5, 0.5}},
        {VK_LEFT, true, {37.5, 62.5, -0.5, 0.5}},
        {VK_UP, true, {40, 60, -0.4, 0.4}},
        {VK_DOWN, true, {40, 60, -0.625, 0.625}},
        {VK_ADD, false, {42, 58, -0.4, 0.4}},
        {VK_OEM_MINUS, false, {37.5, 62.5, -0.625, 0.625}},
        {'0', false, {0, 100, -1, 1}},
        {'F', false, {0, 100, -1, 1}},
        {'F', true, start},
        {VK_TAB, false, start},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.key);
        Key(each.key, each.isControl);
        ExpectView(each.expected, "key");
        EXPECT_EQ(Told(), each.expected != start);
        Key(VK_BACK);
        ExpectView(start, "Backspace");
        Settle();
    }
    EXPECT_EQ(chart.SendMessage(WM_GETDLGCODE) & (DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB),
              DLGC_WANTARROWS | DLGC_WANTCHARS);
}

TEST_F(ChartInputTest, TheMenuOffersWhatTheHostAsksFor) {
    const std::vector<UINT> items = {ID_EDIT_COPY, ID_CHART_SAVE_PICTURE, ID_CHART_SAVE_DATA, 0,
                                     ID_CHART_FIT};
    const auto with = [&](UINT last) {
        std::vector<UINT> all = items;
        all.push_back(last);
        return all;
    };
    Mouse(WM_RBUTTONDOWN, Middle());
    Mouse(WM_RBUTTONUP, Middle());
    EXPECT_EQ(MenuLoop::items, with(0U - ID_CHART_BACK));
    EXPECT_EQ(Told(CDN_MENU), 1);

    Wheel(120, Middle());
    const View zoomed = Now();
    MenuLoop::chosen = ID_CHART_BACK;
    chart.SendMessage(WM_SYSKEYDOWN, VK_F10, 1); // without Shift
    EXPECT_EQ(Now(), zoomed);
    chart.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(chart.m_hWnd), -1);
    EXPECT_EQ(MenuLoop::items, with(ID_CHART_BACK));
    EXPECT_EQ(Told(), 2);
    CRect window;
    chart.GetWindowRect(&window);
    EXPECT_TRUE(window.PtInRect(MenuLoop::at));

    // The host adds an item, whose command it gets.
    constexpr UINT kHostCommand = 4711;
    chart.SetViewFlags(CChartDraw::ViewAll | CChartDraw::ViewMenuPrint);
    parent.onNoted = [&](const auto& entry) {
        if (entry.code != CDN_MENU)
            return;
        NMCHARTDRAW record;
        std::memcpy(&record, entry.record, sizeof record);
        EXPECT_TRUE(chart.m_rectChart.PtInRect(record.pt));
        ::AppendMenu(record.hMenu, MF_STRING, kHostCommand, _T("Host"));
    };
    MenuLoop::chosen = kHostCommand;
    parent.Forget();
    chart.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(chart.m_hWnd), -1);
    EXPECT_EQ(MenuLoop::items,
              (std::vector<UINT>{ID_EDIT_COPY, ID_CHART_SAVE_PICTURE, ID_CHART_SAVE_DATA, ID_FILE_PRINT, 0,
                                 ID_CHART_FIT, 0U - ID_CHART_BACK, kHostCommand}));
    ASSERT_EQ(parent.Entries().size(), 2U);
    EXPECT_EQ(parent.Entries()[1].message, static_cast<UINT>(WM_COMMAND));
    EXPECT_EQ(parent.Entries()[1].wParam, kHostCommand);
    Key('P', true);
    EXPECT_EQ(Told(CDN_PRINT), 1);

    chart.SetViewFlags(CChartDraw::ViewZoomX);
    parent.Forget();
    chart.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(chart.m_hWnd), -1);
    EXPECT_EQ(Told(CDN_MENU), 0);
}

TEST_F(ChartInputTest, TheViewFollowsTheNewestDataInSight) {
    CChartAxis& x = chart.GetXAxis();
    x.SetRange(0, 100);
    x.SetRangeMode(CChartAxis::Follow);
    chart.CalcDatas();
    ExpectView({10, 110, Now()[2], Now()[3]}, "follow");
    const auto append = [&](int first, int count) { // until the parent is told
        parent.Forget();
        for (int i = first; i < first + count; ++i)
            chart.AddData(0, i, 0);
        EXPECT_EQ(Told(), 0);            // no message inside of AddData
        constexpr DWORD kLongest = 5000; // milliseconds
        while (Told() == 0 &&
               ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kLongest, QS_ALLINPUT) == WAIT_OBJECT_0)
            testkit::Pump();
    };
    chart.AddData(0, 101, 0);
    chart.CalcDatas(); // a paint does not wait for the message
    ExpectView({11, 111, Now()[2], Now()[3]}, "one more point");
    append(102, 49);
    EXPECT_EQ(Told(), 1);
    ExpectView({60, 160, Now()[2], Now()[3]}, "more data");
    Drag(Middle(), Middle() + CPoint(90, 0)); // looks back
    chart.CalcDatas();
    const View back = Now();
    for (int i = 151; i < 200; ++i)
        chart.AddData(0, i, 0);
    chart.CalcDatas();
    EXPECT_EQ(Now()[0], back[0]);
    Key(VK_END);
    chart.CalcDatas();
    EXPECT_NEAR(Now()[1], 209, 1e-9);
    append(200, 1);
    EXPECT_NEAR(Now()[1], 210, 1e-9);
    Key('F');
    EXPECT_EQ(Now()[0], 0);
    Wheel(120, CPoint(chart.m_rectPlot.right - 1, 50)); // zooms in at the newest data, and follows again
    append(300, 1);
    EXPECT_NEAR(Now()[0] + 0.9 * (Now()[1] - Now()[0]), 300, 1e-9);
    EXPECT_EQ(x.GetRangeMode(), CChartAxis::Follow);
}

TEST_F(ChartInputTest, FollowingNeedsNoLayout) {
    for (const bool hasData : {false, true}) {
        chart.GetXAxis().SetRangeMode(CChartAxis::WholeData);
        chart.ResetData(0);
        if (!hasData) {
            chart.CalcDatas();
            chart.GetXAxis().SetRangeMode(CChartAxis::Follow);
        }
        for (int i = 0; i <= 60; ++i)
            chart.AddData(0, 1.7e9 + i, i);
        if (hasData)
            chart.GetXAxis().SetRangeMode(CChartAxis::Follow);
        chart.CalcDatas();
        EXPECT_TRUE(Now()[0] <= 1.7e9 + 10 && Now()[0] >= 1.7e9 - 10) << hasData;
        EXPECT_TRUE(Now()[1] >= 1.7e9 + 60 && Now()[1] <= 1.7e9 + 80) << hasData;
    }
}

TEST_F(ChartInputTest, YFitsTheDataInView) {
    chart.GetYAxis().SetRangeMode(CChartAxis::VisibleData);
    for (int i = 0; i < 200; ++i)
        chart.AddData(0, 200 + i, 1000 + i);
    chart.CalcDatas();
    EXPECT_GE(Now()[3], 1199);
    chart.GetXAxis().SetRange(0, 100);
    chart.CalcDatas();
    EXPECT_EQ(Now()[2], -1);
    EXPECT_EQ(Now()[3], 1);
    chart.GetXAxis().SetRange(250, 300);
    chart.CalcDatas();
    EXPECT_LE(Now()[2], 1050);
    EXPECT_GE(Now()[2], 1030);
    EXPECT_GE(Now()[3], 1100);
    EXPECT_LE(Now()[3], 1120);

    // On a logarithmic axis the values above 0 make the range.
    const double mixed[] = {-5, 0.002, 0, 3e5};
    chart.SetData(0, nullptr, mixed, 4);
    chart.GetXAxis().SetRangeMode(CChartAxis::WholeData);
    chart.GetYAxis().SetKind(CChartAxis::Logarithmic);
    for (const auto mode : {CChartAxis::WholeData, CChartAxis::VisibleData}) {
        chart.GetYAxis().SetRangeMode(mode);
        chart.CalcDatas();
        EXPECT_TRUE(Now()[2] <= 0.002 && Now()[2] >= 0.0005) << Now()[2];
        EXPECT_TRUE(Now()[3] >= 3e5 && Now()[3] <= 1e6) << Now()[3];
        chart.GetXAxis().SetRange(-1, 4);
    }
}

// Any input mixed with data: the ranges stay usable, and the parent is told each change once.
TEST_F(ChartInputTest, NoInputSpoilsTheView) {
    std::mt19937 random(7);
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    double newest = 1.7e9;
    for (int round = 0; round < 6000; ++round) {
        View before = Now();
        parent.Forget();
        const CPoint at(below(340) - 20, below(240) - 20);
        const WPARAM keys = static_cast<WPARAM>(below(4) == 0 ? MK_SHIFT : below(4) == 0 ? MK_CONTROL : 0);
        bool isHost = false;
        switch (below(12)) {
        case 0:
        case 1:
            Wheel(below(2000) - 1000, at, keys, below(4) == 0 ? WM_MOUSEHWHEEL : WM_MOUSEWHEEL);
            break;
        case 2:
            Mouse(WM_LBUTTONDOWN, at, keys);
            break;
        case 3:
        case 4:
            Mouse(WM_MOUSEMOVE, at, keys);
            break;
        case 5:
            Mouse(below(2) == 0 ? WM_LBUTTONUP : WM_RBUTTONUP, at, keys);
            break;
        case 6:
            Mouse(WM_RBUTTONDOWN, at, keys);
            break;
        case 7: {
            const UINT all[] = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN, VK_PRIOR,     VK_NEXT,  VK_HOME,
                                VK_END,  VK_ADD,   VK_BACK, '0',     VK_OEM_MINUS, VK_ESCAPE};
            Key(all[below(13)], below(3) == 0);
            break;
        }
        case 8:
            below(3) == 0 ? Mouse(WM_LBUTTONDBLCLK, at) : static_cast<void>(::ReleaseCapture());
            break;
        case 9:
            isHost = true;
            for (int i = below(20); i >= 0; --i)
                chart.AddData(0, newest += below(100) * 0.01, below(2000) * 0.001 - 1);
            if (below(20) == 0)
                chart.ResetData(0);
            break;
        case 10:
            isHost = true;
            if (below(10) == 0)
                chart.GetXAxis().SetRangeMode(below(2) == 0 ? CChartAxis::Follow : CChartAxis::WholeData);
            if (below(10) == 0)
                chart.GetYAxis().SetRangeMode(below(2) == 0 ? CChartAxis::VisibleData
                                                            : CChartAxis::WholeData);
            if (below(10) == 0)
                chart.GetYAxis().SetKind(below(2) == 0 ? CChartAxis::Logarithmic : CChartAxis::Linear);
            chart.GetXAxis().SetInverted(below(2));
            chart.GetXAxis().SetRange(newest - below(1000), newest + below(1000) - 500);
            break;
        default:
            isHost = true;
            chart.CalcDatas();
        }
        const View after = Now();
        for (int axis = 0; axis < 4; axis += 2) {
            const double low = after[axis], high = after[axis + 1];
            ASSERT_TRUE(std::isfinite(low) && std::isfinite(high) && low < high) << "round " << round;
            ASSERT_GE(high - low, 1e-12 * std::max(std::abs(low), std::abs(high))) << "round " << round;
        }
        ASSERT_TRUE(isHost ? Told() == 0 : after == before || Told() > 0) << "round " << round;
    }
}

// A parent may destroy the chart when it is told of a change.
TEST_F(ChartInputTest, TheParentMayDestroyTheChart) {
    const std::function<void()> inputs[] = {
        [&] { Wheel(120, Middle()); },
        [&] { Wheel(120, Middle(), 0, WM_MOUSEHWHEEL); },
        [&] { Drag(Middle(), Middle() + CPoint(30, 0)); },
        [&] { Drag(Middle(), Middle() + CPoint(30, 30), true); },
        [&] { Key(VK_LEFT); },
        [&] { chart.SendMessage(WM_CONTEXTMENU, 0, -1); },
    };
    for (const auto& input : inputs) {
        parent.onNoted = [&](const auto& entry) {
            if (entry.message == WM_NOTIFY && chart.m_hWnd != nullptr)
                chart.DestroyWindow();
        };
        const CRect plot = chart.m_rectPlot;
        input();
        ASSERT_EQ(chart.m_hWnd, nullptr) << "input " << &input - inputs;
        parent.onNoted = nullptr;
        ASSERT_TRUE(chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 5));
        chart.FitView();
        Settle();
        EXPECT_EQ(chart.m_rectPlot, plot);
    }
}
