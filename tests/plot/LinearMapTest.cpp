#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <random>

#include "plot/IndexRange.h"
#include "plot/LinearMap.h"

namespace kavlix {
namespace {

TEST(NumericTest, ConversionsTruncateSaturateAndSurviveAnything) {
    EXPECT_EQ(TruncateToInt(2.9), 2);
    EXPECT_EQ(TruncateToInt(-2.9), -2);
    EXPECT_EQ(TruncateToInt(2147483646.5), INT_MAX - 1);
    EXPECT_EQ(TruncateToInt(2147483647.5), INT_MAX);
    EXPECT_EQ(TruncateToInt(-2147483648.5), INT_MIN);
    EXPECT_EQ(TruncateToInt(INFINITY), INT_MAX);
    EXPECT_EQ(TruncateToInt(-1e300), INT_MIN);
    EXPECT_EQ(TruncateToInt(NAN), 0);
    EXPECT_EQ(ToCoordinate(1e300), 134217728);
    EXPECT_EQ(ToCoordinate(std::int64_t{1} << 40), 134217728);
    EXPECT_EQ(ToCoordinate(std::numeric_limits<std::int64_t>::min()), -134217728);
}

TEST(LinearMapTest, TruncatesTheWholePositionOnce) {
    // The plot edge is part of what is truncated: bottom - 0.5 becomes bottom - 1 + 0.5, cut to bottom - 1.
    const LinearMap y(0, 100, 3800, -2700);
    EXPECT_EQ(y.Position(0), 3800);
    EXPECT_EQ(y.Position(100), 1100);
    EXPECT_EQ(y.Position(0.5 / 27), 3799);
    EXPECT_EQ(y.Position(-0.5 / 27), 3800);
    const LinearMap x(0, 9, 2230, 3370);
    EXPECT_EQ(x.Position(1), 2604);  // 2604.44
    EXPECT_EQ(x.Position(-1), 1855); // 1855.56
    EXPECT_EQ(x.Position(-7), -391); // -391.11: toward zero, not down
}

TEST(LinearMapTest, ValuesWithoutPositionAndFarValues) {
    const LinearMap usual(0, 100, 0, 3000);
    EXPECT_EQ(usual.Position(NAN), std::nullopt);
    EXPECT_EQ(usual.Position(INFINITY), kCoordinateLimit);
    EXPECT_EQ(usual.Position(-INFINITY), -kCoordinateLimit);
    EXPECT_EQ(usual.Position(1e300), kCoordinateLimit);
    EXPECT_EQ(usual.Position(-DBL_MAX), -kCoordinateLimit);

    const LinearMap zero(5, 5, 10, 3000);
    EXPECT_EQ(zero.Position(5), std::nullopt);
    EXPECT_EQ(zero.Position(7), std::nullopt);
    EXPECT_FALSE(zero.IsMonotonic());

    const LinearMap inverted(100, 0, 0, 3000);
    EXPECT_EQ(inverted.Position(100), 0);
    EXPECT_EQ(inverted.Position(0), 3000);
    EXPECT_FALSE(inverted.IsAscending());

    const LinearMap unknown(0, NAN, 0, 3000);
    EXPECT_EQ(unknown.Position(1), std::nullopt);
    const LinearMap endless(-DBL_MAX, DBL_MAX, 0, 3000); // the range itself overflows
    EXPECT_FALSE(endless.IsMonotonic());
    for (const double value : {-DBL_MAX, 0.0, DBL_MAX})
        EXPECT_LE(std::abs(endless.Position(value).value_or(0)), kCoordinateLimit);
}

TEST(IndexRangeTest, BetweenMatchesTheComparisonOfEveryIndex) {
    const double bounds[] = {-INFINITY, -1e300, -3, -0.5,  0,    0.001,    1,
                             2.5,       8.999,  9,  9.001, 1e10, INFINITY, NAN};
    for (const int count : {0, 1, 10})
        for (const double min : bounds)
            for (const double max : bounds) {
                const IndexRange range = IndicesBetween(min, max, count);
                int inside = 0;
                for (int i = 0; i < count; ++i) {
                    const bool expected = min <= i && i <= max;
                    inside += expected;
                    EXPECT_EQ(expected, !range.IsEmpty() && range.first <= i && i <= range.last)
                        << min << " <= " << i << " <= " << max;
                }
                EXPECT_EQ(range.Count(), inside);
            }
}

// Leaving samples out must be invisible: every sample whose own line reaches the window is kept.
TEST(IndexRangeTest, DrawnIndicesHoldEverySegmentThatTouchesTheWindow) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> uniform(-1, 1);
    for (int round = 0; round < 2000; ++round) {
        const int count = 1 + static_cast<int>(random() % 60);
        const double min = uniform(random) * 80;
        const double range = uniform(random) * std::pow(10, uniform(random) * 4);
        const int left = static_cast<int>(random() % 5000);
        const int width = 51 + static_cast<int>(random() % 9000);
        const int reach = static_cast<int>(random() % 1200);
        const LinearMap map(min, min + range, left, width);
        const IndexRange drawn = IndicesToDraw(map, left - reach, left + width + reach, count);
        ASSERT_GE(drawn.first, 0);
        ASSERT_LT(drawn.last, count);
        for (int i = 0; i + 1 < count; ++i) {
            const int a = map.Position(i).value();
            const int b = map.Position(i + 1).value();
            if (std::max(a, b) < left - reach || std::min(a, b) > left + width + reach)
                continue;
            ASSERT_TRUE(drawn.first <= i && i + 1 <= drawn.last) << "segment from " << i << " of " << count;
        }
    }
}

TEST(IndexRangeTest, DrawnIndicesDoNotGrowWithTheHistory) {
    const LinearMap map(1000000, 1000010, 2230, 3370);
    EXPECT_LE(IndicesToDraw(map, 2230 - 150, 5600 + 150, INT_MAX).Count(), 20);
    // Where positions follow no order, nothing is left out.
    EXPECT_EQ(IndicesToDraw(LinearMap(0, 0, 0, 100), 0, 100, 50).Count(), 50);
    EXPECT_EQ(IndicesToDraw(LinearMap(0, INFINITY, 0, 100), 0, 100, 50).Count(), 50);
    EXPECT_TRUE(IndicesToDraw(map, 0, 100, 0).IsEmpty());
}

} // namespace
} // namespace kavlix
