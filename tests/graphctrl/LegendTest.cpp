#include "tests/graphctrl/GraphTest.h"

#include <algorithm>

namespace {

const std::string kText0 = " left|top 3F5171 Arial 350 ";

} // namespace

class GraphLegendTest : public GraphTest {
protected:
    /// Everything drawn after the data: the board and the rows, with the clip that holds.
    Strings Legend() {
        Strings lines = Record()->ClippedLines(testkit::kRectangle | testkit::kText);
        std::size_t first = 0;
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (lines[i].find("\"X Label\"") != std::string::npos ||
                lines[i].find("\"100\"") != std::string::npos)
                first = i + 1;
        return Strings(lines.begin() + static_cast<std::ptrdiff_t>(first), lines.end());
    }
};

TEST_F(GraphLegendTest, BoardShadowAndRows) {
    graph.SetLegend(0, "first");
    graph.SetLegend(3, "hidden");
    graph.SetLegend(12, "last");
    graph.ShowDataset(3, FALSE);
    EXPECT_EQ(Legend(), (Strings{"rect 5900,1200,8900,5500 pen null brush C0C0C0 in 0,0,299,199",
                                 "rect 5800,1100,8800,5400 pen null brush D7E8F1 in 0,0,299,199",
                                 "rect 5900,1200,6200,1500 pen null brush F000B1 in 193,37,290,180",
                                 "text 6300,1150" + kText0 + "\"first\" in 193,37,290,180",
                                 "rect 5900,1600,6200,1900 pen null brush FFFFFF in 193,37,290,180",
                                 "text 6300,1550" + kText0 + "\"hidden\" in 193,37,290,180",
                                 "rect 5900,2000,6200,2300 pen null brush A2006C in 193,37,290,180",
                                 "text 6300,1950" + kText0 + "\"last\" in 193,37,290,180"}));
}

TEST_F(GraphLegendTest, WithoutBoardTheRowsMayRunToTheEdge) {
    graph.ShowLegendBoard(FALSE);
    graph.SetLegend(1, "row");
    graph.SetLegendTextColor(RGB(1, 2, 3));
    EXPECT_EQ(Legend(), (Strings{"rect 5900,1200,6200,1500 pen null brush 7D7DA9 in 193,37,297,180",
                                 "text 6300,1150 left|top 010203 Arial 350 \"row\" in 193,37,297,180"}));
}

TEST_F(GraphLegendTest, MarginAndRowHeightMoveEverything) {
    graph.SetLegendColor(RGB(9, 8, 7));
    graph.m_LegendMargin = 50;
    graph.m_LegendItemHeight = 205;
    graph.SetLegend(0, "a");
    graph.SetLegend(1, "b");
    const Strings legend = Legend();
    ASSERT_EQ(legend.size(), 6u);
    EXPECT_EQ(legend[1], "rect 5800,1100,8800,5400 pen null brush 090807 in 0,0,299,199");
    EXPECT_EQ(legend[2], "rect 5850,1150,6055,1355 pen null brush F000B1 in 193,37,290,180");
    EXPECT_EQ(legend[3], "text 6105,1116" + kText0 + "\"a\" in 193,37,290,180");
    EXPECT_EQ(legend[4], "rect 5850,1405,6055,1610 pen null brush 7D7DA9 in 193,37,290,180");
    EXPECT_EQ(legend[5], "text 6105,1371" + kText0 + "\"b\" in 193,37,290,180");
}

TEST_F(GraphLegendTest, TurnedOffNothingIsDrawn) {
    graph.SetLegend(0, "row");
    graph.ShowLegend(FALSE);
    EXPECT_EQ(Legend(), Strings());
    graph.ShowLegend(TRUE);
    graph.ResetLegend();
    EXPECT_EQ(Legend().size(), 2u) << "the board alone";
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    graph.SetLegend(0, "row");
    const Strings texts = Record()->Texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "row"), 0);
}
