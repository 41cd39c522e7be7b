// SPDX-License-Identifier: MIT
// What the Monitor's graph chooses from its data and the size of its window.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

#include "tests/monitor/MadeRecordings.h"
#include "tests/support/OpenGraph.h"
#include "tests/support/Utf8.h"

namespace kavlix::test {
namespace {

using monitor::CMonitorGraph, monitor::GraphSettings, monitor::GraphSource;

/// The graph with its protected members open.
class Graph : public testkit::OpenGraphOf<CMonitorGraph> {
public:
    /// Paints the graph; returns the rectangle of the plot.
    CRect Plot() {
        CClientDC client(this);
        CDC dc;
        dc.CreateCompatibleDC(&client);
        SetMapModeAnisotropic(dc);
        DrawGraph(dc);
        return m_rectPlot;
    }
    int ValueTicks() { return Plot().Height() / 500; }
    std::string XLabel() const { return m_ShowXLabel ? testkit::Utf8(m_XLabel) : ""; }
    std::string Caption() const {
        CString text;
        GetWindowText(text);
        return testkit::Utf8(text);
    }
    std::string Legend(int i) const { return testkit::Utf8(m_Datasets[i].m_Legend); }
};

class MonitorGraph : public testing::Test {
protected:
    MonitorGraph() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, CRect(0, 0, 2000, 1500), nullptr, 0);
        EXPECT_TRUE(m_graph.CreateChild(m_parent, 1));
        Resize(900, 600);
    }
    ~MonitorGraph() override { m_parent.DestroyWindow(); }

    void Resize(int width, int height) { m_graph.MoveWindow(0, 0, width, height); }

    static double Ramp(std::size_t sample, std::size_t series) {
        return static_cast<double>(sample % 1000) * 0.137 + static_cast<double>(series);
    }

    /// Shows a recording of ramps as it comes.
    GraphSource Show(std::size_t samples, const std::vector<std::string>& names,
                     CGraphCtrl::GraphStyle style = CGraphCtrl::GraphStyleLine) {
        const GraphSource source = MakeSource(samples, names, Ramp);
        m_graph.Show(source, SettingsOf(source, style));
        return source;
    }

    CWnd m_parent;
    Graph m_graph;
};

TEST_F(MonitorGraph, RangeHasRoundTicksAtEveryHeight) {
    Show(1000, {"a"});
    int different = 0;
    double before = 0;
    for (const int height : {200, 260, 350, 500, 640, 900}) {
        Resize(900, height);
        const int ticks = m_graph.ValueTicks();
        ASSERT_GE(ticks, 2) << height;
        const double step = (m_graph.m_YVisibleMax - m_graph.m_YVisibleMin) / (ticks - 1);
        const double power = std::pow(10, std::floor(std::log10(step)));
        const double lead = step / power;
        EXPECT_NEAR(lead * 2, std::round(lead * 2), 1e-6) << "at height " << height;
        EXPECT_GE(m_graph.m_YVisibleMax, 999 * 0.137);
        different += step != before;
        before = step;
    }
    EXPECT_GT(different, 2) << "the range follows the number of ticks";
}

TEST_F(MonitorGraph, BarsHaveRoomAndSayWhatTheyStandFor) {
    Show(5000, {"a", "b"}, CGraphCtrl::GraphStyleBar);
    const int bars = m_graph.GetDatasetSize(0);
    // Two series: each sample takes two bars and a gap of one, each at least a pixel of 30 units.
    EXPECT_LE(bars * 3 * 30, m_graph.Plot().Width());
    EXPECT_GT(bars, 50);
    const std::string mean = "mean of " + std::to_string(m_graph.SamplesEach()) + " samples";
    EXPECT_NE(m_graph.Caption().find(mean), std::string::npos) << m_graph.Caption();
    Resize(500, 350);
    EXPECT_LT(m_graph.GetDatasetSize(0), bars);
}

TEST_F(MonitorGraph, TimeRangeStandsInTheCaptionOrUnderATextTitle) {
    const GraphSource source = MakeSource(5000, {"heat"}, Ramp);
    GraphSettings settings = SettingsOf(source);
    m_graph.Show(source, settings);
    EXPECT_EQ(m_graph.Caption(), "Title: heat, 1970-01-01 00:00 to 1970-01-04 11:19");
    EXPECT_EQ(m_graph.XLabel(), "");
    Resize(150, 300);
    EXPECT_EQ(m_graph.Caption(), "Title") << "no room for more";
    Resize(900, 400);
    settings.titleStyle = CGraphCtrl::TitleStyleText;
    m_graph.SetSettings(settings);
    EXPECT_EQ(m_graph.XLabel(), "1970-01-01 00:00 to 1970-01-04 11:19");
}

// Random changes of what is shown, against what must hold after each: the control has the visible samples,
// and the mark stays on its sample while that is visible.
TEST_F(MonitorGraph, HoldsTheVisibleSamplesAndKeepsTheMarkWhateverChanges) {
    std::mt19937 random(13);
    for (int round = 0; round < 8; ++round) {
        const bool huge = round == 0;
        GraphSource source = Show(huge ? 120'000 : 20 + random() % 6000, {"a", "b"});
        std::optional<std::size_t> mark;
        for (int step = 0; step < 25; ++step) {
            const std::size_t count = source.recording->times.size();
            GraphSettings settings = m_graph.Settings();
            const unsigned action = random() % 7;
            SCOPED_TRACE(action);
            if (action == 0) {
                const std::size_t first = random() % count;
                const std::size_t last = std::min(count - 1, first + 20 + random() % count);
                m_graph.SetVisible({first, last});
                mark = mark && *mark >= first && *mark <= last ? mark : std::nullopt;
            } else if (action == 1) {
                settings.style = static_cast<CGraphCtrl::GraphStyle>(random() % 3);
                m_graph.SetSettings(settings);
            } else if (action == 2) {
                settings.series[1].visible = !settings.series[1].visible;
                m_graph.SetSettings(settings);
            } else if (action == 3) {
                Resize(300 + static_cast<int>(random() % 700), 200 + static_cast<int>(random() % 400));
            } else if (action == 4 || action == 5) {
                const std::size_t removed = std::min<std::size_t>(random() % 12, count - 1);
                auto next = std::make_shared<recording::Recording>(
                    recording::WithoutHead(*source.recording, removed));
                for (unsigned i = action == 4 ? random() % 10 : 0; i > 0; --i) {
                    next->times.push_back(next->times.back() + recording::kMicrosPerMinute);
                    next->series[0].values.push_back(static_cast<double>(random() % 300));
                    next->series[1].values.push_back(1);
                }
                source.recording = next;
                if (action == 5)
                    m_graph.ShowRest(source, removed, settings);
                else
                    m_graph.ShowGrown(source, removed);
                mark =
                    action == 4 && mark && *mark >= removed ? std::optional(*mark - removed) : std::nullopt;
            } else {
                m_graph.SetSelectionMarkPos(static_cast<int>(random() % 20));
                mark = m_graph.MarkedSample();
            }
            ASSERT_EQ(m_graph.MarkedSample(), mark);
            ASSERT_EQ(m_graph.SelectionMark().index >= 0, mark.has_value());
            const recording::VisibleRange seen = m_graph.Visible();
            const int held = m_graph.GetDatasetSize(0);
            ASSERT_EQ(m_graph.GetDatasetSize(1), held);
            ASSERT_EQ(m_graph.m_XTickLabelUp.GetSize(), held);
            ASSERT_TRUE(held <= 60'000 && held * m_graph.SamplesEach() >= seen.last - seen.first + 1);
            double value = 0;
            if (m_graph.SamplesEach() > 1)
                continue;
            ASSERT_EQ(static_cast<std::size_t>(held), seen.last - seen.first + 1);
            const auto& values = source.recording->series[0].values;
            for (int i = 0; i < held; i += 1 + held / 50) {
                ASSERT_TRUE(m_graph.GetYData(0, i, value));
                ASSERT_EQ(value, values[seen.first + static_cast<std::size_t>(i)]);
            }
            ASSERT_TRUE(!mark || m_graph.SelectionMark().values[0] == values[*mark]);
        }
    }
}

TEST_F(MonitorGraph, LongNamesAreShortenedToTheRoomThereIs) {
    const std::string longName(300, 'W');
    const GraphSource source = MakeSource(20, {longName, "b"}, Ramp);
    GraphSettings settings = SettingsOf(source);
    settings.title = longName;
    settings.titleStyle = CGraphCtrl::TitleStyleText;
    m_graph.Show(source, settings);
    EXPECT_EQ(m_graph.Legend(0).substr(m_graph.Legend(0).size() - 3), "...");
    EXPECT_EQ(m_graph.Legend(1), "b");
    EXPECT_LE(m_graph.m_LegendWidth, 900 * 30 / 2);
    EXPECT_GT(m_graph.Plot().Width(), 900 * 30 / 3);
    EXPECT_LT(m_graph.m_Title.GetLength(), 100);
}

TEST_F(MonitorGraph, MarkersOfTheFirstAndTheLastSampleStandWholeInThePlot) {
    Show(5, {"a"});
    const double unitsPerSample = m_graph.Plot().Width() / (m_graph.m_XVisibleMax - m_graph.m_XVisibleMin);
    EXPECT_GT(-m_graph.m_XVisibleMin * unitsPerSample, 90) << "half a marker's width";
    EXPECT_GT((m_graph.m_XVisibleMax - 4) * unitsPerSample, 90);
}

TEST_F(MonitorGraph, EmptyAndSingleSamplesAreShownWithoutFault) {
    for (const auto style : {CGraphCtrl::GraphStyleLine, CGraphCtrl::GraphStyleBar}) {
        Show(1, {"a"}, style);
        m_graph.Plot();
        EXPECT_EQ(m_graph.GetDatasetSize(0), 1);
    }
    m_graph.Show(GraphSource(), GraphSettings());
    m_graph.Plot();
    EXPECT_EQ(m_graph.GetDatasetSize(0), 0);
}

} // namespace
} // namespace kavlix::test
