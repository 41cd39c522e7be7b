// LinearMap, and the conversions from double to int.
#include "plot/LinearMap.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

namespace kavlix {
namespace {

TEST(NumericTest, ConversionsTruncateAndAreLimited) {
    const struct {
        double value;
        int result;
    } cases[] = {{2.9, 2},
                 {-2.9, -2},
                 {2147483646.5, INT_MAX - 1},
                 {2147483647.5, INT_MAX},
                 {-2147483648.5, INT_MIN},
                 {INFINITY, INT_MAX},
                 {-1e300, INT_MIN},
                 {NAN, 0}};
    for (const auto& each : cases)
        EXPECT_EQ(TruncateToInt(each.value), each.result) << each.value;
    EXPECT_EQ(ToCoordinate(1e300), 134217728);
    EXPECT_EQ(ToCoordinate(std::int64_t{1} << 40), 134217728);
    EXPECT_EQ(ToCoordinate(std::numeric_limits<std::int64_t>::min()), -134217728);
}

TEST(LinearMapTest, PositionsAreTruncatedOnceAndLimited) {
    // The edge is added before truncation: 3800 - 0.5 becomes 3799.
    const LinearMap y(0, 100, 3800, -2700);
    EXPECT_EQ(y.Position(100), 1100);
    EXPECT_EQ(y.Position(0.5 / 27), 3799);
    EXPECT_EQ(y.Position(-0.5 / 27), 3800);
    EXPECT_EQ(LinearMap(0, 9, 2230, 3370).Position(-7), -391) << "-391.11 is truncated toward zero";
    EXPECT_EQ(y.Position(NAN), std::nullopt);
    EXPECT_EQ(y.Position(INFINITY), -kCoordinateLimit);
    EXPECT_EQ(y.Position(-DBL_MAX), kCoordinateLimit);
    EXPECT_FALSE(y.IsAscending());
    EXPECT_EQ(LinearMap(100, 0, 0, 3000).Position(100), 0) << "reversed";
}

TEST(LinearMapTest, RangesWithoutPositions) {
    const LinearMap zero(5, 5, 10, 3000);
    EXPECT_EQ(zero.Position(5), std::nullopt);
    EXPECT_FALSE(zero.IsMonotonic());
    EXPECT_EQ(LinearMap(0, NAN, 0, 3000).Position(1), std::nullopt);
    const LinearMap endless(-DBL_MAX, DBL_MAX, 0, 3000); // the range overflows
    EXPECT_FALSE(endless.IsMonotonic());
    for (const double value : {-DBL_MAX, 0.0, DBL_MAX})
        EXPECT_LE(std::abs(endless.Position(value).value_or(0)), kCoordinateLimit);
}

} // namespace
} // namespace kavlix
