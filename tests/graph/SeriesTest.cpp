#include "tests/graph/MultiGraphTest.h"

#include <cmath>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

/// First and last pixel of a colour in the column (or row) at `at`; {-1, -1} when there is none.
std::pair<int, int> Extent(const testkit::DibSurface& surface, COLORREF colour, int at, bool column) {
    std::pair<int, int> extent{-1, -1};
    for (int i = 0; i < (column ? surface.Height() : surface.Width()); ++i)
        if ((column ? surface.At(at, i) : surface.At(i, at)) == colour)
            extent = {extent.first < 0 ? i : extent.first, i};
    return extent;
}

constexpr int kOutline = 1;

} // namespace

class GraphSeriesTest : public MultiGraphTest {
protected:
    /// Checks a bar's fill between two values, one pixel of outline inside either end, at `along`.
    void ExpectBar(const testkit::DibSurface& surface, COLORREF colour, double along, double foot,
                   double tip) {
        const bool vertical = graph->graphAlignment != 0;
        const auto [first, last] = Extent(surface, colour, Pixel(along), vertical);
        const int a = Pixel(At(foot)), b = Pixel(At(tip));
        const int low = a < b ? a + 1 : b, high = a < b ? b : a - 1; // the tip's pixel belongs to it
        EXPECT_EQ(first, low + kOutline) << foot << ".." << tip;
        EXPECT_EQ(last, high - kOutline) << foot << ".." << tip;
    }
};

TEST_F(GraphSeriesTest, BarsReachTheirValuesOnBothSidesOfZero) {
    for (const auto& [alignment, top] : {std::pair(1, 100), {0, 100}, {1, -100}, {0, -100}}) {
        Make(0).SetTickLimits(-top, top, 20);
        graph->SetGraphQuadType(1);
        graph->SetGraphAlignment(alignment);
        graph->SetXAxisLabel("caption");
        Fill({{60, -35}, {-80, 100}, {250, -300}});
        const auto surface = Paint();
        const double bar = 1.0 / 3 / 3; // three slots, each of two bars and a bar's gap
        const double extent = alignment != 0 ? graph->xAxisWidth : graph->yAxisHeight;
        const auto along = [&](int s, int j) { return Slot(s, 3) + (j - 0.5) * bar * extent; };
        ExpectBar(*surface, kColours[0], along(0, 0), 0, 60);
        ExpectBar(*surface, kColours[1], along(0, 1), 0, -35);
        ExpectBar(*surface, kColours[0], along(1, 0), 0, -80);
        ExpectBar(*surface, kColours[1], along(1, 1), 0, 100);
        ExpectBar(*surface, kColours[0], along(2, 0), 0, 100); // cut at the limits
        ExpectBar(*surface, kColours[1], along(2, 1), 0, -100);
    }
}

TEST_F(GraphSeriesTest, QuadrantsShowNegativeValuesAndKeys) {
    Make(0).SetTickLimits(0, 50, 10);               // the scale reaches as far down as up
    Add("a", {{0, -50}, {1, 25}})->AddPoint(0, 40); // the first record of a group counts
    const auto surface = Paint();
    const int middle = graph->yApexPoint, half = graph->yAxisHeight / 2;
    const int x = graph->xApexPoint + graph->xAxisWidth / 3;
    EXPECT_EQ(Extent(*surface, kColours[0], x, true), std::make_pair(middle + 2, middle + half - 1));
    EXPECT_EQ(surface->At(graph->xApexPoint + 4, middle), kBlack) << "the zero line";

    Make(0).SetTickLimits(0, 50, 10);
    Add("a", {{-1, 50}, {0, 25}});
    const auto mirrored = Paint();
    const RECT left = {69, 40, graph->xApexPoint, graph->yApexPoint};
    const RECT right = {graph->xApexPoint, 40, 494, graph->yApexPoint};
    EXPECT_NEAR(mirrored->Count(kColours[0], left), 2 * mirrored->Count(kColours[0], right),
                mirrored->Count(kColours[0], right) / 10)
        << "key -1 is group 0 on the other side";
}

TEST_F(GraphSeriesTest, StacksAddUp) {
    for (const int alignment : {1, 0}) {
        Make(20).SetTickLimits(-50, 100, 10);
        graph->SetGraphAlignment(alignment);
        graph->SetXAxisLabel("caption");
        Add("a", {{0, 30}, {1, -20}, {2, 45}, {3, -10}})->AddPoint(0, 9);
        Add("b", {{1, 80}, {3, 90}});
        const auto surface = Paint();
        ExpectBar(*surface, kColours[0], Slot(0, 2), 0, 30);
        ExpectBar(*surface, kColours[2], Slot(0, 2), 30, 75);
        ExpectBar(*surface, kColours[1], Slot(0, 2), 0, -20);
        ExpectBar(*surface, kColours[3], Slot(0, 2), -20, -30);
        ExpectBar(*surface, kColours[1], Slot(1, 2), 0, 80);
        ExpectBar(*surface, kColours[3], Slot(1, 2), 80, 100);
    }
}

TEST_F(GraphSeriesTest, LinesJoinGroupsAndBreakAtGaps) {
    for (const int alignment : {1, 0}) {
        Make(1).SetGraphAlignment(alignment);
        Fill({{10, 90}, {50, 80}, {0}, {30, 60}, {40, 190}});
        const auto recorder = Record();
        const auto point = [&](int s, double value) {
            const int along = Pixel(Slot(s, 5)), at = Pixel(At(value));
            return alignment != 0 ? std::to_string(along) + "," + std::to_string(at)
                                  : std::to_string(at) + "," + std::to_string(along);
        };
        EXPECT_EQ(recorder->Strokes("solid 2 C80000").size(), 4u) << "0 is a value";
        const Strings second = recorder->Strokes("solid 2 00C800");
        ASSERT_EQ(second.size(), 2u) << "none across the gap";
        EXPECT_EQ(second[0].find("line " + point(0, 90) + " " + point(1, 80)), 0u) << second[0];
        EXPECT_EQ(second[1].find("line " + point(3, 60)), 0u) << second[1];
        const auto surface = Paint();
        EXPECT_EQ(surface->Count(kColours[1], {0, 0, 500, 39}), 0) << "cut at the plot";
        EXPECT_EQ(recorder->LinesFrom("ellipse").size(), 5u) << "a marker at each value of group 0";
        EXPECT_EQ(recorder->LinesFrom("polygon").size(), 3u)
            << "another for group 1, none outside the limits";
    }
}

TEST_F(GraphSeriesTest, KeysAreXValues) {
    for (const int type : {21, 3}) {
        Make(type);
        graph->SetXAxisLabel("caption");
        Add("a", {{40, 20}, {0, 10}, {100, 90}, {60, 400}})->AddPoint(40, 30);
        Add("b", {{20, 50}});
        const auto recorder = Record();
        const auto x = [&](int key) { return Pixel(graph->xApexPoint + key / 100.0 * graph->xAxisWidth); };
        const Strings circles = recorder->LinesFrom("ellipse");
        ASSERT_EQ(circles.size(), 4u) << "the value above the limit has none";
        const auto circle = [&](int key, int value) {
            const int y = Pixel(At(value));
            return "ellipse " + testkit::BoxText({x(key) - 4, y - 4, x(key) + 5, y + 5});
        };
        EXPECT_EQ(circles[0].find(circle(0, 10)), 0u) << circles[0] << " " << circle(0, 10);
        EXPECT_EQ(circles[1].find(circle(40, 20)), 0u) << circles[1];
        EXPECT_EQ(circles[2].find(circle(40, 30)), 0u) << circles[2];
        EXPECT_EQ(circles[3].find(circle(100, 90)), 0u) << circles[3];
        EXPECT_NE(circles[0].find("brush C80000"), std::string::npos) << "of its group";
        EXPECT_NE(circles[1].find("brush 000000"), std::string::npos) << "a group without a colour";
        const Strings strokes = recorder->Strokes("solid 2 C80000");
        EXPECT_EQ(strokes.size(), type == 21 ? 4u : 0u);
        graph->SetLegendBySeries(TRUE);
        EXPECT_NE(Record()->LinesFrom("ellipse")[1].find("brush C80000"), std::string::npos)
            << "of its series";
        if (type == 21) {
            EXPECT_EQ(strokes[0].find("line " + std::to_string(x(0)) + "," + std::to_string(Pixel(At(10)))),
                      0u);
        }
    }
}

TEST_F(GraphSeriesTest, BoxesStandAtTheQuartiles) {
    Make(4);
    Fill({{10, 95, 30, 40, 20}, {50}});
    const auto recorder = Record();
    const double slot = graph->xAxisWidth / 2.0;
    const int left = Pixel(Slot(0, 2) - slot / 4), right = Pixel(Slot(0, 2) + slot / 4 + 1);
    EXPECT_EQ(recorder->LinesFrom("rect " + testkit::BoxText({left, Pixel(At(40)), right, Pixel(At(20) + 1)}))
                  .size(),
              1u);
    const Strings medians = recorder->Strokes("solid 2 464646");
    ASSERT_EQ(medians.size(), 2u) << "one value is its own median";
    EXPECT_NE(medians[0].find("," + std::to_string(Pixel(At(30))) + " "), std::string::npos);
    const Strings outliers = recorder->LinesFrom("ellipse");
    ASSERT_EQ(outliers.size(), 1u);
    EXPECT_NE(outliers[0].find("brush 00C800"), std::string::npos) << "of its group";
    const Strings whiskers = recorder->Strokes("solid 1 464646");
    ASSERT_EQ(whiskers.size(), 2u) << "below with its cap; the upper one has no length";
    EXPECT_NE(whiskers[0].find("," + std::to_string(Pixel(At(10))) + " pen"), std::string::npos);
    graph->SetLegendBySeries(TRUE);
    EXPECT_EQ(Record()->Strokes("solid 2 006E00").size(), 1u) << "of its series";
    EXPECT_NE(Record()->LinesFrom("ellipse")[0].find("brush C80000"), std::string::npos);
}

TEST_F(GraphSeriesTest, PiesShareTheCircle) {
    for (const int type : {2, 32}) {
        Make(type);
        Add("a", {{0, 25}, {1, 0}, {2, 50}, {3, 25}});
        const auto surface = Paint();
        const RECT box = surface->Bounds(kColours[0]); // the first quarter
        const int cx = box.left, cy = box.bottom, rx = box.right - box.left, ry = box.bottom - box.top;
        const auto at = [&](double degrees, double reach) {
            const double a = degrees * 3.14159265 / 180;
            return surface->At(Pixel(cx + rx * reach * std::sin(a)), Pixel(cy - ry * reach * std::cos(a)));
        };
        EXPECT_EQ(at(3, 0.9), kColours[0]);
        EXPECT_EQ(at(86, 0.9), kColours[0]);
        EXPECT_EQ(at(94, 0.9), kColours[2]) << "a value of 0 has no sector";
        EXPECT_EQ(at(266, 0.9), kColours[2]);
        EXPECT_EQ(at(274, 0.9), kColours[3]);
        EXPECT_EQ(at(10, 1.03), kWhite);
        EXPECT_EQ(at(180, 1.04), type == 32 ? RGB(0, 0, 130) : kWhite) << "the rim in front";
        EXPECT_EQ(surface->Count(RGB(130, 0, 0)), 0) << "no rim behind";
        EXPECT_EQ(Record()->LinesFrom("polygon").size(), type == 32 ? 3u + 1u : 3u)
            << "one rim faces the viewer";
        EXPECT_EQ(rx > ry + 50, type == 32);
        EXPECT_EQ(Record()->Texts(), (Strings{"25%", "50%", "25%"}));
        Make(type);
        Fill({{500, 1, 500}});
        EXPECT_GT(Paint()->Count(kColours[1]), 20) << "a sector of a thousandth";
    }
    Make(2);
    for (int s = 0; s < 300; ++s)
        Add("pie", {{0, 1}});
    EXPECT_EQ(Record()->Texts().back().substr(0, 2), "+ ") << "tells how many pies found no room";
    Resize(110, 150);
    Make(2);
    Fill({{1}, {1}, {1}, {1}});
    EXPECT_EQ(Record()->Texts().back(), "s0  + 3 more") << "in the only room";
    Make(2);
    Fill({{0, -5}});
    EXPECT_EQ(Record()->LinesFrom("polygon").size(), 1u) << "an empty outline";
}

TEST_F(GraphSeriesTest, SolidBarsAreDrawnBackToFront) {
    for (const int type : {30, 320})
        for (const int alignment : {1, 0}) {
            Make(type).SetGraphAlignment(alignment);
            graph->SetXAxisLabel("caption");
            graph->Set3DDepthRatio(0.1);
            Fill({{40, 30}, {20, 60}});
            std::vector<std::vector<POINT>> fronts;
            Strings order;
            const auto recorder = Record();
            for (const auto& record : recorder->Records()) {
                if (record.kind != testkit::kPolygon)
                    continue;
                order.push_back(record.state.brush);
                if (record.state.brush == "C80000" || record.state.brush == "00C800")
                    fronts.push_back(record.points);
            }
            ASSERT_EQ(fronts.size(), 4u);
            ASSERT_EQ(order.size(), 3u + 12u) << "three walls, and three faces for each box";
            EXPECT_EQ(Strings(order.begin() + 3, order.begin() + 6),
                      alignment != 0 || type == 320 ? (Strings{"D64040", "8C0000", "C80000"})
                                                    : (Strings{"40D640", "008C00", "00C800"}));
            for (std::size_t i = 1; i < fronts.size(); ++i) {
                const bool sameStack = type == 320 && i % 2 == 1;
                if (alignment != 0 && !sameStack) {
                    EXPECT_GE(fronts[i][0].x, fronts[i - 1][1].x - 1) << "from left to right";
                } else if (alignment != 0) {
                    EXPECT_EQ(fronts[i][2].y, fronts[i - 1][0].y) << "upwards, without a gap";
                } else if (!sameStack) {
                    EXPECT_LE(fronts[i][2].y, fronts[i - 1][0].y + 1) << "from the bottom up";
                } else {
                    EXPECT_EQ(fronts[i][0].x, fronts[i - 1][1].x);
                }
            }
            const double depth = graph->xAxisWidth * (alignment != 0 ? 0.1 * 0.6 : 0.1);
            const double extent = (alignment != 0 ? graph->yAxisHeight : graph->xAxisWidth) - depth;
            const double tip =
                alignment != 0 ? graph->yApexPoint - fronts[0][0].y : fronts[0][1].x - graph->xApexPoint;
            EXPECT_NEAR(tip, extent * (alignment != 0 ? 0.4 : type == 320 ? 0.2 : 0.6), 1);
        }
}

TEST_F(GraphSeriesTest, RibbonsStandBehindEachOther) {
    Make(31).Set3DLineBase(20, 10);
    Fill({{30, 60}, {10, 50}, {20, 70}});
    const auto recorder = Record();
    std::vector<std::vector<POINT>> ribbons;
    Strings pens;
    for (const auto& record : recorder->Records())
        if (record.kind == testkit::kPolygon && record.state.pen != "solid 1 B0B0B0") {
            ribbons.push_back(record.points);
            pens.push_back(record.state.pen);
        }
    EXPECT_EQ(pens, (Strings{"solid 1 006E00", "solid 1 006E00", "solid 1 6E0000", "solid 1 6E0000"}));
    ASSERT_EQ(ribbons.size(), 4u);
    EXPECT_EQ(ribbons[0][3].x - ribbons[0][0].x, 20) << "as deep as told";
    EXPECT_EQ(ribbons[0][0].y - ribbons[0][3].y, 10);
    EXPECT_EQ(ribbons[0][0].x - ribbons[2][0].x, 20) << "the second one begins where the first ends";
    const double extent = graph->yAxisHeight - 2 * 10;
    EXPECT_NEAR(ribbons[2][0].y, graph->yApexPoint - 0.3 * extent, 1);
    EXPECT_NEAR(ribbons[2][1].y, graph->yApexPoint - 0.1 * extent, 1);
}

TEST_F(GraphSeriesTest, AnUnknownTypeShowsAxesOnly) {
    Make(77);
    Fill({{50}});
    EXPECT_EQ(Record()->LinesFrom("rect").size(), 1u);
    EXPECT_EQ(Record()->Texts().back(), "s0");
    graph->parentWindow = nullptr;
    EXPECT_TRUE(Record()->Lines(testkit::kAll).empty());
}
