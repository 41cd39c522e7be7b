// SPDX-License-Identifier: MIT
// Sets of pixels against std::set.
#include "chartdraw/core/PixelSet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <utility>

namespace kavlix {
namespace {

using Pixels = std::set<std::pair<int, int>>; // y, x

Pixels PixelsOf(const PixelSet& set) {
    Pixels pixels;
    std::pair<int, int> before{-1000, 0};
    set.VisitRuns([&](const Rect& run) {
        EXPECT_LT(before, std::make_pair(run.top, run.left)) << "runs follow one another with a gap";
        EXPECT_EQ(run.bottom, run.top + 1);
        EXPECT_LT(run.left, run.right);
        before = {run.top, run.right};
        for (int x = run.left; x < run.right; ++x)
            pixels.insert({run.top, x});
    });
    return pixels;
}

TEST(PixelSetTest, RunsHoldThePixelsInsideTheArea) {
    std::mt19937 random(1);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    for (int round = 0; round < 200; ++round) {
        const int left = below(100) - 90, top = below(20) - 15;
        const Rect area{left, top, left + 1 + below(150), top + 1 + below(5)};
        PixelSet set(area);
        Pixels expected, stamped;
        for (int i = 0; i < 40; ++i) {
            const Point begin{left + below(area.Width()), top + below(area.Height())};
            for (int x = begin.x; x < std::min(begin.x + below(90), area.right); ++x) {
                set.Add({x, begin.y});
                expected.insert({begin.y, x});
            }
        }
        EXPECT_EQ(PixelsOf(set), expected);
        const std::vector<Point> shape = {{-2, 0}, {0, 0}, {1, -3}};
        for (const auto& [y, x] : expected)
            for (const Point& offset : shape)
                stamped.insert({y + offset.y, x + offset.x});
        EXPECT_EQ(PixelsOf(set.Stamped(shape, 3)), stamped);
    }
}

} // namespace
} // namespace kavlix
