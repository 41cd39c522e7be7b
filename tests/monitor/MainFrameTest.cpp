// Mouse, keyboard and commands in the main window, on the graph page.

#include <afxres.h>

#include <functional>
#include <future>
#include <thread>

#include "monitor/MonitorGraph.h"
#include "tests/monitor/FrameWithPage.h"
#include "tests/support/MessageBoxWatcher.h"

namespace kavlix::test {
namespace {

using monitor::CMonitorGraph;

constexpr int kPixel = recording::kUnitsPerPixel;
constexpr int kTextPane = 0;
constexpr int kPointerPane = 1;
constexpr int kSummaryPane = 2;

/// Protected members of the control.
struct Inside : CMonitorGraph {
    static CRect Plot(const CMonitorGraph& graph) { return graph.*(&Inside::m_rectPlot); }
    static CRect Legend(const CMonitorGraph& graph) { return graph.*(&Inside::m_rectLegend); }
    static CRect Icon(const CMonitorGraph& graph) { return graph.*(&Inside::m_rectIconMaximize); }
    static CRect Caption(const CMonitorGraph& graph) { return graph.*(&Inside::m_rectCaption); }
    static bool Maximized(const CMonitorGraph& graph) { return graph.*(&Inside::m_IconMaximized) == TRUE; }
    static double Top(const CMonitorGraph& graph) { return graph.*(&Inside::m_YVisibleMax); }
    static double Bottom(const CMonitorGraph& graph) { return graph.*(&Inside::m_YVisibleMin); }
    static double LastX(const CMonitorGraph& graph) { return graph.*(&Inside::m_XVisibleMax); }
    static int RowHeight(const CMonitorGraph& graph) {
        return graph.*(&Inside::m_LegendMargin) + graph.*(&Inside::m_LegendItemHeight);
    }
};

/// Counts the texts and widths that are set in status bars of this thread.
class StatusWrites {
public:
    StatusWrites() : m_hook(SetWindowsHookEx(WH_CALLWNDPROC, Note, nullptr, GetCurrentThreadId())) {
        s_count = 0;
    }
    ~StatusWrites() { UnhookWindowsHookEx(m_hook); }
    int Count() const { return s_count; }

private:
    static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam) {
        const UINT message = reinterpret_cast<CWPSTRUCT*>(lParam)->message;
        s_count += message == SB_SETTEXTA || message == SB_SETTEXTW || message == SB_SETPARTS;
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static inline int s_count = 0;
    HHOOK m_hook;
};

class MainFrame : public FrameWithPage {
protected:
    /// Opens the window with these files, or with live readings.
    void Open(std::vector<std::string> files) {
        FrameWithPage::Open("graph", std::move(files));
        m_graph = &ControlOf<CMonitorGraph>(IDC_GRAPH);
    }
    /// A file of two series, up = its row and down = 100 - up, a row a minute.
    std::string Ramps(int rows) {
        std::string text = "time,up,down\n";
        for (int i = 0; i < rows; ++i)
            text += std::to_string(i * 60) + "," + std::to_string(i) + "," + std::to_string(100 - i) + "\n";
        return m_folder.Write("ramps.csv", text);
    }

    void Mouse(UINT message, CPoint point) { m_graph->SendMessage(message, 0, MAKELPARAM(point.x, point.y)); }
    void Point(double x, double share) { Mouse(WM_MOUSEMOVE, PlotPoint(x, share)); }
    void Press(UINT key) { m_graph->SendMessage(WM_KEYDOWN, key, 1); }
    /// Sends the key as the message loop does: to the frame first, then to the graph.
    void PressEscape(LPARAM flags = 1) {
        MSG message{m_graph->m_hWnd, WM_KEYDOWN, VK_ESCAPE, flags, 0, {}};
        if (!m_frame->PreTranslateMessage(&message))
            Press(VK_ESCAPE);
    }

    static CPoint Middle(CRect logical) {
        return CPoint(logical.CenterPoint().x / kPixel, logical.CenterPoint().y / kPixel);
    }
    /// The position of sample x with a value at this share of the plot's height, in client pixels.
    CPoint PlotPoint(double x, double share) {
        const CRect plot = Inside::Plot(*m_graph);
        const double across = plot.left + x * plot.Width() / Inside::LastX(*m_graph);
        return CPoint(static_cast<int>(across / kPixel + 0.5),
                      static_cast<int>((plot.bottom - share * plot.Height()) / kPixel));
    }
    CPoint LegendRow(int row) {
        const CRect legend = Inside::Legend(*m_graph);
        const int y = legend.top + Inside::RowHeight(*m_graph) * (2 * row + 1) / 2;
        return CPoint(legend.CenterPoint().x / kPixel, y / kPixel);
    }
    void ClickIcon() {
        const CPoint icon = Middle(Inside::Icon(*m_graph));
        Mouse(WM_LBUTTONDOWN, icon);
        Mouse(WM_LBUTTONUP, icon);
    }

    CMonitorGraph* m_graph = nullptr;
};

TEST_F(MainFrame, StatusBarTellsTheSeriesUnderThePointer) {
    Open({Ramps(101)});
    struct {
        double x;
        double share;
        const char* text;
    } const cases[] = {
        {20, 0.2, "1970-01-01 00:20:00   up: 20"},      {20, 0.9, "1970-01-01 00:20:00   down: 80"},
        {90, 0.7, "1970-01-01 01:30:00   up: 90"},      {20, 1.2, ""},
        {80.3, 0.01, "1970-01-01 01:20:00   down: 20"}, {101, 0.5, ""}};
    for (const auto& given : cases) {
        Point(given.x, given.share);
        EXPECT_EQ(Pane(kPointerPane), given.text) << given.x << " at " << given.share;
    }
    Point(20, 0.9);
    {
        const StatusWrites writes;
        Point(20, 0.88);
        EXPECT_EQ(writes.Count(), 0) << "the same sample is not written again";
        Point(21, 0.2);
        EXPECT_EQ(writes.Count(), 1) << "a shorter text, and the panes stand still";
    }
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:00:00  to  1970-01-01 01:40:00");
    m_graph->SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(Pane(kPointerPane), "");
    Mouse(WM_LBUTTONDOWN, PlotPoint(30, 0.5));
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:30:00   up: 30   down: 70");
    EXPECT_EQ(Pane(kSummaryPane), "101 rows, 2 series");
    EXPECT_EQ(Pane(kPointerPane), "") << "nor does it come back with the next change";
}

TEST_F(MainFrame, PointerFindsTheBarAndTheSeriesWhoseSamplesStandBetween) {
    Open({Ramps(9)});
    Command(ID_VIEW_BAR);
    const CRect plot = Inside::Plot(*m_graph);
    // The plot has nine groups of two bars and a gap.
    const int bar = plot.Width() / 9 / 3;
    for (const int series : {0, 1}) {
        const int x = plot.left + bar * 3 * 4 + bar * series + bar / 2;
        Mouse(WM_MOUSEMOVE, CPoint(x / kPixel, plot.CenterPoint().y / kPixel));
        EXPECT_EQ(Pane(kPointerPane),
                  series == 0 ? "1970-01-01 00:04:00   up: 4" : "1970-01-01 00:04:00   down: 96");
    }

    std::string even = "time,even\n";
    std::string odd = "time,odd\n";
    for (int i = 0; i < 200; ++i)
        (i % 2 == 0 ? even : odd) += std::to_string(i * 60) + (i % 2 == 0 ? ",10\n" : ",90\n");
    Open({m_folder.Write("even.csv", even), m_folder.Write("odd.csv", odd)});
    Point(100, 0.1);
    EXPECT_EQ(Pane(kPointerPane), "1970-01-01 01:40:00   even: 10");
    Point(100, 0.9);
    EXPECT_EQ(Pane(kPointerPane), "1970-01-01 01:39:00   odd: 90") << "its time is its sample's";
    m_graph->SetSelectionMarkPos(100);
    Press(VK_RIGHT);
    m_frame->SetWindowPos(nullptr, 0, 0, 330, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Pane(kTextPane).substr(0, 24), "1970-01-01 01:41:00   10") << "values rather than names";
    EXPECT_EQ(Pane(kSummaryPane), "");
    m_frame->SetWindowPos(nullptr, 0, 0, 1000, 600, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 01:41:00   even: 10 (01:40:00)   odd: 90")
        << "every series' value, with its own time where that is another";
}

TEST_F(MainFrame, LegendDoubleClickHidesAndShowsASeriesOnly) {
    Open({Ramps(101)});
    m_graph->SetVisible({10, 80});
    m_graph->SetSelectionMarkPos(7);
    const double top = Inside::Top(*m_graph);
    for (const bool visible : {false, true}) {
        Mouse(WM_LBUTTONDBLCLK, LegendRow(1));
        EXPECT_TRUE(m_graph->Settings().series[0].visible);
        EXPECT_EQ(m_graph->Settings().series[1].visible, visible);
        EXPECT_EQ(m_graph->SelectionMark().index, 7);
        EXPECT_EQ(m_graph->Visible().first, 10u);
        EXPECT_EQ(m_graph->Visible().last, 80u);
        EXPECT_EQ(Inside::Top(*m_graph), top) << "the value axis stands still";
        Point(20, 0.9);
        EXPECT_EQ(Pane(kPointerPane).find("down") != std::string::npos, visible) << Pane(kPointerPane);
    }
    const CRect legend = Inside::Legend(*m_graph);
    Mouse(WM_LBUTTONDBLCLK, CPoint(legend.CenterPoint().x / kPixel, legend.bottom / kPixel - 1));
    EXPECT_TRUE(m_graph->Settings().series[0].visible && m_graph->Settings().series[1].visible);
    EXPECT_FALSE(m_frame->Filled());
}

TEST_F(MainFrame, GraphFillsTheWindowAndGoesBackEveryWay) {
    Open({Ramps(101)});
    const HMENU menu = ::GetMenu(m_frame->m_hWnd);
    const std::string title = TitleOf(*m_frame);
    const auto expectFilled = [&](bool filled, const char* after) {
        EXPECT_EQ(m_frame->Filled(), filled) << after;
        EXPECT_EQ(Inside::Maximized(*m_graph), filled) << after;
        EXPECT_EQ(::GetMenu(m_frame->m_hWnd), filled ? nullptr : menu) << after;
        EXPECT_EQ(m_frame->GetDlgItem(IDC_STATUS)->IsWindowVisible() != FALSE, !filled) << after;
        CRect inside;
        CRect graph;
        m_frame->GetClientRect(&inside);
        m_graph->GetWindowRect(&graph);
        EXPECT_EQ(graph.Size() == inside.Size(), filled) << after;
    };
    const auto doubleClickIcon = [this](bool follows) {
        CPoint point = Middle(Inside::Icon(*m_graph));
        m_graph->ClientToScreen(&point);
        ClickIcon();
        m_graph->ScreenToClient(&point);
        Mouse(WM_LBUTTONDBLCLK, follows ? Middle(Inside::Icon(*m_graph)) : point);
        Mouse(WM_LBUTTONUP, follows ? Middle(Inside::Icon(*m_graph)) : point);
    };
    const struct {
        const char* name;
        std::function<void()> act;
        bool toggles;
    } ways[] = {{"F11", [this] { Command(ID_VIEW_FILL); }, true},
                {"a click on the icon", [this] { ClickIcon(); }, true},
                {"a double-click on the caption",
                 [this] { Mouse(WM_LBUTTONDBLCLK, Middle(Inside::Caption(*m_graph))); }, true},
                {"a double-click on the icon", [&] { doubleClickIcon(true); }, true},
                {"one on the icon that moves from under the pointer", [&] { doubleClickIcon(false); }, true},
                {"a press on the icon released elsewhere",
                 [this] {
                     Mouse(WM_LBUTTONDOWN, Middle(Inside::Icon(*m_graph)));
                     Mouse(WM_MOUSEMOVE, CPoint(5, 200));
                     Mouse(WM_LBUTTONUP, CPoint(5, 200));
                 },
                 false}};
    for (const auto& way : ways) {
        way.act();
        expectFilled(way.toggles, way.name);
        way.act();
        expectFilled(false, way.name);
    }

    Command(ID_VIEW_FILL);
    EXPECT_EQ(TitleOf(*m_frame), "1970-01-01 00:00:00  to  1970-01-01 01:40:00");
    m_graph->SetSelectionMarkPos(29);
    Press(VK_RIGHT);
    EXPECT_EQ(TitleOf(*m_frame), "1970-01-01 00:30:00   up: 30   down: 70");
    Point(20, 0.2);
    EXPECT_EQ(TitleOf(*m_frame),
              "1970-01-01 00:30:00   up: 30   down: 70   |   1970-01-01 00:20:00   up: 20");
    PressEscape();
    EXPECT_EQ(m_graph->SelectionMark().index, -1);
    expectFilled(true, "Escape that clears the mark");
    PressEscape(LPARAM{1} << 30 | 1);
    expectFilled(true, "the same Escape, held");
    PressEscape();
    expectFilled(false, "the next Escape");
    EXPECT_EQ(TitleOf(*m_frame), title);
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:00:00  to  1970-01-01 01:40:00") << "not what it said before";

    monitor::GraphSettings plain = m_graph->Settings();
    plain.titleStyle = CGraphCtrl::TitleStyleText;
    m_graph->SetSettings(plain);
    m_graph->UpdateWindow();
    Mouse(WM_LBUTTONDBLCLK, CPoint(200, 5));
    expectFilled(false, "a double-click without a caption");
    Command(ID_VIEW_FILL);
    expectFilled(true, "F11 without a caption");
}

TEST_F(MainFrame, RemovingDataBeforeTheMarkReachesEverythingThatShowsThem) {
    constexpr int rows = 60'000;
    const std::string file = Ramps(rows);
    struct {
        const char* name;
        UINT style;
        recording::VisibleRange visible;
        int mark;
        std::size_t each;    ///< samples of each run; 0: depends on the width
        std::size_t removed; ///< in runs
        recording::VisibleRange left;
    } const cases[] = {
        {"plain", ID_VIEW_LINE, {0, 19'999}, 5000, 1, 5000, {0, 14'999}},
        {"zoomed", ID_VIEW_LINE, {1000, 2999}, 500, 1, 1500, {0, 1499}},
        {"the first of a zoomed part", ID_VIEW_LINE, {1000, 2999}, 0, 1, 1000, {0, 1999}},
        {"reduced, lowest of a run", ID_VIEW_LINE, {0, rows - 1}, 400, 3, 200, {0, rows - 601}},
        {"reduced, highest of a run", ID_VIEW_LINE, {0, rows - 1}, 401, 3, 200, {0, rows - 601}},
        {"reduced, nothing before", ID_VIEW_LINE, {0, rows - 1}, 1, 3, 0, {0, rows - 1}},
        {"bars", ID_VIEW_BAR, {0, rows - 1}, 9, 0, 9, {0, 0}}};
    for (const auto& given : cases) {
        SCOPED_TRACE(given.name);
        Open({file});
        Command(given.style);
        m_graph->SetVisible(given.visible);
        const std::size_t each = m_graph->SamplesEach();
        ASSERT_TRUE(given.each == 0 || each == given.each) << each;
        const auto removed = static_cast<int>(given.removed * each);
        const auto before = m_graph->Source().recording;
        m_graph->SetSelectionMarkPos(given.mark);
        testkit::MessageBoxWatcher person(IDNO);
        m_graph->SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
        EXPECT_EQ(m_graph->Source().recording, before) << "No removes nothing";
        EXPECT_EQ(m_graph->SelectionMark().index, given.mark);

        person.SetAnswer(IDYES);
        m_graph->SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
        EXPECT_EQ(person.Boxes().size(), 2u);
        const recording::Recording& now = *m_graph->Source().recording;
        ASSERT_EQ(now.times.size(), static_cast<std::size_t>(rows - removed));
        EXPECT_EQ(now.times.front(), removed * recording::kMicrosPerMinute);
        EXPECT_EQ(now.series[0].values.front(), removed);
        EXPECT_EQ(now.series[1].values.back(), 100 - (rows - 1));
        EXPECT_TRUE(given.left.last == 0 || m_graph->Visible().last == given.left.last);
        EXPECT_EQ(m_graph->Visible().first, 0u);
        EXPECT_EQ(m_graph->SelectionMark().index, -1);
        double value = 0;
        EXPECT_TRUE(m_graph->GetYData(0, 0, value));
        EXPECT_GE(value, removed);
        EXPECT_LT(value, removed + static_cast<double>(m_graph->SamplesEach()));
        const std::string first =
            recording::FormatDateTime(now.times.front(), recording::TimePrecision::Seconds);
        EXPECT_EQ(Pane(kTextPane).substr(0, first.size()), first);
        EXPECT_NE(TitleOf(*m_graph).find(first.substr(0, 10)), std::string::npos) << TitleOf(*m_graph);
        EXPECT_EQ(Pane(kSummaryPane).find("removed") != std::string::npos, removed > 0) << Pane(kSummaryPane);
    }
}

TEST_F(MainFrame, LiveReadingsGoOnAfterTheirHeadWasRemoved) {
    Open({});
    for (int i = 0; i < 6; ++i)
        Tick();
    const auto times = m_graph->Source().recording->times;
    const std::size_t count = times.size();
    ASSERT_GE(count, 6u);
    m_graph->SetSelectionMarkPos(4);
    testkit::MessageBoxWatcher person(IDYES);
    Command(ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    ASSERT_EQ(person.Boxes().size(), 1u);
    EXPECT_EQ(m_graph->Source().recording->times.front(), times[4]);
    EXPECT_EQ(m_graph->GetDatasetSize(0), static_cast<int>(count - 4));
    m_graph->SetSelectionMarkPos(0);
    Tick();
    EXPECT_EQ(m_graph->Source().recording->times.front(), times[4]) << "what was removed does not come back";
    EXPECT_EQ(m_graph->GetDatasetSize(0), static_cast<int>(count - 3));
    EXPECT_EQ(m_graph->SelectionMark().time, times[4]);
    Command(ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    EXPECT_EQ(person.Boxes().size(), 1u) << "no question when there is nothing before the mark";
    Command(ID_GRAPH_CLEAR_SELECTION_MARK);
    EXPECT_EQ(m_graph->SelectionMark().index, -1);
    EXPECT_EQ(Pane(kTextPane).substr(0, 3), "CPU");
}

TEST_F(MainFrame, CopyReachesTheClipboardAndSaysWhenItDoesNot) {
    Open({Ramps(101)});
    for (CWnd* const receiver : {static_cast<CWnd*>(m_frame), static_cast<CWnd*>(m_graph)}) {
        ClearClipboard();
        receiver->SendMessage(WM_COMMAND, ID_EDIT_COPY);
        EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
        EXPECT_EQ(Pane(kTextPane).substr(0, 6), "Copied");
        m_graph->SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
        EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:00:00   up: 0   down: 100") << "until something changes";
        m_graph->SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    }
    // The graph still owns the clipboard's content, but another thread holds the clipboard open.
    std::promise<bool> opened;
    std::promise<void> done;
    std::thread other([&] {
        opened.set_value(::OpenClipboard(nullptr) != FALSE);
        done.get_future().wait();
        ::CloseClipboard();
    });
    ASSERT_TRUE(opened.get_future().get());
    Command(ID_EDIT_COPY);
    EXPECT_EQ(Pane(kTextPane).substr(0, 10), "Not copied");
    done.set_value();
    other.join();
    Command(ID_EDIT_COPY);
    EXPECT_EQ(Pane(kTextPane).substr(0, 6), "Copied");
}

} // namespace
} // namespace kavlix::test
