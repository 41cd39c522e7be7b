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

std::vector<std::string> Labels(double min, double max, int ticks, int exponent, int decimals) {
    std::vector<std::string> labels;
    ValueTicks values(min, max, ticks, exponent);
    for (int i = 0; i < ticks; ++i, values.Next())
        labels.push_back(FormatTick(values.Value(), decimals));
    return labels;
}

TEST(ValueTicksTest, Labels) {
    using List = std::vector<std::string>;
    EXPECT_EQ(Labels(0, 100, 5, 0, 0), (List{"0", "25", "50", "75", "100"}));
    EXPECT_EQ(Labels(0, 100000, 5, 3, 1), (List{"0.0", "25.0", "50.0", "75.0", "100.0"}));
    EXPECT_EQ(Labels(0, 100, 5, 3, 1), (List{"0.0", "0.0", "0.1", "0.1", "0.1"}));
    EXPECT_EQ(Labels(10, -10, 3, 0, -4), (List{"10", "0", "-10"}));
    EXPECT_EQ(Labels(7, 7, 2, 0, 2), (List{"7.00", "7.00"}));
    EXPECT_EQ(Labels(0, 1, 2, -2, 0), (List{"0", "100"}));
    EXPECT_EQ(Labels(0, 3, 2, -400, 0), (List{"0", "3"})); // 10^-400 is 0: undivided
}

TEST(ValueTicksTest, ValuesCarryTheRoundingOfRepeatedAddition) {
    ValueTicks values(0, 1, 11, 0);
    double sum = 0;
    for (int i = 0; i < 10; ++i, sum += 0.1)
        values.Next();
    EXPECT_EQ(values.Value(), sum);
    EXPECT_NE(values.Value(), 1.0);
}

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
        ASSERT_EQ(made, WalkedTicks(count, room, xOf))
            << count << " points from " << start << " every " << spacing << ", gap " << room.minGap
            << " from " << room.left << ", seen from " << room.from << " to " << room.to;
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

    for (const int gap : {0, -500, INT_MIN, INT_MAX}) {
        const Ticks odd = ThinnedTicks(1000000, {0, gap, 0, INT_MAX}, [](int i) { return i / 1000; });
        EXPECT_GE(odd.size(), 1u);
        EXPECT_LE(odd.size(), 40u);
    }
    EXPECT_EQ(ThinnedTicks(1000000, {0, 800, 0, 100}, [](int) { return 0; }).size(), 1u);
    EXPECT_TRUE(ThinnedTicks(0, {0, 800, 0, 100}, [](int) { return 0; }).empty());
}

TEST(LineTicksTest, OnlyVisiblePointsOfAnUprightRange) {
    const auto ticksOf = [](double min, double max, int count) {
        Ticks ticks;
        LineTicks(LinearMap(min, max, 1000, 3000), min, max, count, {1000, 900, 0, 9000}, RightOfColumn,
                  [&](int i, int x) { ticks.emplace_back(i, x); });
        return ticks;
    };
    // A point on the right end is inside, one past it is not.
    EXPECT_EQ(ticksOf(0, 3, 10), (Ticks{{0, 1000}, {1, 2000}, {2, 3000}, {3, 4000}}));
    EXPECT_EQ(ticksOf(1.5, 4.5, 10), (Ticks{{2, 1500}, {3, 2500}, {4, 3500}}));
    EXPECT_EQ(ticksOf(-2, 1, 10), (Ticks{{0, 3000}, {1, 4000}}));
    EXPECT_TRUE(ticksOf(20, 30, 10).empty());
    EXPECT_TRUE(ticksOf(0, 3, 0).empty());
    EXPECT_TRUE(ticksOf(3, 0, 10).empty());
    EXPECT_TRUE(ticksOf(2, 2, 10).empty());
    EXPECT_EQ(ticksOf(0, INFINITY, 10), (Ticks{{0, 1000}})) << "every position is the left end";
    EXPECT_TRUE(ticksOf(-INFINITY, 5, 10).empty());
    EXPECT_TRUE(ticksOf(std::nan(""), 5, 10).empty());
    EXPECT_EQ(ticksOf(0, 1e300, 10), (Ticks{{0, 1000}}));
}

} // namespace
} // namespace kavlix
