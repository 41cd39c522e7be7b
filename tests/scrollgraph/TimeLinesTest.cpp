// What is drawn of the samples, and which one a point means.

#include "tests/scrollgraph/ScrollTest.h"

#include <climits>
#include <cmath>

namespace {

const std::string kPen0 = "solid 0 F000B1";
const std::string kPen1 = "solid 0 7D7DA9";
const std::string kCursorPen = "dot 0 646464";

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
    /// The strokes through samples `first` to `last` of Load().
    static Strings Line(int first, int last, double pos, double width = 1200) {
        Strings strokes;
        for (int i = first; i < last; ++i)
            strokes.push_back(
                Stroke(X(i, pos, width), Y(i % 100), X(i + 1, pos, width), Y((i + 1) % 100), kPen0));
        return strokes;
    }
    int Hit(int x, int y = 2000) { return graph.GetIndexFromPt(CPoint(x, y)); }
};

TEST_F(ScrollLinesTest, LinesRunInFromTheLeftAndOutAtTheRight) {
    Load(300);
    const struct {
        double pos;
        int first, last, seen; // strokes far beyond the plot are left out
    } views[] = {{0, 0, 60, 60},       {1000, 49, 110, 61}, {1007, 50, 111, 61}, {4790, 239, 299, 60},
                 {4900, 244, 299, 55}, {5990, 298, 299, 1}, {1e6, 298, 299, 0},  {-500, 0, 60, 39}};
    for (const auto& view : views) {
        graph.m_dScrollPos = view.pos;
        EXPECT_EQ(Strokes(), Line(view.first, view.first + view.seen, view.pos)) << view.pos;
        EXPECT_EQ(Drawn(), std::to_string(view.first) + " to " + std::to_string(view.last)) << view.pos;
    }
    graph.m_dScrollPos = 1000;
    const auto picture = Record();
    EXPECT_LT(X(49, 1000), kPlotLeft);
    EXPECT_GE(X(110, 1000), kPlotRight);
    for (const testkit::MetafileRecord& record : picture->Records()) {
        if (record.kind == testkit::kLine && record.state.pen == kPen0) {
            EXPECT_EQ(record.ClipText(), testkit::BoxText(ToDevice(
                                             CRect(kPlotLeft, kPlotTop, kPlotRight + 30, kPlotBottom + 30))));
        }
    }
    EXPECT_EQ(picture->ObjectFaults({"Arial 350", "Arial 300 @900", "Arial 450", "Arial 350"}), "");
}

TEST_F(ScrollLinesTest, OneSampleASecondIsDrawn) {
    for (int i = 0; i < 400; ++i) {
        Stamp({kSomeTime + i / 2});
        Add(0, {i * 1.0});
    }
    graph.m_dScrollPos = 1000; // sample 100 is the first of its two
    Record();
    EXPECT_EQ(Drawn(), "99 to 160") << "60 samples from the first, and one more on either side";
}

TEST_F(ScrollLinesTest, OddTimeStamps) {
    const struct {
        const char* name;
        std::initializer_list<long> seconds;
        double pos;
        Strings strokes;
        const char* drawn;
    } cases[] = {
        {"wide apart: the line crosses a view without a sample",
         {0, 600, 1200},
         6000,
         {Stroke(1080, 3407, 3420, 3385, kPen0), Stroke(3420, 3385, 5970, 3377, kPen0)}, // on the same pixels
         "0 to 2"},
        {"equal: a step straight up",
         {0, 10, 10, 20},
         0,
         {Stroke(X(0), Y(10), X(10), Y(20), kPen0), Stroke(X(10), Y(20), X(10), Y(30), kPen0),
          Stroke(X(10), Y(30), X(20), Y(40), kPen0)},
         "0 to 3"},
        {"one step back: the line turns round",
         {0, 20, 10, 30},
         0,
         {Stroke(X(0), Y(10), X(20), Y(20), kPen0), Stroke(X(20), Y(20), X(10), Y(30), kPen0),
          Stroke(X(10), Y(30), X(30), Y(40), kPen0)},
         "0 to 3"},
        {"beyond the wrap round of x",
         {0, 10, 107374183},
         0,
         {Stroke(X(0), Y(10), X(10), Y(20), kPen0), Stroke(X(10), Y(20), 1080, Y(20), kPen0)},
         "0 to 2"},
    };
    for (const auto& each : cases) {
        graph.InitData();
        graph.ResetData(0);
        double value = 0;
        for (const long seconds : each.seconds) {
            Stamp({kSomeTime + seconds});
            Add(0, {value += 10});
        }
        graph.m_dScrollPos = each.pos;
        EXPECT_EQ(Strokes(), each.strokes) << each.name;
        EXPECT_EQ(Drawn(), each.drawn) << each.name;
    }
}

TEST_F(ScrollLinesTest, SamplesOnOnePixelAreStrokedOnce) {
    for (int i = 0; i < 200; ++i) {
        Stamp({kSomeTime + i});
        Add(0, {50});
    }
    graph.SetHorzRange(30); // a pixel is 16 samples
    const Strings strokes = Strokes();
    EXPECT_LT(strokes.size(), 16u);
    EXPECT_GT(strokes.size(), 10u);
}

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
    EXPECT_EQ(graph.GetPtFromIndex(6), graph.m_rectPlot.CenterPoint()) << "nowhere";
    EXPECT_EQ(graph.GetPtFromIndex(-1), graph.m_rectPlot.CenterPoint());
    graph.InitData();
    EXPECT_EQ(Strokes(), Strings());
    EXPECT_EQ(Drawn(), "0 to -1");
    EXPECT_EQ(Hit(X(10)), -1);
}

TEST_F(ScrollLinesTest, NaNLeavesAGap) {
    for (int i = 0; i < 5; ++i)
        Stamp({kSomeTime + 10 * i});
    Add(0, {10, 20, NAN, 40, 50});
    EXPECT_EQ(Strokes(),
              (Strings{Stroke(X(0), Y(10), X(10), Y(20), kPen0), Stroke(X(30), Y(40), X(40), Y(50), kPen0)}));
}

TEST_F(ScrollLinesTest, TwoAxesAndTheMark) {
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    graph.SetAxisColor(RGB(1, 1, 1));
    graph.SetY2VisibleMin(-10);
    graph.SetY2VisibleMax(10);
    graph.SetLineSize(0, 30);
    graph.SetLineSize(1, 60);
    Stamp({kSomeTime, kSomeTime + 60});
    Add(0, {0, 100});
    Add(1, {0, 10});
    Add(2, {0, 100});
    graph.SetSelectionMarkPos(1);
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes("solid 30 F000B1"),
              Strings{Stroke(2230, 3800, 6800, 1100, "solid 30 F000B1")});
    EXPECT_EQ(picture->Strokes("solid 60 7D7DA9"),
              Strings{Stroke(2230, 2450, 6800, 1100, "solid 60 7D7DA9")});
    EXPECT_EQ(picture->Strokes("solid 0 99CC00"), Strings());
    EXPECT_EQ(picture->Strokes(kCursorPen), Strings(2, Stroke(6800, 3800, 6800, 1100, kCursorPen)));
}

TEST_F(ScrollLinesTest, TheMarkOutsideTheViewIsNotDrawn) {
    Load(300);
    graph.m_dScrollPos = 1000;
    graph.SetSelectionMarkPos(60);
    EXPECT_EQ(Record()->Strokes(kCursorPen),
              Strings{Stroke(X(60, 1000), 3800, X(60, 1000), 1100, kCursorPen)});
    graph.SetSelectionMarkPos(200);
    EXPECT_EQ(Record()->Strokes(kCursorPen), Strings());
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
    EXPECT_EQ(Hit(3000), -1) << "no sample";
    EXPECT_EQ(OpenScrollGraph().GetIndexFromPt(CPoint(0, 0)), -1) << "nothing has been painted";
    Load(300);
    graph.m_dScrollPos = 1000;
    Record();
    const struct {
        int x, y, index;
    } points[] = {
        {2230, 1100, 50}, {2257, 3799, 50}, {2259, 2000, 51}, {X(80, 1000), 2000, 80}, {5599, 2000, 110},
        {2229, 2000, -1}, {5600, 2000, -1}, {3000, 1099, -1}, {3000, 3800, -1},
    };
    for (const auto& point : points)
        EXPECT_EQ(Hit(point.x, point.y), point.index) << point.x << "," << point.y;

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

TEST_F(ScrollLinesTest, ALongerDatasetIsHitWhereTheFirstHasEnded) {
    for (int i = 0; i < 60; ++i) {
        Stamp({kSomeTime + i});
        Add(1, {1});
    }
    Add(0, {1, 2, 3});
    Stamp({kSomeTime + 61, kSomeTime + 62});
    Record();
    EXPECT_EQ(Hit(X(40)), 40);
    EXPECT_EQ(Hit(5599), 59) << "a time stamp alone is no sample";
}
