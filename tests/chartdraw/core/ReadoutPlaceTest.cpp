// SPDX-License-Identifier: MIT
// Random boxes and points against a search of all places.
#include "chartdraw/core/ReadoutPlace.h"

#include <gtest/gtest.h>

#include <random>

namespace kavlix {
namespace {

TEST(ReadoutPlaceTest, StaysInsideAndHidesTheFirstPointOnlyWhenItMust) {
    std::mt19937 random(9);
    const auto from = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int hidden = 0, shown = 0;
    for (int round = 0; round < 2000; ++round) {
        const Rect area = {from(-5, 5), from(-5, 5), from(20, 90), from(20, 60)};
        const int width = from(1, area.Width()), height = from(1, area.Height());
        // All points in a column, as those of several datasets at one time.
        std::vector<Point> points;
        const int x = from(area.left, area.right - 1);
        for (int i = from(0, 5); i >= 0; --i)
            points.push_back({x, from(area.top, area.bottom - 1)});
        const auto hides = [&](int left, int top) {
            return Rect{left, top, left + width, top + height}.Contains(points.front());
        };
        bool isAvoidable = false;
        for (int left = area.left; left + width <= area.right; ++left)
            for (int top = area.top; top + height <= area.bottom; ++top)
                isAvoidable = isAvoidable || !hides(left, top);
        const Rect place = PlaceReadout(area, width, height, points);
        SCOPED_TRACE(testing::Message() << "round " << round);
        EXPECT_TRUE(place.left >= area.left && place.right <= area.right && place.top >= area.top &&
                    place.bottom <= area.bottom && place.Width() == width && place.Height() == height);
        EXPECT_EQ(hides(place.left, place.top), !isAvoidable);
        const bool hasFreeSide = x - area.left >= width || area.right - 1 - x >= width;
        for (const Point& point : points)
            EXPECT_FALSE(hasFreeSide && place.Contains(point));
        ++(isAvoidable ? shown : hidden);
    }
    EXPECT_TRUE(hidden > 100 && shown > 100);
}

} // namespace
} // namespace kavlix
