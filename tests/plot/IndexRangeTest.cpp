// SPDX-License-Identifier: MIT
// The indices to draw against the segments that touch the window.
#include "plot/IndexRange.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <random>

namespace kavlix {
namespace {

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
