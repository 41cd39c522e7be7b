#include "tests/graphctrl/GraphTest.h"

#include <algorithm>
#include <climits>

namespace {

const std::string kPen0 = std::string("solid 0 ") + kColour0;
const std::string kCursorPen = "dot 0 646464";

std::string Stroke(int x1, int y1, int x2, int y2, const std::string& pen) {
    return "line " + std::to_string(x1) + "," + std::to_string(y1) + " " + std::to_string(x2) + "," +
           std::to_string(y2) + " pen " + pen;
}

} // namespace

class GraphLinesTest : public GraphTest {
protected:
    void SetUp() override {
        GraphTest::SetUp();
        graph.SetGrid(FALSE, FALSE);
    }
};

TEST_F(GraphLinesTest, PositionsTruncateTowardZero) {
    FixX(0, 7);
    graph.SetYVisibleMin(-3);
    graph.SetYVisibleMax(4);
    Add(0, {-3, 4, 0.5, 1e-9, -2.75, 3.99, 1, 4.2});
    EXPECT_EQ(Record()->Strokes(kPen0),
              (Strings{Stroke(2230, 3800, 2711, 1100, kPen0), Stroke(2711, 1100, 3192, 2450, kPen0),
                       Stroke(3192, 2450, 3674, 2642, kPen0), Stroke(3674, 2642, 4155, 3703, kPen0),
                       Stroke(4155, 3703, 4637, 1103, kPen0), Stroke(4637, 1103, 5118, 2257, kPen0),
                       Stroke(5118, 2257, 5600, 1022, kPen0)}));
}

TEST_F(GraphLinesTest, DatasetsAreDrawnFromTheLastToTheFirst) {
    FixX(0, 1);
    for (int i = 0; i < 13; ++i) {
        Add(i, {10.0 + i, 20.0 + i});
        graph.SetColor(i, RGB(100 + i, 0, 0));
        graph.SetLineSize(i, 10 * i);
    }
    graph.ShowDataset(7, FALSE);
    graph.m_Datasets[12].m_LineSize = INT_MAX; // as a derived class may set it
    Strings pens;
    const auto picture = Record();
    for (const testkit::MetafileRecord& record : picture->Records())
        if (record.kind == testkit::kLine && record.state.pen.find("solid") == 0 &&
            record.state.pen.find("0000") != std::string::npos)
            pens.push_back(record.state.pen);
    Strings expected;
    for (int i = 12; i >= 0; --i)
        if (i != 7)
            expected.push_back("solid " + std::to_string(i == 12 ? 1000 : 10 * i) + " " +
                               testkit::ColourText(RGB(100 + i, 0, 0)));
    EXPECT_EQ(pens, expected);
}

TEST_F(GraphLinesTest, EveryVisibleDatasetDrawsTheMark) {
    FixX(0, 4);
    for (int i = 0; i < 3; ++i)
        Add(i, {10, 20, 30, 40, 50});
    Add(3, {10, 20}); // too short for the mark
    Add(4, {10, 20, 30, 40, 50});
    graph.ShowDataset(4, FALSE);
    graph.SetSelectionMarkPos(3);
    const int x = static_cast<int>(3 * 3370 / 4.0) + kPlotLeft;
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kCursorPen), Strings(3, Stroke(x, kPlotBottom, x, kPlotTop, kCursorPen)));
    int triangles = 0;
    for (const testkit::MetafileRecord& record : picture->Records()) {
        if (record.kind != testkit::kRegion)
            continue;
        ++triangles;
        EXPECT_EQ(record.brush, "FF0000");
        EXPECT_NEAR(record.box.left, x - 70, 2);
        EXPECT_NEAR(record.box.right, x + 90, 2);
        EXPECT_NEAR(record.box.top, kPlotTop, 2);
        EXPECT_NEAR(record.box.bottom, kPlotTop + 180, 2);
    }
    EXPECT_EQ(triangles, 3);
    // The mark interrupts no line.
    EXPECT_EQ(picture->Strokes(kPen0).size(), 4u);

    const auto pixels = Paint();
    const CRect tip = ToDevice(CRect(x + 10, kPlotTop + 150, x + 10, kPlotTop + 60));
    EXPECT_EQ(pixels->At(tip.left, tip.bottom), RGB(255, 0, 0)) << "the triangle is filled";

    graph.SetSelectionMarkPos(-1);
    EXPECT_EQ(Record()->Strokes(kCursorPen), Strings());
}

TEST_F(GraphLinesTest, SetSelectionMarkPosKeepsToTheSamples) {
    Add(0, {1, 2, 3});
    Settle();
    for (const int ignored : {-2, 3, INT_MIN, INT_MAX}) {
        graph.m_SelectionMarkPos = 1;
        graph.SetSelectionMarkPos(ignored);
        EXPECT_EQ(graph.m_SelectionMarkPos, 1) << ignored;
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    }
    for (const int taken : {2, 0, -1}) {
        Settle();
        graph.SetSelectionMarkPos(taken);
        EXPECT_EQ(graph.m_SelectionMarkPos, taken);
        EXPECT_NE(Text(UpdateRect()), "0,0,0,0");
    }
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings()) << "silent";
}

TEST_F(GraphLinesTest, AnUnknownStyleDrawsTheFrameAlone) {
    FixX(0, 1);
    Add(0, {1, 99});
    graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(3));
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kPen0), Strings());
    EXPECT_FALSE(picture->Strokes("solid 0 B9DDC1").empty());
}
