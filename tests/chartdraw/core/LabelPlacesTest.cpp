// SPDX-License-Identifier: MIT
// Random labels against a search of all places.
#include "chartdraw/core/LabelPlaces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kavlix {
namespace {

TEST(LabelPlacesTest, LabelsStayInsideAndApartWhereThereIsRoom) {
    std::mt19937 random(3);
    const auto from = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int placed = 0, overlaps = 0, none = 0;
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
            const bool isRow = kind % 2 == 0;
            const int low = from(-10, 130), high = low + from(1, kind < 2 ? 5 : 40);
            const Rect place = kind == 0   ? places.BesideRows(low, high, width, height)
                               : kind == 1 ? places.BesideColumns(low, high, width, height)
                               : kind == 2 ? places.InRows(low, high, width, height)
                                           : places.InColumns(low, high, width, height);
            SCOPED_TRACE(testing::Message() << "round " << round << ", label " << label << ", kind " << kind);
            // Beside a line: every place along it, on both sides. In a band: along the side that was chosen.
            bool isPossible = false, isFreePossible = false;
            for (int side = 0; side < (kind < 2 ? 2 : 1); ++side)
                for (int along = isRow ? area.left : area.top;
                     along <= (isRow ? area.right - width : area.bottom - height); ++along) {
                    int left = along, top = along;
                    if (kind == 0)
                        top = side == 0 ? low - height : high;
                    else if (kind == 1)
                        left = side == 0 ? high + gap : low - gap - width;
                    else
                        (isRow ? top : left) = isRow ? place.top : place.left;
                    const Rect rect = {left, top, left + width, top + height};
                    if (left < area.left || rect.right > area.right || top < area.top ||
                        rect.bottom > area.bottom)
                        continue;
                    isPossible = true;
                    isFreePossible = isFreePossible || isFree(rect);
                }
            if (place == Rect{}) {
                EXPECT_FALSE(kind < 2 && isPossible);
                EXPECT_FALSE(kind >= 2 && width <= area.Width() && height <= area.Height());
                ++none;
                continue;
            }
            EXPECT_TRUE(isPossible);
            EXPECT_TRUE(place.left >= area.left && place.right <= area.right && place.top >= area.top &&
                        place.bottom <= area.bottom);
            EXPECT_EQ(isFree(place), isFreePossible);
            if (kind >= 2 && high - low >= height && isRow && low >= area.top && high <= area.bottom) {
                EXPECT_TRUE(place.top >= low && place.bottom <= high);
            }
            overlaps += !isFreePossible;
            ++placed;
            if (isFreePossible)
                taken.push_back(place);
        }
    }
    EXPECT_TRUE(placed > 1000 && overlaps > 100 && none > 100) << placed << ' ' << overlaps << ' ' << none;
}

} // namespace
} // namespace kavlix
