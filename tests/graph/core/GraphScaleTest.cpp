#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "graph/core/LabelPlacement.h"
#include "graph/core/ScaleTicks.h"

namespace kavlix {
namespace {

std::string Values(const ScaleTicks& ticks, bool labelled) {
    std::string text;
    for (std::int64_t i = ticks.first; i <= ticks.last; i += ticks.every)
        if (!labelled || ticks.HasLabel(i))
            text += std::to_string(ticks.Value(i)) + " ";
    return text;
}

TEST(GraphScaleTest, TicksAreThinnedAndKeepZero) {
    struct Case {
        std::int64_t min, max, step;
        double extent, tickGap, labelGap;
        const char* ticks;
        const char* labels;
    };
    const Case cases[] = {
        {0, 40, 10, 100, 4, 15, "0 10 20 30 40 ", "0 10 20 30 40 "},
        {0, 45, 10, 100, 4, 15, "0 10 20 30 40 ", "0 10 20 30 40 "},
        {3, 40, 10, 100, 4, 30, "3 13 23 33 ", "3 23 "},
        {-30, 30, 10, 60, 4, 15, "-30 -20 -10 0 10 20 30 ", "-20 0 20 "},
        {-25, 30, 10, 55, 4, 10, "-25 -15 -5 5 15 25 ", "-25 -15 -5 5 15 25 "},
        {40, 0, -10, 100, 4, 15, "0 10 20 30 40 ", "0 10 20 30 40 "},
        {0, 10, 25, 100, 4, 15, "0 ", "0 "},
        {5, 5, 1, 100, 4, 15, "5 ", "5 "},
        {0, 100, 0, 100, 4, 15, "0 10 20 30 40 50 60 70 80 90 100 ", "0 20 40 60 80 100 "},
    };
    for (const Case& c : cases) {
        ScaleTicks ticks = ChooseTicks(c.min, c.max, c.step, c.extent, c.tickGap, c.labelGap);
        EXPECT_EQ(Values(ticks, false), c.ticks) << c.min << " " << c.max;
        EXPECT_EQ(Values(ticks, true), c.labels) << c.min << " " << c.max;
    }
    EXPECT_EQ(Values(ChooseTicks(-25, 25, 10, 100, 4, 4, true), false), "-20 -10 0 10 20 ");

    constexpr std::int64_t low = std::numeric_limits<int>::min();
    constexpr std::int64_t high = std::numeric_limits<int>::max();
    for (const double extent : {0.0, 1.0, 500.0}) {
        const ScaleTicks all = ChooseTicks(low, high, 1, extent, 4, 15);
        EXPECT_LE((all.last - all.first) / all.every, 130) << "as many as the pixels show";
    }
}

TEST(GraphScaleTest, ChosenLimitsAreRoundAndHoldAll) {
    struct Case {
        std::int64_t low, high;
        int steps;
        RoundLimits expected;
    };
    const Case cases[] = {{0, 100, 10, {0, 100, 10}},
                          {-7, 93, 5, {-20, 100, 20}},
                          {5, 5, 4, {4, 6, 1}},
                          {1990, 2013, 5, {1990, 2015, 5}}};
    for (const Case& c : cases) {
        const RoundLimits limits = ChooseLimits(c.low, c.high, c.steps);
        EXPECT_EQ(limits.min, c.expected.min) << c.low;
        EXPECT_EQ(limits.max, c.expected.max) << c.low;
        EXPECT_EQ(limits.step, c.expected.step) << c.low;
    }
    const RoundLimits whole =
        ChooseLimits(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 10);
    EXPECT_EQ(whole.step, 500'000'000);
}

TEST(GraphLabelTest, NoAngleBringsALabelIntoThePlot) {
    constexpr LabelSize kSize{60, 12};
    for (int angle = -720; angle < 720; ++angle) {
        const LabelPlace below = PlaceBelow(kSize, angle, 100, 50);
        EXPECT_NEAR(below.box.top, 50, 1e-9) << angle;
        ASSERT_EQ(NormalAngle(angle), (angle + 720) % 360);
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
    EXPECT_DOUBLE_EQ(PlaceBelow(kSize, 0, 100, 50).origin.x, 70) << "middle under the tick";
    EXPECT_DOUBLE_EQ(PlaceBelow(kSize, 90, 100, 50).origin.x, 94);
    EXPECT_DOUBLE_EQ(PlaceBelow(kSize, 90, 100, 50).origin.y, 110) << "reads upwards and ends at the axis";
    EXPECT_DOUBLE_EQ(PlaceBelow(kSize, 270, 100, 50).origin.y, 50) << "begins at the axis";
    EXPECT_LT(PlaceBelow(kSize, 45, 100, 50).box.left, 60) << "rising labels stand to the left of the tick";
    EXPECT_GT(PlaceBelow(kSize, 315, 100, 50).box.right, 140) << "falling ones to the right";
}

TEST(GraphLabelTest, NeighboursKeepClear) {
    constexpr LabelSize kSize{50, 12};
    const auto spread = [&](int angle, double distance, int rows) {
        const LabelSpread s = SpreadBelow(kSize, angle, distance, 5, rows);
        return std::to_string(s.every) + "/" + std::to_string(s.rows);
    };
    EXPECT_EQ(spread(0, 55, 2), "1/1");
    EXPECT_EQ(spread(0, 54, 2), "1/2");
    EXPECT_EQ(spread(0, 27, 2), "3/1");
    EXPECT_EQ(spread(0, 54, 1), "2/1");
    EXPECT_EQ(spread(90, 17, 2), "1/1");
    EXPECT_EQ(spread(90, 16, 2), "2/1");
    EXPECT_EQ(spread(45, 25, 1), "1/1");
    EXPECT_EQ(spread(45, 24, 1), "2/1");
    EXPECT_EQ(SpreadLeft(kSize, 0, 10, 1).every, 2);
    EXPECT_GT(SpreadBelow(kSize, 0, 0, 5, 2).every, 1'000'000) << "no room at all: one label";

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
