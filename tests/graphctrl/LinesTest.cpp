#include "tests/graphctrl/GraphTest.h"

#include <algorithm>
#include <cmath>
#include <random>

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

    /// The place of a value on the axes set here, by the plain formula.
    POINT Place(double x, double y) const {
        return {static_cast<LONG>((x - graph.m_XVisibleMin) * kPlotWidth /
                                      (graph.m_XVisibleMax - graph.m_XVisibleMin) +
                                  kPlotLeft),
                static_cast<LONG>(kPlotBottom - (y - graph.m_YVisibleMin) * kPlotHeight /
                                                    (graph.m_YVisibleMax - graph.m_YVisibleMin))};
    }
    /// The strokes of dataset 0, as a walk over every sample draws them.
    Strings PlainStrokes() {
        Strings strokes;
        POINT at = {0, 0}, last_pixel = {0, 0};
        for (int i = 0; i < graph.GetDatasetSize(0); ++i) {
            double y = 0;
            graph.GetYData(0, i, y);
            const POINT place = Place(i, y);
            const POINT pixel = ToDevice(CRect(place, place)).TopLeft();
            if (i == 0) {
                at = place;
            } else if (pixel.x != last_pixel.x || pixel.y != last_pixel.y) {
                strokes.push_back(Stroke(at.x, at.y, place.x, place.y, kPen0));
                at = place;
            }
            last_pixel = pixel;
        }
        return strokes;
    }
};

TEST_F(GraphLinesTest, PositionsTruncateTowardZero) {
    FixX(0, 7);
    graph.SetYVisibleMin(-3);
    graph.SetYVisibleMax(4);
    Add(0, {-3, 4, 0.5, 1e-9, -2.75, 3.99, 1, 10});
    EXPECT_EQ(Record()->Strokes(kPen0),
              (Strings{Stroke(2230, 3800, 2711, 1100, kPen0), Stroke(2711, 1100, 3192, 2450, kPen0),
                       Stroke(3192, 2450, 3674, 2642, kPen0), Stroke(3674, 2642, 4155, 3703, kPen0),
                       Stroke(4155, 3703, 4637, 1103, kPen0), Stroke(4637, 1103, 5118, 2257, kPen0),
                       Stroke(5118, 2257, 5600, -1214, kPen0)}));
}

TEST_F(GraphLinesTest, DatasetsAreDrawnFromTheLastToTheFirst) {
    FixX(0, 1);
    for (int i = 0; i < 13; ++i) {
        Add(i, {10.0 + i, 20.0 + i});
        graph.SetColor(i, RGB(100 + i, 0, 0));
        graph.SetLineSize(i, 10 * i);
    }
    graph.ShowDataset(7, FALSE);
    Strings pens;
    const auto picture = Record();
    for (const testkit::MetafileRecord& record : picture->Records())
        if (record.kind == testkit::kLine && record.state.pen.find("solid") == 0 &&
            record.state.pen.find("0000") != std::string::npos)
            pens.push_back(record.state.pen);
    Strings expected;
    for (int i = 12; i >= 0; --i)
        if (i != 7)
            expected.push_back("solid " + std::to_string(10 * i) + " " +
                               testkit::ColourText(RGB(100 + i, 0, 0)));
    EXPECT_EQ(pens, expected);
}

TEST_F(GraphLinesTest, TwoAxisStyleScalesTheSecondDatasetByY2) {
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    FixX(0, 1);
    graph.SetAxisColor(RGB(1, 1, 1));
    graph.SetY2VisibleMin(-10);
    graph.SetY2VisibleMax(10);
    Add(0, {0, 100});
    Add(1, {0, 10});
    Add(2, {0, 100});
    graph.SetLineSize(0, 30);
    graph.SetLineSize(1, 60);
    const auto picture = Record();
    const std::string wide0 = std::string("solid 30 ") + kColour0,
                      wide1 = std::string("solid 60 ") + kColour1;
    EXPECT_EQ(picture->Strokes(wide0), Strings{Stroke(2230, 3800, 6800, 1100, wide0)});
    EXPECT_EQ(picture->Strokes(wide1), Strings{Stroke(2230, 2450, 6800, 1100, wide1)});
    EXPECT_EQ(picture->Strokes(std::string("solid 0 ") + kColour2), Strings())
        << "a third dataset has no axis";
    const Strings all = picture->Lines(testkit::kLine);
    EXPECT_LT(std::find(all.begin(), all.end(), Stroke(2230, 2450, 6800, 1100, wide1)),
              std::find(all.begin(), all.end(), Stroke(2230, 3800, 6800, 1100, wide0)));
}

TEST_F(GraphLinesTest, LineStyleScalesEveryDatasetByY) {
    FixX(0, 1);
    graph.SetY2VisibleMin(-10);
    graph.SetY2VisibleMax(10);
    Add(0, {0, 50});
    Add(1, {0, 50});
    const std::string pen1 = std::string("solid 0 ") + kColour1;
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kPen0), Strings{Stroke(2230, 3800, 5600, 2450, kPen0)});
    EXPECT_EQ(picture->Strokes(pen1), Strings{Stroke(2230, 3800, 5600, 2450, pen1)});
}

TEST_F(GraphLinesTest, MarkersAsShapes) {
    // One sample in the middle of a range draws its marker and nothing else.
    FixX(-1, 1);
    Add(0, {50});
    const int x = 3915, y = 2450;
    const std::string box = std::to_string(x - 90) + "," + std::to_string(y - 90) + "," +
                            std::to_string(x + 90) + "," + std::to_string(y + 90);
    const struct {
        int type;
        Strings shapes;
    } markers[] = {
        {0, {}},
        {1, {"rect " + box + " pen " + kPen0 + " brush null"}},
        {2,
         {Stroke(x, y - 90, x + 90, y, kPen0), Stroke(x + 90, y, x, y + 90, kPen0),
          Stroke(x, y + 90, x - 90, y, kPen0), Stroke(x - 90, y, x, y - 90, kPen0)}},
        {3,
         {Stroke(x, y - 90, x - 90, y + 60, kPen0), Stroke(x - 90, y + 60, x + 90, y + 60, kPen0),
          Stroke(x + 90, y + 60, x, y - 90, kPen0)}},
        {4, {"ellipse " + box + " pen " + kPen0 + " brush null"}},
        {5, {Stroke(x, y - 90, x, y + 90, kPen0), Stroke(x - 90, y, x + 90, y, kPen0)}},
        {6, {}},
        {-1, {}},
    };
    for (const auto& marker : markers) {
        graph.SetMarkerType(0, static_cast<CDataset::MarkerType>(marker.type));
        Strings shapes;
        const auto picture = Record();
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.state.pen == kPen0 && record.kind != testkit::kClip)
                shapes.push_back(record.Line());
        EXPECT_EQ(shapes, marker.shapes) << "marker " << marker.type;
    }
}

TEST_F(GraphLinesTest, TheLineGoesOnFromTheMarkedPoint) {
    FixX(0, 2);
    Add(0, {0, 100, 0});
    graph.SetMarkerType(0, CDataset::MarkerTriangle);
    const Strings strokes = Record()->Strokes(kPen0);
    EXPECT_EQ(std::count(strokes.begin(), strokes.end(), Stroke(2230, 3800, 3915, 1100, kPen0)), 1);
    EXPECT_EQ(std::count(strokes.begin(), strokes.end(), Stroke(3915, 1100, 5600, 3800, kPen0)), 1);
    EXPECT_EQ(strokes.size(), 2u + 3u * 3u);
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
    EXPECT_EQ(picture->Strokes(kPen0), PlainStrokes());
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

TEST_F(GraphLinesTest, SamplesOnTheSamePixelAreNotStrokedAgain) {
    FixX(0, 1000);
    for (int i = 0; i <= 1000; ++i)
        Add(0, {50.0});
    const Strings strokes = Record()->Strokes(kPen0);
    EXPECT_LE(strokes.size(), static_cast<std::size_t>(ToDevice(graph.m_rectPlot).Width() + 1));
    EXPECT_EQ(strokes, PlainStrokes());
}

TEST_F(GraphLinesTest, PictureEqualsThePlainWalkOverEverySample) {
    HideTexts();
    std::mt19937 random(7);
    for (const int count : {1, 2, 3, 50, 400, 20000}) {
        graph.ResetData(0);
        for (int i = 0; i < count; ++i) {
            const double wave = 50 + 40 * std::sin(i * 9.0 / count);
            const double spike = i % 997 == 500 ? 60 : 0;
            Add(0, {wave + spike + (random() % 1000) / 100.0});
        }
        FixX(count == 400 ? 100.5 : 0, count == 400 ? 250 : count - 1 + 0.001);
        graph.ShowDataset(0, FALSE);
        const auto plain = Paint();
        const HDC dc = plain->Dc();
        const HPEN pen = ::CreatePen(PS_SOLID, 0, graph.m_Datasets[0].m_Color);
        const HGDIOBJ old = ::SelectObject(dc, pen);
        const CRect plot = ToDevice(graph.m_rectPlot);
        const HRGN clip = ::CreateRectRgn(plot.left, plot.top, plot.right + 1, plot.bottom + 1);
        ::SelectClipRgn(dc, clip);
        for (int i = 0; i < count; ++i) {
            double y = 0;
            graph.GetYData(0, i, y);
            const POINT place = Place(i, y);
            if (i == 0)
                ::MoveToEx(dc, place.x, place.y, nullptr);
            else
                ::LineTo(dc, place.x, place.y);
        }
        ::SelectClipRgn(dc, nullptr);
        ::DeleteObject(clip);
        ::SelectObject(dc, old);
        ::DeleteObject(pen);
        graph.ShowDataset(0, TRUE);
        EXPECT_EQ(testkit::Difference(*plain, *Paint()), "") << count << " samples";
    }
}

TEST_F(GraphLinesTest, AnUnknownStyleDrawsTheFrameAlone) {
    FixX(0, 1);
    Add(0, {1, 99});
    graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(3));
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kPen0), Strings());
    EXPECT_FALSE(picture->Strokes("solid 0 B9DDC1").empty());
}
