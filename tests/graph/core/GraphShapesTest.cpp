#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>

#include "graph/core/BoxStatistics.h"
#include "graph/core/PieShapes.h"
#include "graph/core/Solid.h"

namespace kavlix {
namespace {

TEST(BoxStatisticsTest, QuartilesWhiskersAndOutliers) {
    struct Case {
        std::vector<int> values;
        double lower, median, upper;
        int low, high;
    };
    const Case cases[] = {
        {{7}, 7, 7, 7, 7, 7},
        {{10, 2}, 4, 6, 8, 2, 10},
        {{4, 1, 3, 2}, 1.75, 2.5, 3.25, 1, 4},
        {{5, 1, 2, 4, 3}, 2, 3, 4, 1, 5},
        {{1, 2, 3, 4, 5, 7}, 2.25, 3.5, 4.75, 1, 7},
        {{2, 4, 6, 8, 14}, 4, 6, 8, 2, 14}, // exactly 1.5 ranges above is within
        {{2, 4, 6, 8, 15}, 4, 6, 8, 2, 8},
        {{-90, 10, 11, 12, 13, 14, 100, 90}, 10.75, 12.5, 33, 10, 14},
        {{INT_MIN, 0, INT_MAX}, INT_MIN / 2.0, 0, INT_MAX / 2.0, INT_MIN, INT_MAX},
    };
    for (const Case& c : cases) {
        BoxStatistics box;
        ASSERT_TRUE(ComputeBoxStatistics(c.values, box));
        EXPECT_DOUBLE_EQ(box.lowerQuartile, c.lower) << c.values.front();
        EXPECT_DOUBLE_EQ(box.median, c.median) << c.values.front();
        EXPECT_DOUBLE_EQ(box.upperQuartile, c.upper) << c.values.front();
        EXPECT_EQ(box.lowerWhisker, c.low) << c.values.front();
        EXPECT_EQ(box.upperWhisker, c.high) << c.values.front();
    }
    BoxStatistics box;
    EXPECT_FALSE(ComputeBoxStatistics({}, box));
}

TEST(PieGeometryTest, PiesAreArrangedToBecomeLarge) {
    std::function<double(double, double)> radius = [](double w, double h) { return std::min(w, h) / 2; };
    const auto grid = [&](int count, double width, double height) {
        const PieGrid g = ArrangePies(count, width, height, 50, radius);
        return std::to_string(g.columns) + "x" + std::to_string(g.rows);
    };
    EXPECT_EQ(grid(1, 600, 400), "1x1");
    EXPECT_EQ(grid(3, 900, 200), "3x1");
    EXPECT_EQ(grid(3, 200, 900), "1x3");
    EXPECT_EQ(grid(12, 400, 300), "4x3");
    EXPECT_EQ(grid(300, 200, 100), "4x2") << "no smaller than told";
    EXPECT_EQ(grid(5, 1, 1), "1x1");
    EXPECT_EQ(grid(3, 480, 300), "3x1");
    radius = [](double w, double h) { return std::min(w - 100, h - 40) / 2; };
    EXPECT_EQ(grid(3, 480, 300), "2x2") << "texts on both sides take more of narrow boxes";
}

TEST(PieGeometryTest, ABoxLiesInItsSectorWholeOrNot) {
    const PieOutline pie{{100, 100}, 50, 25};
    struct Case {
        Sector sector;
        PlaneRect box;
        bool inside;
    };
    const Case cases[] = {
        {{0, 0, 90, 0}, {105, 85, 125, 95}, true},   {{0, 0, 90, 0}, {95, 85, 125, 95}, false},
        {{0, 0, 90, 0}, {105, 85, 145, 95}, false},  {{0, 0, 90, 0}, {105, 76, 125, 95}, false},
        {{0, 300, 120, 0}, {90, 80, 110, 90}, true}, {{0, 300, 120, 0}, {70, 85, 100, 98}, false},
        {{0, 0, 360, 0}, {80, 90, 120, 110}, true},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pie.Holds(c.sector, c.box), c.inside)
            << c.sector.start << " " << c.box.left << " " << c.box.top;
}

TEST(SolidTest, FacesDepthAndLight) {
    for (const double ratio : {-1.0, 0.0, std::nan("")})
        EXPECT_EQ(DepthOfPlot(ratio, 500, 300).x, 0);
    EXPECT_DOUBLE_EQ(DepthOfPlot(0.1, 500, 300).x, 50);
    for (const double ratio : {0.6, 9.0, 1e300, HUGE_VAL}) {
        const Depth depth = DepthOfPlot(ratio, 500, 100);
        EXPECT_LE(depth.x, 250);
        EXPECT_LE(depth.y, 50);
        EXPECT_GT(depth.y, 40);
    }
    const Face edgeOn = MakeRibbon({0, 10}, {8, 4}, {4, 3}, 5); // the line rises as the depth does
    EXPECT_NEAR(std::hypot(edgeOn[3].x - 4 - edgeOn[0].x, edgeOn[3].y + 3 - edgeOn[0].y), 5, 1e-9);
    EXPECT_EQ(MakeRibbon({0, 10}, {8, 10}, {4, 5}, 5)[3].y, 5) << "wide enough as it is";
    EXPECT_EQ(LimitDepth({-5, 9}, 100, 100).x, 0);
    EXPECT_EQ(DepthOfPlot(0.5, -3, 10).x, 0);

    EXPECT_EQ(Shade(0x00204080, 0.5), 0x00102040u);
    EXPECT_EQ(Shade(0x00FF8000, 1), 0x00FF8000u);
    EXPECT_EQ(Shade(0, 1.5), 0x00808080u);
    EXPECT_EQ(Shade(0x00FFFFFF, 9), 0x00FFFFFFu);
    EXPECT_GT(RibbonLight({0, 10}, {10, 0}), RibbonLight({0, 0}, {10, 0}));
    EXPECT_LT(RibbonLight({0, 0}, {10, 10}), RibbonLight({0, 0}, {10, 0}));
    EXPECT_EQ(RibbonLight({1, 1}, {1, 1}), kFrontLight);
}

TEST(PlanePointTest, StrokesAreCutAtTheEdges) {
    const PlaneRect area{0, 0, 100, 50};
    struct Case {
        PlanePoint a, b;
        const char* expected;
    };
    const Case cases[] = {{{10, 10}, {90, 40}, "10,10 90,40"},
                          {{-50, 25}, {150, 25}, "0,25 100,25"},
                          {{50, 25}, {50, 1e12}, "50,25 50,50"},
                          {{0, -50}, {100, 50}, "50,0 100,50"},
                          {{0, 60}, {100, 60}, ""},
                          {{-10, 5}, {5, -20}, ""},
                          {{20, 50}, {30, 50}, "20,50 30,50"}};
    for (const Case& c : cases) {
        PlanePoint a = c.a;
        PlanePoint b = c.b;
        std::string text;
        const auto whole = [](double value) { return std::to_string(std::lround(value)); };
        if (ClipStroke(area, a, b))
            text = whole(a.x) + "," + whole(a.y) + " " + whole(b.x) + "," + whole(b.y);
        EXPECT_EQ(text, c.expected);
    }
}

} // namespace
} // namespace kavlix
