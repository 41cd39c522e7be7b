// SPDX-License-Identifier: MIT
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
    static double LastX(const CMonitorGraph& graph) { return graph.*(&Inside::m_XVisibleMax); }
    static int RowHeight(const CMonitorGraph& graph) {
        return graph.*(&Inside::m_LegendMargin) + graph.*(&Inside::m_LegendItemHeight);
    }
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
    void PressEscape() {
        MSG message{m_graph->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
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
    } const cases[] = {{20, 0.2, "1970-01-01 00:20:00   up: 20"},
                       {80.3, 0.01, "1970-01-01 01:20:00   down: 20"},
                       {20, 1.2, ""}};
    for (const auto& given : cases) {
        Point(given.x, given.share);
        EXPECT_EQ(Pane(kPointerPane), given.text);
    }
    Point(20, 0.9);
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
    const int second = plot.left + bar * 3 * 4 + bar + bar / 2;
    Mouse(WM_MOUSEMOVE, CPoint(second / kPixel, plot.CenterPoint().y / kPixel));
    EXPECT_EQ(Pane(kPointerPane), "1970-01-01 00:04:00   down: 96");

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
        EXPECT_EQ(Inside::Top(*m_graph), top) << "the value axis stands still";
        Point(20, 0.9);
        EXPECT_EQ(Pane(kPointerPane).find("down") != std::string::npos, visible) << Pane(kPointerPane);
    }
    EXPECT_FALSE(m_frame->Filled());
}

TEST_F(MainFrame, GraphFillsTheWindowAndGoesBackEveryWay) {
    Open({Ramps(101)});
    const HMENU menu = ::GetMenu(m_frame->m_hWnd);
    const std::string title = TitleOf(*m_frame);
    const auto expectFilled = [&](bool filled, const char* after) {
        SCOPED_TRACE(after);
        EXPECT_EQ(m_frame->Filled(), filled);
        EXPECT_EQ(Inside::Maximized(*m_graph), filled);
        EXPECT_EQ(::GetMenu(m_frame->m_hWnd), filled ? nullptr : menu);
        EXPECT_EQ(m_frame->GetDlgItem(IDC_STATUS)->IsWindowVisible() != FALSE, !filled);
        CRect inside;
        CRect graph;
        m_frame->GetClientRect(&inside);
        m_graph->GetWindowRect(&graph);
        EXPECT_EQ(graph.Size() == inside.Size(), filled);
    };
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"F11", [this] { Command(ID_VIEW_FILL); }},
        {"a click on the icon", [this] { ClickIcon(); }},
        {"a double-click on the caption",
         [this] { Mouse(WM_LBUTTONDBLCLK, Middle(Inside::Caption(*m_graph))); }},
        {"a double-click on the icon, which moves from under the pointer", [this] {
             CPoint point = Middle(Inside::Icon(*m_graph));
             m_graph->ClientToScreen(&point);
             ClickIcon();
             m_graph->ScreenToClient(&point);
             Mouse(WM_LBUTTONDBLCLK, point);
             Mouse(WM_LBUTTONUP, point);
         }}};
    for (const auto& [name, act] : ways) {
        act();
        expectFilled(true, name);
        act();
        expectFilled(false, name);
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
    PressEscape();
    expectFilled(false, "the next Escape");
    EXPECT_EQ(TitleOf(*m_frame), title);
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:00:00  to  1970-01-01 01:40:00") << "not what it said before";
}

TEST_F(MainFrame, RemovingDataBeforeTheMarkReachesEverythingThatShowsThem) {
    constexpr int rows = 60'000;
    const std::string file = Ramps(rows);
    struct {
        const char* name;
        UINT style;
        recording::VisibleRange visible;
        int mark;
        std::size_t removed; ///< in runs
        std::size_t last;    ///< visible then; 0: depends on the width
    } const cases[] = {{"zoomed", ID_VIEW_LINE, {1000, 2999}, 500, 1500, 1499},
                       {"reduced, highest of a run", ID_VIEW_LINE, {0, rows - 1}, 401, 200, rows - 601},
                       {"reduced, nothing before", ID_VIEW_LINE, {0, rows - 1}, 1, 0, rows - 1},
                       {"bars", ID_VIEW_BAR, {0, rows - 1}, 9, 9, 0}};
    for (const auto& given : cases) {
        SCOPED_TRACE(given.name);
        Open({file});
        Command(given.style);
        m_graph->SetVisible(given.visible);
        const auto removed = static_cast<int>(given.removed * m_graph->SamplesEach());
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
        EXPECT_EQ(now.series[1].values.front(), 100 - removed);
        EXPECT_TRUE(given.last == 0 || m_graph->Visible().last == given.last);
        EXPECT_EQ(m_graph->Visible().first, 0u);
        EXPECT_EQ(m_graph->SelectionMark().index, -1);
        double value = 0;
        EXPECT_TRUE(m_graph->GetYData(0, 0, value));
        EXPECT_TRUE(value >= removed && value < removed + static_cast<double>(m_graph->SamplesEach()));
        const std::string first =
            recording::FormatDateTime(now.times.front(), recording::TimePrecision::Seconds);
        EXPECT_EQ(Pane(kTextPane).substr(0, first.size()), first);
        EXPECT_EQ(Pane(kSummaryPane).find("removed") != std::string::npos, removed > 0) << Pane(kSummaryPane);
    }
}

TEST_F(MainFrame, LiveReadingsGoOnAfterTheirHeadWasRemoved) {
    Open({});
    for (int i = 0; i < 6; ++i)
        Tick();
    const auto times = m_graph->Source().recording->times;
    const std::size_t count = times.size();
    m_graph->SetSelectionMarkPos(4);
    testkit::MessageBoxWatcher person(IDYES);
    Command(ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    ASSERT_EQ(person.Boxes().size(), 1u);
    m_graph->SetSelectionMarkPos(0);
    Tick();
    EXPECT_EQ(m_graph->Source().recording->times.front(), times[4]) << "what was removed does not come back";
    EXPECT_EQ(m_graph->GetDatasetSize(0), static_cast<int>(count - 3));
    EXPECT_EQ(m_graph->SelectionMark().time, times[4]);
    Command(ID_GRAPH_CLEAR_SELECTION_MARK);
    EXPECT_EQ(m_graph->SelectionMark().index, -1);
    EXPECT_EQ(Pane(kTextPane).substr(0, 3), "CPU");
}

TEST_F(MainFrame, CopyReachesTheClipboard) {
    Open({Ramps(101)});
    ClearClipboard();
    Command(ID_EDIT_COPY);
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
    EXPECT_EQ(Pane(kTextPane).substr(0, 6), "Copied");
    Press(VK_RIGHT);
    EXPECT_EQ(Pane(kTextPane), "1970-01-01 00:00:00   up: 0   down: 100") << "until something changes";

    // The system treats another thread as it treats another program.
    std::promise<void> opened, release;
    std::thread holder([&] {
        EXPECT_TRUE(::OpenClipboard(nullptr));
        opened.set_value();
        release.get_future().wait();
        ::CloseClipboard();
    });
    opened.get_future().wait();
    Command(ID_EDIT_COPY);
    EXPECT_EQ(Pane(kTextPane), "Not copied: another program holds the clipboard. Try again");
    release.set_value();
    holder.join();
}

} // namespace
} // namespace kavlix::test
