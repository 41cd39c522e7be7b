// SPDX-License-Identifier: MIT
// Shapes that the painters share: pies, solids.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "graph/core/PieShapes.h"
#include "graph/core/Solid.h"

namespace kavlix {
namespace {

TEST(GraphShapesTest, PiesAreArrangedToBecomeLarge) {
    std::function<double(double, double)> radius = [](double w, double h) { return std::min(w, h) / 2; };
    const auto grid = [&](int count, double width, double height) {
        const PieGrid g = ArrangePies(count, width, height, 50, radius);
        return std::to_string(g.columns) + "x" + std::to_string(g.rows);
    };
    EXPECT_EQ(grid(1, 600, 400), "1x1");
    EXPECT_EQ(grid(3, 900, 200), "3x1");
    EXPECT_EQ(grid(12, 400, 300), "4x3");
    EXPECT_EQ(grid(300, 200, 100), "4x2") << "no smaller than told";
    EXPECT_EQ(grid(3, 480, 300), "3x1");
    radius = [](double w, double h) { return std::min(w - 100, h - 40) / 2; };
    EXPECT_EQ(grid(3, 480, 300), "2x2") << "texts on both sides take more of narrow boxes";
}

TEST(GraphShapesTest, ABoxLiesInItsSectorWholeOrNot) {
    const PieOutline pie{{100, 100}, 50, 25};
    struct Case {
        Sector sector;
        PlaneRect box;
        bool inside;
    };
    const Case cases[] = {
        {{0, 0, 90, 0}, {105, 85, 125, 95}, true},    {{0, 0, 90, 0}, {95, 85, 125, 95}, false},
        {{0, 0, 90, 0}, {105, 76, 125, 95}, false},   {{0, 300, 120, 0}, {90, 80, 110, 90}, true},
        {{0, 300, 120, 0}, {70, 85, 100, 98}, false}, {{0, 0, 360, 0}, {80, 90, 120, 110}, true},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pie.Holds(c.sector, c.box), c.inside)
            << c.sector.start << " " << c.box.left << " " << c.box.top;
}

TEST(SolidTest, RibbonsAreWideEnoughToSee) {
    const Face edgeOn = MakeRibbon({0, 10}, {8, 4}, {4, 3}, 5); // the line rises as the depth does
    EXPECT_NEAR(std::hypot(edgeOn[3].x - 4 - edgeOn[0].x, edgeOn[3].y + 3 - edgeOn[0].y), 5, 1e-9);
    EXPECT_EQ(MakeRibbon({0, 10}, {8, 10}, {4, 5}, 5)[3].y, 5) << "wide enough as it is";
    EXPECT_GT(RibbonLight({0, 10}, {10, 0}), RibbonLight({0, 0}, {10, 0}));
    EXPECT_LT(RibbonLight({0, 0}, {10, 10}), RibbonLight({0, 0}, {10, 0}));
}

} // namespace
} // namespace kavlix
