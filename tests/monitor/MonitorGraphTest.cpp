// What the Monitor's graph chooses from data and window size.

#include "tests/monitor/MadeRecordings.h"
#include "tests/support/OpenGraph.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kavlix::test {
namespace {

using monitor::CMonitorGraph, monitor::GraphSettings, monitor::GraphSource;

/// The graph with a view of what it has set.
class Graph : public testkit::OpenGraphOf<CMonitorGraph> {
public:
    void Paint() { DrawOnce(); }
    CRect Plot() { return DrawOnce(), m_rectPlot; }
    int ValueTicks() { return Plot().Height() / 500; }
    std::string XLabel() const { return m_ShowXLabel ? static_cast<LPCTSTR>(m_XLabel) : ""; }
    std::string Caption() const {
        CString text;
        GetWindowText(text);
        return static_cast<LPCTSTR>(text);
    }
    std::string Legend(int i) const { return static_cast<LPCTSTR>(m_Datasets[i].m_Legend); }

private:
    void DrawOnce() {
        CClientDC client(this);
        CDC dc;
        dc.CreateCompatibleDC(&client);
        SetMapModeAnisotropic(dc);
        DrawGraph(dc);
    }
};

class MonitorGraph : public testing::Test {
protected:
    MonitorGraph() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, CRect(0, 0, 2000, 1500), nullptr, 0);
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
        bool isRound = false;
        for (const double round : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.5, 8.0, 10.0})
            isRound |= std::abs(lead - round) < 1e-6;
        EXPECT_TRUE(isRound) << "step " << step << " at height " << height;
        EXPECT_LE(m_graph.m_YVisibleMin, 0);
        EXPECT_GE(m_graph.m_YVisibleMax, 999 * 0.137);
        different += step != before;
        before = step;
    }
    EXPECT_GT(different, 2) << "the range follows the number of ticks";
}

TEST_F(MonitorGraph, HandsOverAllSamplesOfAnOrdinaryRecordingAndFewOfAHugeOne) {
    Show(22'695, {"a", "b"});
    EXPECT_EQ(m_graph.GetDatasetSize(0), 22'695);
    EXPECT_EQ(m_graph.GetDatasetSize(1), 22'695);
    EXPECT_EQ(m_graph.m_XTickLabelUp.GetSize(), 22'695);
    EXPECT_EQ(m_graph.m_XVisibleMax, 22'694);

    Show(300'000, {"a"});
    EXPECT_GT(m_graph.SamplesEach(), 1u);
    EXPECT_LT(m_graph.GetDatasetSize(0), 60'000);
    EXPECT_EQ(m_graph.GetDatasetSize(1), 0) << "the second series went";

    m_graph.SetVisible({1000, 1999});
    EXPECT_EQ(m_graph.SamplesEach(), 1u);
    EXPECT_EQ(m_graph.GetDatasetSize(0), 1000);
    double value = 0;
    EXPECT_TRUE(m_graph.GetYData(0, 5, value));
    EXPECT_DOUBLE_EQ(value, Ramp(1005, 0));
    m_graph.SetSelectionMarkPos(5);
    EXPECT_EQ(m_graph.MarkedSample(), 1005u);
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
    GraphSettings lines = m_graph.Settings();
    lines.style = CGraphCtrl::GraphStyleLine;
    m_graph.SetSettings(lines);
    EXPECT_EQ(m_graph.GetDatasetSize(0), 5000);
    EXPECT_EQ(m_graph.Caption().find("mean"), std::string::npos);
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

TEST_F(MonitorGraph, GrowingReadingsKeepTheMarkOnItsSample) {
    GraphSource source = Show(10, {"a"});
    m_graph.SetSelectionMarkPos(6);
    const auto grown = [&](std::size_t removed, std::size_t added) {
        auto next = std::make_shared<recording::Recording>(*source.recording);
        next->times.erase(next->times.begin(), next->times.begin() + static_cast<std::ptrdiff_t>(removed));
        auto& values = next->series[0].values;
        values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(removed));
        for (std::size_t i = 0; i < added; ++i) {
            next->times.push_back(next->times.back() + recording::kMicrosPerMinute);
            values.push_back(100 + static_cast<double>(i));
        }
        source.recording = std::move(next);
        m_graph.ShowGrown(source, removed);
    };
    grown(2, 3);
    EXPECT_EQ(m_graph.GetDatasetSize(0), 11);
    EXPECT_EQ(m_graph.m_XTickLabelUp.GetSize(), 11);
    EXPECT_EQ(m_graph.SelectionMark().index, 4);
    EXPECT_DOUBLE_EQ(m_graph.SelectionMark().values[0], Ramp(6, 0));
    double value = 0;
    EXPECT_TRUE(m_graph.GetYData(0, 10, value));
    EXPECT_EQ(value, 102);
    EXPECT_GE(m_graph.m_YVisibleMax, 102) << "the range follows";
    grown(5, 1);
    EXPECT_EQ(m_graph.GetDatasetSize(0), 7);
    EXPECT_EQ(m_graph.SelectionMark().index, -1) << "its sample is gone";
}

TEST_F(MonitorGraph, MarkStaysOnItsSampleWhateverIsShownOfTheRest) {
    GraphSource source = Show(5000, {"a", "b"});
    m_graph.SetVisible({1000, 2999});
    m_graph.SetSelectionMarkPos(234);
    const auto expectMark = [&](const char* after) {
        EXPECT_EQ(m_graph.MarkedSample(), 1234u) << after;
        EXPECT_GE(m_graph.SelectionMark().index, 0) << after;
    };
    GraphSettings settings = m_graph.Settings();
    settings.series[1].visible = false;
    m_graph.SetSettings(settings);
    expectMark("hiding a series");
    m_graph.SetVisible({0, 4999});
    expectMark("zooming out");
    settings.style = CGraphCtrl::GraphStyleBar;
    m_graph.SetSettings(settings);
    EXPECT_GT(m_graph.SamplesEach(), 1u);
    expectMark("bars");
    Resize(700, 400);
    expectMark("fewer bars");
    settings.style = CGraphCtrl::GraphStyleLine;
    m_graph.SetSettings(settings);
    expectMark("lines again");
    EXPECT_DOUBLE_EQ(m_graph.SelectionMark().values[0], Ramp(1234, 0));
    m_graph.SetVisible({2000, 2999});
    EXPECT_EQ(m_graph.SelectionMark().index, -1) << "its sample is not to be seen";

    // Bars that stand for several readings each: what was marked moves through them with the time.
    settings.style = CGraphCtrl::GraphStyleBar;
    m_graph.Show(source, settings);
    m_graph.SetSelectionMarkPos(3);
    const std::size_t marked = *m_graph.MarkedSample();
    for (std::size_t i = 0; i < marked; ++i)
        m_graph.ShowGrown(source, 1);
    EXPECT_EQ(m_graph.MarkedSample(), 0u);
    m_graph.ShowGrown(source, 1, settings);
    EXPECT_EQ(m_graph.SelectionMark().index, -1);
}

TEST_F(MonitorGraph, LongNamesAreShortenedToTheRoomThereIs) {
    const std::string longName(300, 'W');
    const GraphSource source = MakeSource(20, {longName, "b"}, Ramp);
    GraphSettings settings = SettingsOf(source);
    settings.title = longName;
    settings.titleStyle = CGraphCtrl::TitleStyleText;
    m_graph.Show(source, settings);
    EXPECT_LT(m_graph.Legend(0).size(), 60u);
    EXPECT_EQ(m_graph.Legend(0).substr(m_graph.Legend(0).size() - 3), "...");
    EXPECT_EQ(m_graph.Legend(1), "b");
    EXPECT_LE(m_graph.m_LegendWidth, 900 * 30 / 2);
    EXPECT_GT(m_graph.Plot().Width(), 900 * 30 / 3);
    EXPECT_LT(m_graph.m_Title.GetLength(), 100);
    Resize(1800, 600);
    EXPECT_GT(m_graph.Legend(0).size(), 30u) << "more room, more of the name";
}

TEST_F(MonitorGraph, MarkersOfTheFirstAndTheLastSampleStandWholeInThePlot) {
    const GraphSource source = MakeSource(5, {"a"}, Ramp);
    GraphSettings settings = SettingsOf(source);
    m_graph.Show(source, settings);
    ASSERT_NE(settings.series[0].marker, CDataset::MarkerNone) << "few samples have markers";
    const double unitsPerSample = m_graph.Plot().Width() / (m_graph.m_XVisibleMax - m_graph.m_XVisibleMin);
    EXPECT_GT(-m_graph.m_XVisibleMin * unitsPerSample, 90) << "half a marker's width";
    EXPECT_GT((m_graph.m_XVisibleMax - 4) * unitsPerSample, 90);
    settings.series[0].marker = CDataset::MarkerNone;
    m_graph.SetSettings(settings);
    EXPECT_EQ(m_graph.m_XVisibleMin, 0);
    EXPECT_EQ(m_graph.m_XVisibleMax, 4);
}

TEST_F(MonitorGraph, EmptyAndSingleSamplesAreShownWithoutFault) {
    Show(0, {"a"});
    m_graph.Paint();
    EXPECT_EQ(m_graph.GetDatasetSize(0), 0);
    for (const auto style : {CGraphCtrl::GraphStyleLine, CGraphCtrl::GraphStyleBar}) {
        Show(1, {"a"}, style);
        m_graph.Paint();
        EXPECT_EQ(m_graph.GetDatasetSize(0), 1);
    }
    m_graph.Show(GraphSource(), GraphSettings());
    m_graph.Paint();
    EXPECT_EQ(m_graph.GetDatasetSize(0), 0);
    Resize(1, 1);
    m_graph.Paint();
}

} // namespace
} // namespace kavlix::test
