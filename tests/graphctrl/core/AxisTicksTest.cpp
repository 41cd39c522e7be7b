// SPDX-License-Identifier: MIT
// Texts of value ticks, and which points of a crowded axis get a tick.

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "graphctrl/core/AxisTicks.h"

namespace kavlix {
namespace {

constexpr int kPixel = 30; // logical units

using Ticks = std::vector<std::pair<int, int>>; // index, position

TEST(ValueTicksTest, NoTextIsTooLong) {
    EXPECT_EQ(FormatTick(1.5, 400).size(), 402u);
    EXPECT_EQ(FormatTick(1e300, 0).size(), 301u);
    EXPECT_EQ(FormatTick(-1e300, 400).size(), 703u);
    EXPECT_LE(FormatTick(1, INT_MAX).size(), 8200u);
    EXPECT_EQ(FormatTick(-5e-324, 2000).size(), 2003u);
    EXPECT_EQ(FormatTick(-5e-324, 2000).substr(1073, 5), "56250") << "all its digits, then zeros";
    EXPECT_FALSE(FormatTick(INFINITY, 2).empty());
    EXPECT_FALSE(FormatTick(std::nan(""), INT_MAX).empty());
}

/// The device column of a position as the platform rounds in the controls' mapping.
int Column(int x) {
    return static_cast<int>(std::floor(x * static_cast<double>(static_cast<float>(500.0 / 15000)) + 0.5));
}

int RightOfColumn(int x) {
    int right = x + 1;
    while (Column(right) == Column(x))
        ++right;
    return right;
}

// The rule as it reads, visiting every point; a tick in the column of the one drawn before is left out.
template <class Position> Ticks WalkedTicks(int count, const TickRoom& room, Position xOf) {
    Ticks ticks;
    std::int64_t nextX = room.left;
    int interval = -1;
    int counted = -1;
    for (int i = 0; i < count; ++i) {
        const int x = xOf(i);
        if (x < nextX)
            continue;
        if (counted != -1)
            ++counted;
        if (interval != -1) {
            if (counted % interval != 0)
                continue;
        } else if (nextX != room.left) {
            interval = i;
            counted = 0;
        }
        if (ticks.empty() || Column(x) != Column(ticks.back().second))
            ticks.emplace_back(i, x);
        if (interval == -1)
            nextX += room.minGap;
    }
    const auto isHidden = [&](const auto& tick) {
        return Column(tick.second) <= Column(room.from) || tick.second > room.to;
    };
    ticks.erase(std::remove_if(ticks.begin(), ticks.end(), isHidden), ticks.end());
    return ticks;
}

template <class Position> Ticks ThinnedTicks(int count, const TickRoom& room, Position xOf) {
    Ticks ticks;
    ThinTicks(count, room, xOf, RightOfColumn, [&](int i, int x) { ticks.emplace_back(i, x); });
    return ticks;
}

TEST(TickThinningTest, EqualsTheWalkOverEveryPoint) {
    std::mt19937 random(11);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    std::size_t crowded = 0;
    for (int round = 0; round < 3000; ++round) {
        const int count = below(400);
        TickRoom room;
        room.left = below(4000) - 1000;
        room.minGap = below(8) != 0 ? 800 + below(400) : below(60) - 20;
        const int start = room.left + below(3) * below(3000);
        const double spacing = below(4) != 0 ? 30 + random() % 2000 / 7.0 : random() % 900 / 15.0;
        room.from = below(2) != 0 ? INT_MIN / 2 : start + below(3000) - 500;
        room.to = below(2) != 0 ? INT_MAX / 2 : start + below(30000);
        const auto xOf = [&](int i) { return static_cast<int>(start + i * spacing); };
        Ticks made = ThinnedTicks(count, room, xOf);
        // What stands in the column where the view begins shows nothing.
        made.erase(made.begin(), std::find_if(made.begin(), made.end(), [&](const auto& tick) {
                       return Column(tick.second) > Column(room.from);
                   }));
        ASSERT_EQ(made, WalkedTicks(count, room, xOf));
        for (std::size_t i = 1; i < made.size(); ++i)
            crowded += made[i].second - made[i - 1].second < kPixel;
    }
    EXPECT_GT(crowded, 100u) << "ticks nearer than a pixel's width, each in a column of its own";
}

TEST(TickThinningTest, MillionsOfPointsGiveNoMoreTicksThanPixels) {
    int visited = 0;
    // Crowded, far right of where the axis begins, so that the interval would be 1.
    const auto crowded = [&](int i) {
        ++visited;
        return 50000 + i / 100000;
    };
    const TickRoom all{2000, 800, 0, INT_MAX};
    const Ticks ticks = ThinnedTicks(INT_MAX, all, crowded);
    EXPECT_LE(ticks.size(), INT_MAX / 100000 / kPixel + 3u);
    EXPECT_LT(visited, 200000);
    visited = 0;
    EXPECT_LE(ThinnedTicks(INT_MAX, {2000, 800, 60000, 60300}, crowded).size(), 12u);
    EXPECT_LT(visited, 2000) << "what is not seen is not visited";

    EXPECT_TRUE(ThinnedTicks(0, {0, 800, 0, 100}, [](int) { return 0; }).empty());
}

} // namespace
} // namespace kavlix
