// SPDX-License-Identifier: MIT
// Time stamps, searches among them and positions.
#include "scrollgraph/core/TimeLine.h"

#include "scrollgraph/core/TimeMap.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

namespace kavlix {
namespace {

TimeLine LineOf(std::initializer_list<std::int32_t> times) {
    TimeLine line;
    for (std::int32_t time : times)
        line.Append(time);
    return line;
}

TimeLine EverySecond(int count) {
    TimeLine line;
    for (int i = 0; i < count; ++i)
        line.Append(1000 + i);
    return line;
}

TEST(TimeLineTest, XCountsTwentiethsFromTheFirstStampAndWrapsRound) {
    const TimeLine line = LineOf({100, 101, 99, 100, 100 + 107374182, 100 + 107374183, INT32_MAX, INT32_MIN});
    const double expected[] = {0, 20, -20, 0, 2147483640, -2147483636, -2020, -2000};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(line.X(i), expected[i]) << i;
    EXPECT_EQ(line.Offset(2), -1);
    EXPECT_EQ(line.Offset(7), INT32_MIN - 100LL + (1LL << 32)) << "wraps round on 32 bits";
    for (int outside : {-1, 8, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(line.X(outside), 0) << outside;
        EXPECT_EQ(line.Offset(outside), 0) << outside;
        EXPECT_EQ(line.At(outside), 0) << outside;
    }
}

TEST(TimeLineTest, UpperBoundHasRoomForOneSampleASecond) {
    struct Case {
        int count, first;
        double width;
        int expected;
    };
    // From 41, one past the last sample: the count is not below it.
    const Case cases[] = {{100, 0, 1200, 59},   {100, 30, 1200, 89},       {100, 41, 1200, 100},
                          {100, 42, 1200, 99},  {100, 99, 1200, 99},       {0, 0, 1200, -1},
                          {100, 0, 0, -1},      {100, 0, 39, 0},           {100, 5, 1e300, 99},
                          {100, 5, -1200, -56}, {100, INT32_MAX, 1200, 99}};
    for (const Case& each : cases)
        EXPECT_EQ(EverySecond(each.count).UpperBound(each.first, each.width), each.expected)
            << each.count << " " << each.first << " " << each.width;
}

TEST(TimeLineTest, NearestAgreesWithAWalkOverAnyStamps) {
    std::mt19937 random(1);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 20000; ++round) {
        TimeLine line;
        std::int32_t time = round % 5 == 0 ? INT32_MAX - 40 : below(1000);
        const int count = 1 + below(12);
        const int kind = below(4); // in order; equal; sometimes back; far apart
        for (int i = 0; i < count; ++i) {
            line.Append(time);
            const int step = kind == 0   ? below(9)
                             : kind == 1 ? 0
                             : kind == 2 ? below(15) - 5
                                         : below(60000000);
            time = static_cast<std::int32_t>(static_cast<std::uint32_t>(time) + static_cast<unsigned>(step));
        }
        line.RemoveHead(below(count));
        const double width = kind == 3 ? 4e9 : 1 + below(3000);
        const TimeMap map(line, below(2000) - 1000, round % 7 == 0 ? -width : width, below(100), below(9000));
        const int first = below(line.Size());
        const int last = first + below(line.Size() - first);
        const int x = below(12000) - 2000;
        int nearest = first;
        for (int i = first; i <= last; ++i)
            if (std::abs(*map.Position(i) - x) < std::abs(*map.Position(nearest) - x))
                nearest = i;
        ASSERT_EQ(map.Nearest(first, last, x), nearest) << "round " << round;
    }
}

TEST(TimeLineTest, RunsEndWhereAStampStepsBack) {
    TimeLine line = EverySecond(10);
    EXPECT_EQ(line.RunEnd(0, 9), 9);
    for (const std::int32_t stamp : {500, 501, 501, 400})
        line.Append(stamp);
    const auto ends = [&](int first, int last) {
        std::vector<int> found;
        for (; first <= last; first = found.back() + 1)
            found.push_back(line.RunEnd(first, last).value_or(100));
        return found;
    };
    EXPECT_EQ(ends(5, 13), (std::vector<int>{9, 12, 13}));
    EXPECT_EQ(ends(6, 9), std::vector<int>{9}) << "before any step back";
    line.RemoveHead(9);
    EXPECT_EQ(ends(0, 4), (std::vector<int>{0, 3, 4}));
    line.RemoveHead(1);
    EXPECT_EQ(ends(0, 3), (std::vector<int>{2, 3}));
    line.Append(500 + 107374183);
    EXPECT_EQ(ends(0, 4), (std::vector<int>{2, 100})) << "x wraps round";
    line.KeepOne();
    ASSERT_EQ(line.Size(), 1);
    EXPECT_EQ(line.At(0), 500);
    line.Append(501);
    EXPECT_EQ(ends(0, 1), std::vector<int>{1});
}

TEST(TimeMapTest, PositionsAreComputedInDoublesAndTruncatedOnce) {
    const TimeLine line = LineOf({0, 1, 7, -3});
    const TimeMap map(line, 10, 1200, 100, 7001);
    EXPECT_EQ(map.Position(0), 41);  // 100 - 58.34
    EXPECT_EQ(map.Position(1), 158); // 100 + 58.34
    EXPECT_EQ(map.Position(2), 858); // 100 + 758.44
    EXPECT_EQ(map.Position(3), -308);
    EXPECT_EQ(TimeMap(line, 10, 0, 100, 7001).Position(1), std::nullopt);
    EXPECT_EQ(TimeMap(line, 10, 1e-300, 100, 7001).Position(1), 1 << 27) << "saturates";
    EXPECT_EQ(TimeMap(line, 10, 0, 100, 7001).Nearest(0, 3, 50), -1);
    EXPECT_EQ(map.Nearest(2, 1, 50), -1);
}

} // namespace
} // namespace kavlix
