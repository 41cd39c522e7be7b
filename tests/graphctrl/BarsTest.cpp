#include "tests/graphctrl/GraphTest.h"

#include <cmath>

namespace {

std::string Bar(int left, int top, int right, int bottom, const std::string& colour) {
    return "rect " + Text(CRect(left, top, right, bottom)) + " pen null brush " + colour;
}

} // namespace

class GraphBarsTest : public GraphTest {
protected:
    void SetUp() override {
        GraphTest::SetUp();
        graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
        graph.SetLegendWidth(3370); // a plot 3000 units wide: 2230 to 5230
        graph.ShowLegendBoard(FALSE);
    }
    /// The rectangles drawn while the plot is the clip region.
    Strings Bars() {
        Strings bars;
        const auto picture = Record();
        CRect clip = ToDevice(graph.m_rectPlot);
        clip.right += 1;
        clip.bottom += 1;
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.kind == testkit::kRectangle && record.state.clipped &&
                CRect(record.state.clip) == clip)
                bars.push_back(record.Line());
        return bars;
    }
};

TEST_F(GraphBarsTest, TwoDatasetsSideBySide) {
    FixX(0, 10);
    Strings first, second;
    for (int i = 0; i < 10; ++i) {
        Add(0, {10.0 + 5 * i});
        Add(1, {10.0 + 2 * i});
        const int x = 2230 + 270 * i;
        first.push_back(Bar(x, 3530 - 135 * i, x + 90, 3800, kColour0));
        second.push_back(Bar(x + 90, 3530 - 54 * i, x + 180, 3800, kColour1));
    }
    Strings expected = first;
    expected.insert(expected.end(), second.begin(), second.end());
    EXPECT_EQ(Bars(), expected);
}

TEST_F(GraphBarsTest, BandBehindTheMarkedGroup) {
    FixX(0, 10);
    for (int i = 0; i < 10; ++i) {
        Add(2, {50});
        Add(6, {25});
    }
    graph.m_SelectionMarkPos = 3;
    const int x = 2230 + 3 * 270;
    const Strings bars = Bars();
    ASSERT_EQ(bars.size(), 21u);
    EXPECT_EQ(bars[3], Bar(x - 45, 1100, x + 180 + 45, 3800, "E1E1E1"))
        << "only the first dataset with samples";
    EXPECT_EQ(bars[4], Bar(x, 2450, x + 90, 3800, kColour2)) << "the bar stands before its band";
    EXPECT_EQ(bars[5], Bar(x + 270, 2450, x + 360, 3800, kColour2)) << "and the brush returns";
}

TEST_F(GraphBarsTest, HiddenDatasetKeepsItsSlot) {
    FixX(0, 10);
    for (int i = 0; i < 10; ++i) {
        Add(0, {50});
        Add(1, {50});
    }
    graph.m_SelectionMarkPos = 0;
    graph.ShowDataset(0, FALSE);
    const Strings bars = Bars();
    ASSERT_EQ(bars.size(), 11u);
    EXPECT_EQ(bars[0], Bar(2230 - 45, 1100, 2230 + 225, 3800, "E1E1E1")) << "the band is drawn all the same";
    EXPECT_EQ(bars[1], Bar(2320, 2450, 2410, 3800, kColour1));
}

TEST_F(GraphBarsTest, VisibleRangeCutsAtTheLeftAndStopsAtTheCount) {
    for (int i = 0; i < 30; ++i)
        Add(0, {50});
    FixX(5, 15);
    // 11 visible points over the whole width of 3000: slots of 272, bars of 136.
    const Strings bars = Bars();
    ASSERT_EQ(bars.size(), 11u);
    EXPECT_EQ(bars[0], Bar(2230, 2450, 2366, 3800, kColour0));
    EXPECT_EQ(bars[10], Bar(2230 + 2720, 2450, 2366 + 2720, 3800, kColour0));
    FixX(30, 40);
    EXPECT_EQ(Bars(), Strings());
    FixX(15, 5);
    EXPECT_EQ(Bars(), Strings());
}

TEST_F(GraphBarsTest, NegativeAndOddValues) {
    FixX(0, 10);
    graph.SetYVisibleMin(-100);
    Add(0, {-50, NAN, 50, INFINITY, -INFINITY, 1e300, -1e300, 0, 0, 0});
    const auto picture = Paint();
    // Slots of 270 units, bars of 135: 4 to 5 pixels from pixel 74 on, 9 pixels apart.
    const COLORREF colour = graph.m_Datasets[0].m_Color;
    const auto filled = [&](int slot) {
        const CRect bar = ToDevice(CRect(2230 + 270 * slot + 30, 1100, 2230 + 270 * slot + 105, 3800));
        return picture->Count(colour, bar) / bar.Width();
    };
    EXPECT_NEAR(filled(0), 22, 2) << "a quarter of the height";
    EXPECT_EQ(filled(1), 0) << "no bar for no number";
    EXPECT_NEAR(filled(2), 67, 2);
    EXPECT_NEAR(filled(3), 90, 2) << "cut at the top";
    EXPECT_LE(filled(4), 1) << "below the plot";
    EXPECT_NEAR(filled(5), 90, 2);
    EXPECT_LE(filled(6), 1);
    EXPECT_NEAR(filled(7), 45, 2);
    const CRect plot = ToDevice(graph.m_rectPlot);
    CRect ink = picture->Bounds(colour);
    EXPECT_GE(ink.left, plot.left);
    EXPECT_GE(ink.top, plot.top);
    EXPECT_LE(ink.right, plot.right + 1);
    EXPECT_LE(ink.bottom, plot.bottom + 1);
}
