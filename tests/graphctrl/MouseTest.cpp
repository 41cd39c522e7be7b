// The left button in and beside the plot, the hit test, mouse moves and double-clicks.

#include "tests/graphctrl/InputTest.h"

#include <climits>

namespace {

constexpr const char* kDataRegion = "20,17,218,181"; // what RedrawData() invalidates, pixels
const CPoint kBesidePlot(10, 190);

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

TEST_F(GraphMouseTest, ClickMovesTheMarkTellsAndTakesTheFocus) {
    const auto line = CGraphCtrl::GraphStyleLine;
    const auto bar = CGraphCtrl::GraphStyleBar;
    const auto two = CGraphCtrl::GraphStyleTwoAxis;
    const struct {
        const char* name;
        CGraphCtrl::GraphStyle style;
        int first, second; // samples of datasets 0 and 1
        double min, max;
        CPoint point;
        int index;
    } cases[] = {
        {"on the first", line, 5, 0, 0, 4, {75, 100}, 0},
        {"the height does not count", line, 5, 0, 0, 4, {131, 37}, 2},
        {"nearest to the last", line, 5, 0, 0, 4, {173, 126}, 4},
        {"equally near, the first counts", line, 5, 0, 0, 84.25, {75, 100}, 0},
        {"equally near further on", line, 5, 0, 0, 84.25, {79, 100}, 3},
        {"far from any, still the nearest", line, 5, 0, 0, 84.25, {186, 40}, 4},
        {"all at the same place", line, 5, 0, 0, 1e6, {120, 80}, 0},
        {"outside the range", line, 5, 0, 4.2, 10, {180, 80}, 4},
        {"too far outside", line, 5, 0, 1000, 1001, {80, 80}, -1},
        {"no range", line, 5, 0, 2, 2, {80, 80}, -1},
        {"the first dataset that has samples", line, 0, 3, 0, 2, {131, 80}, 1},
        {"the second dataset does not count", line, 2, 5, 0, 4, {186, 80}, 1},
        {"no samples", line, 0, 0, 0, 4, {131, 80}, -1},
        {"wider plot", two, 5, 0, 0, 4, {130, 80}, 1},
        {"bars: left end", bar, 3, 3, 0, 2, {75, 40}, 0},
        {"bars: end of the first group", bar, 3, 3, 0, 2, {105, 40}, 0},
        {"bars: begin of the second", bar, 3, 3, 0, 2, {106, 120}, 1},
        {"bars: end of the last", bar, 3, 3, 0, 2, {180, 40}, 2},
        {"bars: behind the last", bar, 3, 3, 0, 2, {181, 40}, -1},
        {"bars: those before the range have no place", bar, 3, 0, 1, 2, {75, 40}, 1},
        {"bars: second of those", bar, 3, 0, 1, 2, {135, 40}, 2},
        {"bars: nothing in the range", bar, 3, 0, 10, 20, {80, 40}, -1},
        {"bars: no samples", bar, 0, 0, 0, 2, {80, 40}, -1},
        {"unknown style", static_cast<CGraphCtrl::GraphStyle>(3), 5, 0, 0, 4, {131, 80}, -1},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        graph.ResetAll();
        for (int i = 0; i < each.first; ++i)
            Add(0, {1.0});
        for (int i = 0; i < each.second; ++i)
            Add(1, {1.0});
        FixX(each.min, each.max);
        graph.SetGraphStyle(each.style);
        graph.ShowLegend(TRUE);
        graph.Redraw();
        Settle();
        parent.SetFocus();
        if (each.index == -1 && each.first > 0)
            Mark(0); // a miss takes it away
        Strings expected = {Told(GCN_SELCHANGE, each.index), "focus", PostedMark(each.index)};
        if (graph.m_SelectionMarkPos != each.index)
            expected.insert(expected.begin(), Event(each.index));
        EXPECT_EQ(Click(each.point), expected);
        EXPECT_EQ(graph.m_SelectionMarkPos, each.index);
        EXPECT_EQ(Click(each.point), (Strings{Told(GCN_SELCHANGE, each.index), PostedMark(each.index)}))
            << "a second time nothing changes, and it is told all the same";
    }
}

TEST_F(GraphMouseTest, ClickRepaintsTheDataRegionAndOneBesideThePlotOnlyTakesTheFocus) {
    Mark(2);
    for (const CPoint outside : {kBesidePlot, CPoint(73, 80), CPoint(187, 80), CPoint(80, 36),
                                 CPoint(80, 127), CPoint(-5, -5), CPoint(250, 60)}) {
        SCOPED_TRACE(std::to_string(outside.x) + "," + std::to_string(outside.y));
        parent.SetFocus();
        EXPECT_EQ(Click(outside), Strings{"focus"});
        EXPECT_EQ(graph.m_SelectionMarkPos, 2);
    }
    Settle();
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kBesidePlot.x, kBesidePlot.y));
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(131, 80));
    EXPECT_EQ(Text(UpdateRect()), kDataRegion) << "though the mark was there already";
    graph.SetYTickLabelWidth(900);
    graph.Redraw();
    Settle();
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 80));
    EXPECT_EQ(graph.m_SelectionMarkPos, 0) << "the plot of the last paint";
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
            EXPECT_EQ(::GetFocus(), parent.m_hWnd) << "the focus moves last";
            MSG waiting = {};
            EXPECT_TRUE(
                ::PeekMessage(&waiting, parent.m_hWnd, WM_GRAPH_SELMARK, WM_GRAPH_SELMARK, PM_NOREMOVE))
                << "posted before";
            EXPECT_EQ(static_cast<int>(waiting.wParam), each.index);
        };
        graph.SendMessage(each.message, each.wParam, each.lParam);
        parent.onNoted = nullptr;
        EXPECT_EQ(notifications, 1);
        testkit::Pump();
    }
}

TEST_F(GraphMouseTest, TheHitTestIsVirtual) {
    class Fixed : public OpenGraph {
    public:
        CPoint asked{0, 0};

    protected:
        int GetIndexFromPt(CPoint point) override {
            asked = point;
            return 3;
        }
    } fixed;
    ASSERT_TRUE(fixed.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(300, 0, 600, 200), &parent, 8));
    fixed.UpdateWindow();
    fixed.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 50));
    EXPECT_EQ(fixed.asked, CPoint(3000, 1500)) << "logical units";
    EXPECT_EQ(fixed.m_SelectionMarkPos, 3);
    fixed.DestroyWindow();
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
    EXPECT_EQ(Send(WM_LBUTTONUP, 0, MAKELPARAM(131, 80)), Strings{"default up"}) << "nothing was pressed";
}

TEST_F(GraphMouseTest, DoubleClickTellsWhichAreaWasHit) {
    // Legend rows are 400 units high from 1150 on: pixels 38.3, 51.7, 65, 78.3 ...
    graph.SetLegend(0, "zero");
    graph.SetLegend(2, "two");
    graph.SetLegend(12, "twelve");
    struct Case {
        const char* name;
        CPoint point;
        UINT code;
        int index;
    };
    const auto check = [this](const Case& each) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(Send(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_CONTROL, MAKELPARAM(each.point.x, each.point.y)),
                  Strings{ToldMouse(each.code, MK_LBUTTON | MK_CONTROL, each.point, each.index)});
        EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    };
    graph.Redraw();
    Settle();
    for (const Case& each : {
             Case{"plot", {131, 80}, GCN_DBLCLK, -1},
             Case{"title, not a caption", {150, 5}, GCN_DBLCLK, -1},
             Case{"left of the legend", {193, 45}, GCN_DBLCLK, -1},
             Case{"right of the legend", {294, 45}, GCN_DBLCLK, -1},
             Case{"above the legend", {200, 36}, GCN_DBLCLK, -1},
             Case{"under the legend", {200, 180}, GCN_DBLCLK, -1},
             Case{"legend's edge above the first row", {194, 38}, GCN_DBLCLK_LEGEND, -1},
             Case{"begin of the first row", {293, 39}, GCN_DBLCLK_LEGEND, 0},
             Case{"end of the first row", {200, 51}, GCN_DBLCLK_LEGEND, 0},
             Case{"row without a text", {200, 52}, GCN_DBLCLK_LEGEND, -1},
             Case{"end of that row", {200, 64}, GCN_DBLCLK_LEGEND, -1},
             Case{"row of dataset 2", {200, 65}, GCN_DBLCLK_LEGEND, 2},
             Case{"row of dataset 3", {200, 79}, GCN_DBLCLK_LEGEND, -1},
             Case{"last pixel row", {200, 179}, GCN_DBLCLK_LEGEND, -1},
         })
        check(each);

    graph.m_LegendItemHeight = 0; // rows of 100 units, so that all thirteen have room
    for (const Case& each : {
             Case{"last dataset", {200, 79}, GCN_DBLCLK_LEGEND, 12},
             Case{"past the last dataset", {200, 82}, GCN_DBLCLK_LEGEND, -1},
         })
        check(each);

    graph.SetTitleStyle(CGraphCtrl::TitleStyleCaption);
    graph.ShowIconMaximize(TRUE, FALSE);
    graph.Redraw();
    Settle();
    const CPoint icon = ToDevice(graph.m_rectIconMaximize).CenterPoint();
    const int bottom = ToDevice(graph.m_rectCaption).bottom;
    for (const Case& each : {
             Case{"caption", {0, 0}, GCN_DBLCLK_CAPTION, -1},
             Case{"icon in the caption", icon, GCN_DBLCLK_CAPTION, -1},
             Case{"under the caption", {50, bottom + 1}, GCN_DBLCLK, -1},
         })
        check(each);
}

TEST_F(GraphMouseTest, SendFunctionsTellWithoutPosting) {
    Mark(3);
    EXPECT_EQ(Traffic([this] { graph.SendSelchangeNotifyMessage(); }), Strings{Told(GCN_SELCHANGE, 3)});
    EXPECT_EQ(Traffic([this] { graph.SendRemoveDataNotifyMessage(-5, INT_MAX); }),
              Strings{Told(GCN_REMOVEDATA, -5, INT_MAX)});
    EXPECT_EQ(Traffic([this] { graph.SetSelectionMarkPos(1); }), Strings{Event(1)})
        << "the parent is not told";
    EXPECT_EQ(Traffic([this] { graph.SetSelectionMarkPos(1); }), Strings()) << "nothing moved";
    EXPECT_EQ(Traffic([this] { graph.ResetData(1); }), Strings{Event(-1)});
    OpenGraph windowless;
    windowless.SendSelchangeNotifyMessage();
    windowless.SendRemoveDataNotifyMessage(0, 1);
    testkit::Pump();
    EXPECT_EQ(Traffic([&] { windowless.SetSelectionMarkPos(-1); }), Strings());
}
