// Ticks of extreme ranges, and properties of label places at every angle.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "graph/core/LabelPlacement.h"
#include "graph/core/ScaleTicks.h"

namespace kavlix {
namespace {

TEST(GraphScaleTest, TheWholeRangeOfNumbersMakesAFewTicks) {
    constexpr std::int64_t low = std::numeric_limits<int>::min();
    constexpr std::int64_t high = std::numeric_limits<int>::max();
    for (const double extent : {0.0, 1.0, 500.0}) {
        const ScaleTicks all = ChooseTicks(low, high, 1, extent, 4, 15);
        EXPECT_LE((all.last - all.first) / all.every, 130) << "as many as the pixels show";
    }
    EXPECT_EQ(ChooseTicks(0, 100, 0, 100, 4, 15).step, 10) << "a step of 0 is a tenth of the range";
    EXPECT_EQ(ChooseLimits(low, high, 10).step, 500'000'000);
    EXPECT_GT(SpreadBelow({50, 12}, 0, 0, 5, 2).every, 1'000'000) << "no room at all: one label";
}

TEST(GraphLabelTest, NoAngleBringsALabelIntoThePlot) {
    constexpr LabelSize kSize{60, 12};
    for (int angle = -720; angle < 720; ++angle) {
        const LabelPlace below = PlaceBelow(kSize, angle, 100, 50);
        EXPECT_NEAR(below.box.top, 50, 1e-9) << angle;
        EXPECT_LE(below.box.left, 100 + 1e-9) << "the label is at its tick, " << angle;
        EXPECT_GE(below.box.right, 100 - 1e-9) << angle;
        const LabelPlace left = PlaceLeft(kSize, angle, 30, 80);
        EXPECT_NEAR(left.box.right, 30, 1e-9) << angle;
        EXPECT_NEAR((left.box.top + left.box.bottom) / 2, 80, 1e-9) << angle;
        const double room = LongestText(kSize.height, angle, 40, 40);
        const LabelPlace fitted = PlaceBelow({room, kSize.height}, angle, 0, 0);
        EXPECT_LE(fitted.box.Height(), 40 + 1e-6) << angle;
        EXPECT_LE(fitted.box.Width(), 40 + 1e-6) << angle;
    }
}

TEST(GraphLabelTest, MiddlesKeepClearInOrder) {
    std::vector<double> middles{10, 12, 14, 90};
    ASSERT_TRUE(SpreadMiddles(middles, 10, 0, 100));
    EXPECT_EQ(middles, (std::vector<double>{10, 20, 30, 90}));
    middles = {96, 97, 98};
    ASSERT_TRUE(SpreadMiddles(middles, 10, 0, 100));
    EXPECT_EQ(middles, (std::vector<double>{75, 85, 95}));
    EXPECT_FALSE(SpreadMiddles(middles, 40, 0, 100));
}

} // namespace
} // namespace kavlix
