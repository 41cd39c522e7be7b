#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

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

} // namespace
} // namespace kavlix
