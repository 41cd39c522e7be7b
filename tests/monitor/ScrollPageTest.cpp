// SPDX-License-Identifier: MIT
// The scroll page: what moves together, what stays, and the texts.

#include <afxres.h>

#include <kavlix/Kavlix.h>

#include <cmath>
#include <cwchar>
#include <random>

#include "monitor/ScrollPage.h"
#include "tests/monitor/FrameWithPage.h"
#include "tests/support/ImportHook.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/MetafileRecorder.h"

namespace kavlix::test {
namespace {

using monitor::CMonitorScrollGraph, monitor::CScrollPage, monitor::GraphSettings, monitor::LiveReadings,
    monitor::PageContent, recording::MachineRates, recording::Time;

constexpr Time S = recording::kMicrosPerSecond;
constexpr double kX = recording::kTimeUnitsPerSecond;

/// A day without a change of the clocks in any zone: 2021-01-12 10:00:00.
const Time kStart = recording::FromCivil({2021, 1, 12, 10, 0, 0, 0});

/// The rules of New York for every year, in place of the system's function.
BOOL WINAPI NewYork(USHORT, PDYNAMIC_TIME_ZONE_INFORMATION, LPTIME_ZONE_INFORMATION zone) {
    *zone = {};
    zone->Bias = 300;
    zone->DaylightBias = -60;
    zone->DaylightDate = {0, 3, 0, 2, 2, 0, 0, 0}; // the second Sunday in March
    zone->StandardDate = {0, 11, 0, 1, 2, 0, 0, 0};
    return TRUE;
}

/// The zone's name, for code that caches rules by name.
DWORD WINAPI InNewYork(PDYNAMIC_TIME_ZONE_INFORMATION zone) {
    *zone = {};
    std::wcscpy(zone->TimeZoneKeyName, L"Eastern Standard Time");
    return TIME_ZONE_ID_UNKNOWN;
}

struct InsideScroll : CMonitorScrollGraph {
    static CRect Plot(const CMonitorScrollGraph& graph) { return graph.*(&InsideScroll::m_rectPlot); }
    static double Width(const CMonitorScrollGraph& graph) { return graph.*(&InsideScroll::m_dViewWidth); }
    static double High(const CMonitorScrollGraph& graph) { return graph.*(&InsideScroll::m_YVisibleMax); }
};

/// The page in a host that gives it the content of the test.
class ScrollPage : public testing::Test, protected monitor::PageHost {
protected:
    ScrollPage() : m_page(*this) {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP | WS_VISIBLE, CRect(0, 0, 900, 600),
                          nullptr, 0);
        EXPECT_TRUE(m_page.CreatePage(m_parent, 1));
        m_page.MoveWindow(0, 0, 900, 600);
        m_page.ShowWindow(SW_SHOWNA);
        for (int i = 0; i < 2; ++i)
            m_graph[i] = dynamic_cast<CMonitorScrollGraph*>(m_page.GetDlgItem(IDC_UPPER_GRAPH + i));
    }
    ~ScrollPage() override { m_parent.DestroyWindow(); }

    const PageContent& Content() const override { return m_content; }
    void ChangeSettings(GraphSettings settings) override {
        m_content.settings = std::move(settings);
        m_page.Update();
    }
    void RemoveHead(std::size_t count) override {
        ++m_content.cuts;
        if (m_content.live)
            m_content.live->RemoveHead(count);
        m_content.lost += count;
        m_page.Update();
    }
    void KeepAtMost(std::size_t count) override {
        m_content.live->KeepAtMost(count);
        m_page.Update();
    }
    void ShowSelection() override {}
    void ShowPointer() override {}
    void Say(const std::string& notice) override { m_said = notice; }
    bool Filled() const override { return m_filled; }
    void Fill(bool fill) override { m_page.ShowFilling(m_filled = fill); }

    void BeginLive() {
        ++m_content.generation;
        m_content.live = std::make_unique<LiveReadings>();
        m_content.settings =
            monitor::DefaultSettings("live", m_content.live->SeriesNames(), 1000, CGraphCtrl::GraphStyleLine);
        m_page.Update();
    }
    /// Adds readings, one a second; the processor's value is the number of the reading modulo 100. Updates
    /// the page after every tenth reading and after the last.
    void Live(int count) {
        constexpr int together = 10;
        for (int i = 0; i < count; ++i, ++m_taken) {
            MachineRates rates;
            rates.processorPercent = m_taken % 100;
            rates.memoryPercent = 30;
            rates.bytesInPerSecond = 1000 * m_taken;
            rates.bytesOutPerSecond = 5;
            m_content.live->Add(kStart + m_taken * S + S / 3, rates);
            if (i % together == together - 1 || i + 1 == count)
                m_page.Update();
        }
    }
    void Record(std::vector<Time> times, std::size_t series, Time interval) {
        auto recording = std::make_shared<recording::Recording>();
        std::vector<std::string> names;
        for (std::size_t i = 0; i < series; ++i) {
            names.push_back("s" + std::to_string(i));
            recording->series.push_back({names.back(), 0, {}});
            for (std::size_t row = 0; row < times.size(); ++row)
                recording->series[i].values.push_back(static_cast<double>(row) * std::pow(1000, i));
        }
        recording->files.resize(1);
        recording->files[0].interval = interval;
        recording->times = std::move(times);
        ++m_content.generation;
        m_content.lost = 0;
        m_content.recording = recording;
        m_content.settings = monitor::DefaultSettings("file", names, 1000, CGraphCtrl::GraphStyleLine);
        m_page.Update();
        while (m_page.WorkInIdle())
            ;
    }

    double Position(int graph = 0) const { return m_graph[graph]->ScrollPosition(); }
    /// The time of the first row in view, in seconds since kStart.
    long FirstSecond(int graph = 0) const {
        return m_graph[graph]->GetTimeInfo(m_graph[graph]->FirstVisible()) - m_graph[graph]->GetTimeInfo(0);
    }
    void Scroll(int graph, UINT code, UINT thumb = 0) {
        m_graph[graph]->SendMessage(WM_HSCROLL, MAKEWPARAM(code, thumb), 0);
    }
    void Command(UINT id) { m_page.OnCmdMsg(id, CN_COMMAND, nullptr, nullptr); }
    void Click(int graph, int row) {
        m_graph[graph]->UpdateWindow();
        const CRect plot = InsideScroll::Plot(*m_graph[graph]);
        const double x = (m_graph[graph]->GetXOffset(row) * kX - Position(graph)) * plot.Width() /
                         InsideScroll::Width(*m_graph[graph]);
        m_graph[graph]->SendMessage(
            WM_LBUTTONDOWN, 0,
            MAKELPARAM(static_cast<int>((plot.left + x) / recording::kUnitsPerPixel + 0.5),
                       plot.CenterPoint().y / recording::kUnitsPerPixel));
    }

    CWnd m_parent;
    PageContent m_content;
    CScrollPage m_page;
    CMonitorScrollGraph* m_graph[2];
    std::string m_said;
    bool m_filled = false;
    int m_taken = 0;
};

// Random actions of the person among live readings, against what must hold after each.
TEST_F(ScrollPage, LiveReadingsStayCompleteAndInPlaceWhateverThePersonDoes) {
    std::mt19937 random(14);
    BeginLive();
    Live(400);
    EXPECT_EQ(InsideScroll::Width(*m_graph[1]), 300 * kX);
    const CMonitorScrollGraph& graph = *m_graph[0];
    std::uint64_t first = 0; // the oldest reading in the graphs
    std::uint64_t end = 400; // and the number behind the newest one
    bool paused = false;
    const auto reading = [&](int row) { return row < 0 ? -1 : static_cast<long>(first) + row; };
    for (int step = 0; step < 300; ++step) {
        const unsigned action = random() % 12;
        const int side = static_cast<int>(random() % 2);
        SCOPED_TRACE(action);
        const bool following = graph.ShowsNewest();
        const std::uint64_t shown = end;
        const long view = reading(graph.FirstVisible());
        const long mark = reading(graph.MarkedRow());
        const bool removes = action == 7 && graph.MarkedRow() > 0 && random() % 4 == 0;
        if (action < 3) {
            Live(1 + static_cast<int>(random() % 60));
        } else if (action == 3) {
            Command(ID_SCROLL_PAUSE);
            paused = !paused;
        } else if (action == 4) {
            KeepAtMost(350 + random() % 800);
        } else if (action == 5) {
            Command(ID_SCROLL_NEWEST);
            const double last = graph.GetXOffset(graph.Rows() - 1) * kX;
            ASSERT_NEAR(Position(), std::max(last - 0.9 * 300 * kX, 0.0), kX);
        } else if (action == 6) {
            Click(side, graph.FirstVisible() + 3 + static_cast<int>(random() % 5));
        } else if (removes) {
            testkit::MessageBoxWatcher person(IDYES);
            m_graph[side]->SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
            ASSERT_EQ(person.Boxes().size(), 1u);
            first = static_cast<std::uint64_t>(mark);
        } else {
            const UINT codes[] = {SB_PAGELEFT, SB_LINELEFT, SB_LINERIGHT, SB_THUMBTRACK};
            Scroll(side, codes[random() % 4], random() % 400);
        }
        first = paused ? first : m_content.live->First();
        end = paused ? end : m_content.live->End();

        for (const CMonitorScrollGraph* each : m_graph) {
            ASSERT_EQ(each->Rows(), static_cast<int>(end - first));
            ASSERT_EQ(each->ScrollPosition(), Position());
            ASSERT_EQ(each->ScrollPosition(), each->GetXOffset(each->FirstVisible()) * kX);
            ASSERT_EQ(each->MarkedRow(), graph.MarkedRow());
        }
        for (int row = 0; row < graph.Rows(); row += 7) {
            ASSERT_EQ(m_graph[0]->ValueOf(0, row), reading(row) % 100);
            ASSERT_EQ(m_graph[1]->ValueOf(0, row), 1000 * reading(row));
        }
        ASSERT_EQ(InsideScroll::High(*m_graph[0]), 100) << "percents";
        ASSERT_GE(InsideScroll::High(*m_graph[1]), 1000 * reading(graph.LastVisible()))
            << "what is in view fits";
        ASSERT_EQ(m_page.ViewTexts()[0].find("Paused: ") == 0, paused);
        if (action < 5 || removes) {
            // When the samples left are all in view, the view follows the next ones.
            const bool follows = following || shown < first + 300;
            ASSERT_TRUE(graph.ShowsNewest() == following || follows);
            ASSERT_TRUE(follows || reading(graph.FirstVisible()) == std::max(view, static_cast<long>(first)));
        }
        const long left = removes || mark < static_cast<long>(first) ? -1 : mark;
        ASSERT_TRUE(action == 6 || reading(graph.MarkedRow()) == left);
    }
}

TEST_F(ScrollPage, TheWheelMovesBothGraphs) {
    BeginLive();
    Live(1000);
    Command(ID_VIEW_EARLIER);
    const double before = Position();
    // The wheel reaches the page from either graph. A rotation of less than a step waits for the rest.
    m_graph[1]->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 20), 0);
    EXPECT_EQ(Position(), before);
    m_graph[0]->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 20), 0);
    EXPECT_EQ(Position(), before - 0.01 * InsideScroll::Width(*m_graph[0]));
    EXPECT_EQ(Position(1), Position());
}

TEST_F(ScrollPage, RangesKeepWhatThePersonLooksAt) {
    std::vector<Time> times;
    for (int i = 0; i < 20'000; ++i)
        times.push_back(kStart + i * 60 * S);
    Record(times, 2, 60 * S);
    EXPECT_TRUE(m_graph[0]->ShowsNewest());
    Scroll(0, SB_THUMBTRACK, 300);
    const int middle = (m_graph[0]->FirstVisible() + m_graph[0]->LastVisible()) / 2;
    for (const UINT id : {ID_SCROLL_RANGE_24_HOURS, ID_SCROLL_RANGE_15_MINUTES, ID_SCROLL_RANGE_7_DAYS}) {
        Command(id);
        EXPECT_EQ(InsideScroll::Width(*m_graph[0]), recording::kViewRanges[id - ID_SCROLL_RANGE_FIRST] * kX);
        EXPECT_NEAR((m_graph[0]->FirstVisible() + m_graph[0]->LastVisible()) / 2, middle, 3) << id;
    }
    Click(1, middle + 2000);
    EXPECT_NEAR(m_graph[0]->MarkedRow(), middle + 2000, 10);
    Command(ID_VIEW_ZOOM_IN);
    const int mark = m_graph[0]->MarkedRow();
    EXPECT_TRUE(m_graph[0]->FirstVisible() <= mark && mark <= m_graph[0]->LastVisible());
    Scroll(0, SB_PAGELEFT);
    Scroll(0, SB_PAGELEFT);
    m_graph[0]->SendMessage(WM_KEYDOWN, VK_LEFT, 1);
    EXPECT_TRUE(m_graph[1]->FirstVisible() <= mark - 1 && mark - 1 <= m_graph[1]->LastVisible())
        << "the view goes to a mark that is moved";
}

TEST_F(ScrollPage, TheViewBeginsAtASampleWhereverItGoes) {
    // Five minutes apart, with a gap of ten hours.
    std::vector<Time> times;
    for (int i = 0; i < 2000; ++i)
        times.push_back(kStart + (i * 300 + (i < 1000 ? 0 : 36'000)) * S);
    Record(times, 1, 300 * S);
    EXPECT_EQ(m_graph[0]->Rows(), 2000 + 120) << "as many as would have been read";
    EXPECT_FALSE(m_graph[1]->IsWindowVisible()) << "one series needs one graph";
    Command(ID_SCROLL_RANGE_6_HOURS);
    long before = FirstSecond();
    for (const UINT code : {SB_LINELEFT, SB_LINELEFT, SB_PAGELEFT, SB_LINERIGHT}) {
        Scroll(0, code);
        EXPECT_EQ(Position(), m_graph[0]->GetXOffset(m_graph[0]->FirstVisible()) * kX);
        EXPECT_EQ(FirstSecond() < before, code != SB_LINERIGHT) << "a step is at least a sample";
        before = FirstSecond();
    }
}

TEST(LocalStamps, StampsReadAsTheFileDoesAndNeverGoBack) {
    const testkit::ImportHook zone("KavlixMfcU.dll", "GetTimeZoneInformationForYear",
                                   reinterpret_cast<void*>(&NewYork));
    ASSERT_TRUE(zone.Installed());
    for (const recording::CivilTime& day :
         {recording::CivilTime{2021, 3, 13, 0, 0, 0, 0}, recording::CivilTime{2021, 11, 6, 0, 0, 0, 0}}) {
        monitor::LocalStamps clock;
        long before = 0;
        for (Time time = recording::FromCivil(day); time < recording::FromCivil(day) + 72 * 3600 * S;
             time += 600 * S + S / 2) {
            const long stamp = clock.Stamp(time);
            EXPECT_GE(stamp, before);
            before = stamp;
            const recording::CivilTime civil = recording::ToCivil(time);
            const CTime shown(stamp);
            const bool leftOut = day.month == 3 && civil.day == 14 && civil.hour == 2;
            EXPECT_TRUE(leftOut || (shown.GetHour() == civil.hour && shown.GetMinute() == civil.minute))
                << recording::FormatExact(time);
        }
    }
}

TEST_F(ScrollPage, LabelsAndTindroTellTheTimesOfTheFile) {
    const testkit::ImportHook stamps("KavlixMfcU.dll", "GetTimeZoneInformationForYear",
                                     reinterpret_cast<void*>(&NewYork));
    const testkit::ImportHook rules("KavlixU.dll", "GetTimeZoneInformationForYear",
                                    reinterpret_cast<void*>(&NewYork));
    const testkit::ImportHook zone("KavlixU.dll", "GetDynamicTimeZoneInformation",
                                   reinterpret_cast<void*>(&InNewYork));
    for (const recording::CivilTime& day :
         {recording::CivilTime{2021, 1, 12, 23, 59, 58, 0}, recording::CivilTime{1969, 7, 1, 23, 0, 0, 0}}) {
        const Time start = recording::FromCivil(day);
        Record({start, start + S, start + 2 * S, start + 3 * S}, 2, S);
        Click(1, 3);
        m_graph[1]->SendMessage(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK);
        std::string text = recording::FormatExact(start + 3 * S);
        EXPECT_EQ(m_page.MarkTexts()[0], text + "   s0: 3   s1: 3000");
        text[4] = text[7] = '/';
        EXPECT_EQ(m_said, "For Tindro: the mark is at " + text);
    }
    // The night when clocks go back: the labels show the repeated hour twice and go on.
    std::vector<Time> night;
    for (int i = 0; i < 360; ++i)
        night.push_back(recording::FromCivil({2026, 10, 31, 23, 0, 0, 0}) + i * 60 * S);
    Record(night, 1, 60 * S);
    testkit::MetafileRecorder picture;
    m_graph[0]->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.Dc()), PRF_CLIENT);
    picture.Close();
    std::string hours;
    for (const std::string& text : picture.Texts())
        if (text.find(":00:00") == 2)
            hours += text.substr(0, 2) + " ";
    EXPECT_EQ(hours, "23 00 01 01 02 03 04 ");
    CMenu menu;
    Command(ID_SCROLL_TINDRO);
    menu.CreatePopupMenu();
    m_graph[0]->InsertGraphMenu(menu);
    EXPECT_TRUE(m_graph[0]->IsMenuItem(menu, ID_GRAPH_SEND_SELECTION_MARK));
}

TEST_F(ScrollPage, GraphFillsThePageAndNothingLiesUnderTheScrollBar) {
    BeginLive();
    Live(5);
    for (const CSize size : {CSize(300, 200), CSize(900, 600)}) {
        m_page.MoveWindow(0, 0, size.cx, size.cy);
        for (CMonitorScrollGraph* graph : m_graph) {
            graph->UpdateWindow();
            CRect bar;
            graph->GetDlgItem(100)->GetWindowRect(&bar);
            graph->ScreenToClient(&bar);
            EXPECT_LE(InsideScroll::Plot(*graph).bottom, bar.top * recording::kUnitsPerPixel);
            EXPECT_EQ(InsideScroll::Plot(*graph).left, InsideScroll::Plot(*m_graph[0]).left);
        }
    }
    m_graph[1]->SetFocus();
    Fill(true);
    CRect graph;
    m_graph[1]->GetClientRect(&graph);
    EXPECT_EQ(graph.Size(), CSize(900, 600));
    EXPECT_FALSE(m_graph[0]->IsWindowVisible());
    Live(400);
    EXPECT_EQ(Position(0), Position(1)) << "the hidden one goes on";
    Fill(false);
    EXPECT_TRUE(m_graph[0]->IsWindowVisible());
}

TEST_F(ScrollPage, RemovingBeforeTheMarkReachesBothGraphsAndTheHost) {
    BeginLive();
    Live(500);
    testkit::MessageBoxWatcher person(IDYES);
    m_graph[1]->SetSelectionMarkPos(120);
    m_graph[1]->SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    EXPECT_EQ(m_content.live->First(), 120u);
    Live(1);
    EXPECT_EQ(m_graph[0]->Rows(), 381);
    EXPECT_EQ(m_graph[0]->MarkedRow(), -1);
    EXPECT_EQ(m_graph[0]->ValueOf(0, 0), 20);
    EXPECT_EQ(m_graph[1]->ValueOf(0, 380), 500'000);
}

class Pages : public FrameWithPage {};

TEST_F(Pages, OpenOnTheirDefaultAndOnWhatIsAskedFor) {
    const std::string file = m_folder.Write("a.csv", "time,a,b\n1000,1,2\n1060,3,4\n1120,5,6\n");
    const auto onScroll = [this] { return dynamic_cast<CScrollPage*>(&m_frame->Page()) != nullptr; };
    for (const bool live : {true, false}) {
        for (const std::string asked : {"", "graph", "scroll"}) {
            Open(asked, live ? std::vector<std::string>() : std::vector{file});
            EXPECT_EQ(onScroll(), asked == "scroll" || (asked.empty() && live)) << live << asked;
            Command(ID_PAGE_SCROLL);
            WorkOff();
            ASSERT_TRUE(onScroll());
            auto& graph = ControlOf<CMonitorScrollGraph>(IDC_UPPER_GRAPH);
            EXPECT_TRUE(live || graph.Rows() == 3);
            Command(ID_PAGE_GRAPH);
            EXPECT_FALSE(onScroll() || graph.IsWindowVisible());
        }
    }
}

} // namespace
} // namespace kavlix::test
