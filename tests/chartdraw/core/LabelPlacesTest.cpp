// SPDX-License-Identifier: MIT
// Random labels against a search of all places.
#include "chartdraw/core/LabelPlaces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kavlix {
namespace {

TEST(LabelPlacesTest, LabelsStayInsideAndApart) {
    std::mt19937 random(3);
    const auto from = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int placed = 0, none = 0;
    for (int round = 0; round < 1500; ++round) {
        const Rect area = {from(0, 20), from(0, 20), from(40, 120), from(30, 80)};
        const int gap = from(0, 4);
        LabelPlaces places(area, gap);
        std::vector<Rect> taken;
        if (from(0, 1) != 0) {
            const int left = from(0, 100), top = from(0, 60);
            taken.push_back({left, top, left + from(1, 30), top + from(1, 30)});
            places.Block(taken[0]);
        }
        const auto isFree = [&](const Rect& rect) {
            return std::none_of(taken.begin(), taken.end(), [&](const Rect& each) {
                return rect.left < each.right + gap && each.left < rect.right + gap &&
                       rect.top < each.bottom && each.top < rect.bottom;
            });
        };
        for (int label = 0; label < 8; ++label) {
            const int width = from(1, 50), height = from(1, 14), kind = from(0, 3);
            const int low = from(-10, 130), high = low + from(1, kind < 2 ? 5 : 40);
            const Rect place = kind == 0   ? places.BesideRows(low, high, width, height)
                               : kind == 1 ? places.BesideColumns(low, high, width, height)
                               : kind == 2 ? places.InRows(low, high, width, height)
                                           : places.InColumns(low, high, width, height);
            SCOPED_TRACE(testing::Message() << "round " << round << ", label " << label << ", kind " << kind);
            // All places: beside a line on both sides; in a band where the first label of all would stand, and in
            // the other rows of a horizontal band.
            LabelPlaces fresh(area, gap);
            const Rect alone = kind == 2   ? fresh.InRows(low, high, width, height)
                               : kind == 3 ? fresh.InColumns(low, high, width, height)
                                           : Rect{};
            bool isPossible = false;
            for (int left = area.left; left <= area.right - width; ++left)
                for (int top = area.top; top <= area.bottom - height; ++top) {
                    const bool isAllowed = kind == 0   ? top == low - height || top == high
                                           : kind == 1 ? left == high + gap || left == low - gap - width
                                           : kind == 2
                                               ? top == alone.top || (top >= low && top + height <= high)
                                               : left == alone.left;
                    isPossible = isPossible || (isAllowed && isFree({left, top, left + width, top + height}));
                }
            EXPECT_EQ(place == Rect{}, !isPossible);
            if (place == Rect{}) {
                ++none;
                continue;
            }
            EXPECT_TRUE(isFree(place) && place.left >= area.left && place.right <= area.right &&
                        place.top >= area.top && place.bottom <= area.bottom);
            EXPECT_TRUE(kind != 0 || place.top == low - height || place.top == high);
            EXPECT_TRUE(kind != 1 || place.left == high + gap || place.right == low - gap);
            if (kind == 2 && high - low >= height && low >= area.top && high <= area.bottom) {
                EXPECT_TRUE(place.top >= low && place.bottom <= high);
            }
            ++placed;
            taken.push_back(place);
        }
    }
    EXPECT_TRUE(placed > 1000 && none > 1000) << placed << ' ' << none;
}

} // namespace
} // namespace kavlix
