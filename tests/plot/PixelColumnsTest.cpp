// SPDX-License-Identifier: MIT
// Pixel columns against a walk over every sample.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>
#include <vector>

#include "plot/PixelColumns.h"

namespace kavlix {
namespace {

using Groups = std::vector<std::tuple<int, int, int>>;

/// Sample by sample, run by run: what lies on one pixel, and beyond the edges the neighbours of what is held
/// and the samples around a turn. `ends` are the last samples of the runs.
Groups PlainGroups(const std::vector<int>& positions, IndexRange range, const std::vector<int>& edges,
                   const std::vector<int>& ends) {
    const auto pixelOf = [&](int index) {
        const int position = positions[static_cast<std::size_t>(index)];
        return static_cast<int>(std::upper_bound(edges.begin(), edges.end(), position) - edges.begin());
    };
    const int outside = static_cast<int>(edges.size());
    const auto isHeld = [&](int index) { return pixelOf(index) > 0 && pixelOf(index) < outside; };
    Groups groups;
    int first = range.first;
    for (const int last : ends) {
        const int before = *(positions.begin() + first) <= *(positions.begin() + last) ? 0 : outside;
        for (int i = first; i <= last; ++i) {
            const bool isTurn = (i == first && i != range.first) || (i == last && i != range.last);
            const bool isNext = pixelOf(i) == before ? i == last || pixelOf(i + 1) != before
                                                     : i == first || pixelOf(i - 1) != pixelOf(i);
            if (isHeld(i) && !groups.empty() && std::get<1>(groups.back()) == i - 1 &&
                pixelOf(i - 1) == pixelOf(i))
                std::get<1>(groups.back()) = i;
            else if (isHeld(i) || isTurn || isNext)
                groups.emplace_back(i, i, positions[static_cast<std::size_t>(i)]);
        }
        first = last + 1;
    }
    return groups;
}

TEST(PixelColumnsTest, GroupsAreThoseOfAWalk) {
    std::mt19937 random(3);
    const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n + 1)); };
    for (int round = 0; round < 4000; ++round) {
        std::vector<int> edges{upTo(200) - 100};
        for (int k = 1 + upTo(20); k > 0; --k)
            edges.push_back(edges.back() + 29 + (round % 2 == 0 ? 1 : upTo(2)));
        const PixelEdges pixels(5, edges);
        ASSERT_EQ(pixels.IsRegular(),
                  edges.size() < 3 || std::adjacent_find(edges.begin(), edges.end(), [&](int a, int b) {
                                          return b - a != edges[1] - edges[0];
                                      }) == edges.end());
        const int step = round % 5 == 0 ? 900 : round % 3 == 0 ? 1 : 40;
        std::vector<int> positions{upTo(900) - 600};
        const int turns = upTo(2) * upTo(3);
        for (int k = upTo(round % 3 == 0 ? 900 : 60); k > 0; --k)
            positions.push_back(positions.back() + upTo(step) - (upTo(60) < turns ? upTo(700) : 0));
        if (round % 4 == 1)
            std::reverse(positions.begin(), positions.end());
        IndexRange range{0, static_cast<int>(positions.size()) - 1};
        if (round % 7 == 0)
            range = {range.last / 3, range.last - range.last / 4};

        std::vector<int> ends;
        for (int i = range.first; i <= range.last; ++i) {
            const auto at = positions.begin() + i;
            if (i == range.last || (round % 4 == 1 ? at[1] > at[0] : at[1] < at[0]))
                ends.push_back(i);
        }
        int looks = 0;
        const auto at = [&](int index) {
            ++looks;
            EXPECT_TRUE(index >= range.first && index <= range.last) << index;
            return positions[static_cast<std::size_t>(index)];
        };
        const auto runEnd = [&](IndexRange rest) -> std::optional<int> {
            return *std::lower_bound(ends.begin(), ends.end(), rest.first);
        };
        Groups found;
        for (const PixelColumn& column : GroupRunsByColumn(range, pixels, runEnd, at))
            found.emplace_back(column.first, column.last, column.position);
        ASSERT_EQ(found, PlainGroups(positions, range, edges, ends)) << "round " << round;
        ASSERT_LE(looks, static_cast<int>(40 * ends.size() + found.size() * 16)) << "round " << round;
        for (const auto& [first, last, position] : found)
            ASSERT_TRUE(!pixels.Holds(position) || pixels.PixelOf(position) == 5 + pixels.Find(position));
    }
    EXPECT_TRUE(GroupByColumn({3, 2}, PixelEdges(0, {0, 30}), [](int) { return 0; }).empty());
    EXPECT_TRUE(GroupByColumn({0, 2}, PixelEdges(), [](int) { return 0; }).empty());
}

} // namespace
} // namespace kavlix
