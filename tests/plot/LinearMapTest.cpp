// SPDX-License-Identifier: MIT
// LinearMap, and the conversions from double to int.
#include "plot/LinearMap.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <utility>

namespace kavlix {
namespace {

TEST(NumericTest, ConversionsTruncateAndAreLimited) {
    for (const auto& [value, result] :
         {std::pair{-2.9, -2}, {2147483647.5, INT_MAX}, {-1e300, INT_MIN}, {NAN, 0}})
        EXPECT_EQ(TruncateToInt(value), result) << value;
    EXPECT_EQ(ToCoordinate(1e300), 134217728);
    EXPECT_EQ(ToCoordinate(-(std::int64_t{1} << 40)), -134217728);
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
    EXPECT_EQ(LinearMap(5, 5, 10, 3000).Position(5), std::nullopt) << "no range";
    EXPECT_FALSE(LinearMap(-DBL_MAX, DBL_MAX, 0, 3000).IsMonotonic()) << "the range overflows";
}

} // namespace
} // namespace kavlix
