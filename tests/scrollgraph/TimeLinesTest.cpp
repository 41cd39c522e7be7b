// SPDX-License-Identifier: MIT
// What is drawn of the samples, and which one a point means.

#include "tests/scrollgraph/ScrollTest.h"

#include <climits>
#include <cmath>

namespace {

const std::string kPen0 = "solid 0 F000B1";
const std::string kPen1 = "solid 0 7D7DA9";

/// Where time stands in the plot when the view is `width` x units from `pos` on.
int X(double seconds, double pos = 0, double width = 1200) {
    return static_cast<int>((seconds * 20 - pos) * kPlotWidth / width + kPlotLeft);
}
int Y(double value) {
    return static_cast<int>(kPlotBottom - value * kPlotHeight / 100);
}

} // namespace

class ScrollLinesTest : public ScrollTest {
protected:
    void SetUp() override {
        ScrollTest::SetUp();
        graph.SetGrid(FALSE, FALSE);
    }
    void Add(int dataset, std::initializer_list<double> values) {
        for (const double value : values)
            ASSERT_EQ(graph.AddDataForOffline(dataset, value, nullptr), 1);
    }
    std::string Drawn() const {
        return std::to_string(graph.m_nDrawFirst) + " to " + std::to_string(graph.m_nDrawLast);
    }
    int Hit(int x, int y = 2000) { return graph.GetIndexFromPt(CPoint(x, y)); }
};

TEST_F(ScrollLinesTest, DatasetsShorterAndLongerThanTheTimeStamps) {
    for (int i = 0; i < 5; ++i)
        Stamp({kSomeTime + 10 * i});
    Add(0, {10, 20, 30, 40, 50, 60, 70});
    Add(1, {1, 2});
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kPen0).size(), 4u) << "what has no time stamp is not drawn";
    EXPECT_EQ(picture->Strokes(kPen1), Strings{Stroke(X(0), Y(1), X(10), Y(2), kPen1)});
    EXPECT_EQ(Drawn(), "0 to 4");
    EXPECT_EQ(Hit(X(40)), 4);
    EXPECT_EQ(testkit::Text(CRect(graph.GetPtFromIndex(2), CSize())),
              testkit::Text(CRect(X(20), Y(30), X(20), Y(30))));
    EXPECT_EQ(graph.GetPtFromIndex(6), graph.m_rectPlot.CenterPoint());
    graph.InitData();
    EXPECT_EQ(Record()->Strokes(kPen0), Strings());
    EXPECT_EQ(Drawn(), "0 to -1");
    EXPECT_EQ(Hit(X(10)), -1);
}

TEST_F(ScrollLinesTest, BarsAreThoseOfTheBase) {
    testkit::OpenGraphOf<CGraphCtrl> base;
    ASSERT_TRUE(base.Create("MFCGraphCtrl", "", WS_CHILD, CRect(0, 0, 300, 200), &parent, 9));
    const auto prepare = [](auto& control) {
        control.SetGraphStyle(CGraphCtrl::GraphStyleBar);
        control.SetAutoXVisible(FALSE);
        control.SetXVisibleMin(3);
        control.SetXVisibleMax(9);
        for (int i = 0; i < 20; ++i) {
            control.AddData(0, i, nullptr);
            control.AddData(4, 2 * i, nullptr);
        }
        control.SetSelectionMarkPos(5);
    };
    prepare(base);
    Stamp({kSomeTime});
    prepare(graph);
    testkit::MetafileRecorder recorder;
    CDC dc;
    dc.Attach(recorder.Dc());
    base.SetMapModeAnisotropic(dc);
    base.DrawGraph(dc);
    dc.Detach();
    recorder.Close();
    const auto picture = Record();
    EXPECT_EQ(picture->Lines(testkit::kRectangle), recorder.Lines(testkit::kRectangle));
    EXPECT_GT(recorder.Lines(testkit::kRectangle).size(), 14u);
    for (int x = kPlotLeft; x < kPlotRight; x += 40)
        EXPECT_EQ(Hit(x), base.GetIndexFromPt(CPoint(x, 2000))) << x;
    EXPECT_EQ(graph.GetPtFromIndex(5), base.GetPtFromIndex(5));
    base.DestroyWindow();
}

TEST_F(ScrollLinesTest, ThePointMeansTheNearestSample) {
    EXPECT_EQ(Hit(3000), -1);
    EXPECT_EQ(OpenScrollGraph().GetIndexFromPt(CPoint(0, 0)), -1);
    Load(300);
    graph.m_dScrollPos = 1000;
    Record();
    for (const int y : {kPlotTop - 1, kPlotBottom})
        EXPECT_EQ(Hit(3000, y), -1) << y;

    // A click marks it, through the base's own handling.
    const CPoint pixel(X(80, 1000) / 30, 60);
    const Strings log = Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(pixel.x, pixel.y));
    EXPECT_EQ(log, (Strings{"notify 1254 id 77 flags 0 at 0,0 index 80 count 0", "message 1124 w=80 l=0"}));

    // What was painted may be gone since.
    graph.RemoveHeadData(290);
    EXPECT_EQ(Hit(5599), -1) << "samples 49 to 110 were painted";
    Record();
    EXPECT_EQ(Hit(5599), 9);
}
