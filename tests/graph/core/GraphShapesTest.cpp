// Shapes that the painters share: box statistics, pies, solids.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>

#include "graph/core/BoxStatistics.h"
#include "graph/core/PieShapes.h"
#include "graph/core/Solid.h"

namespace kavlix {
namespace {

TEST(BoxStatisticsTest, ExtremeAndMissingValues) {
    BoxStatistics box;
    EXPECT_FALSE(ComputeBoxStatistics({}, box));
    ASSERT_TRUE(ComputeBoxStatistics({INT_MIN, 0, INT_MAX}, box));
    EXPECT_DOUBLE_EQ(box.lowerQuartile, INT_MIN / 2.0);
    EXPECT_DOUBLE_EQ(box.upperQuartile, INT_MAX / 2.0);
    EXPECT_EQ(box.upperWhisker, INT_MAX);
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

    EXPECT_EQ(Shade(0x00FFFFFF, 9), 0x00FFFFFFu);
    EXPECT_GT(RibbonLight({0, 10}, {10, 0}), RibbonLight({0, 0}, {10, 0}));
    EXPECT_LT(RibbonLight({0, 0}, {10, 10}), RibbonLight({0, 0}, {10, 0}));
    EXPECT_EQ(RibbonLight({1, 1}, {1, 1}), kFrontLight);
}

} // namespace
} // namespace kavlix
