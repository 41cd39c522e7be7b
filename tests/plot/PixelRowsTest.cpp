// SPDX-License-Identifier: MIT
// Pixel rows against the exact positions.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "plot/PixelRows.h"

namespace kavlix {
namespace {

// The shortcut must not move any value by a row, not even those whose position lies on an edge.
TEST(PixelRowsTest, RowsAreThoseOfThePosition) {
    std::mt19937_64 random(5);
    const auto share = [&] { return static_cast<double>(random() >> 11) / 9007199254740992.0; };
    constexpr double kMost = std::numeric_limits<double>::max();
    const double scales[] = {1, 1e-9, 1e12, 1e-300, 1e300, 3.7};
    for (int round = 0; round < 3000; ++round) {
        const int top = round % 5 == 0 ? -400 : 10 + round % 700;
        std::vector<int> edges;
        for (int k = 0; k <= 1 + round % 90; ++k)
            edges.push_back(top + 30 * k + (round % 11 == 0 ? k % 3 : 0));
        const PixelEdges rows(round % 40, edges);
        const double scale = scales[round % 6];
        const double min = (share() - 0.5) * scale, max = min + (share() - 0.3) * scale * 3;
        const int bottom = edges.back() - round % 97;
        const LinearMap map(min, max, bottom, round % 13 == 0 ? 700 : edges.front() - bottom);
        if (!map.IsMonotonic())
            continue;
        const PixelRows fast(map, rows);
        const auto check = [&](double value) {
            const int position = map.Position(value).value_or(0);
            ASSERT_EQ(fast.Of(value), rows.PixelOrSide(position)) << "round " << round << " value " << value;
        };
        for (int i = 0; i < 40; ++i)
            check(min + (share() * 1.6 - 0.3) * (max - min));
        for (const int edge : edges) {
            double value = map.Value(edge);
            for (int step = 0; step < 3; ++step, value = std::nextafter(value, -kMost))
                check(value);
            for (int step = 0; step < 6; ++step, value = std::nextafter(value, kMost))
                check(value);
        }
        for (double value : {0.0, kMost, -kMost, HUGE_VAL, -HUGE_VAL})
            check(value);
    }
}

} // namespace
} // namespace kavlix
