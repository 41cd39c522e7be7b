// SPDX-License-Identifier: MIT
// Where the strokes of a chart line cross the view when their ends are far away.
#include "chartdraw/core/ChartLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace kavlix {
namespace {

/// Where the strokes of a ChartLine cross the view's column `x`: their y there.
std::vector<double> Crossings(const std::vector<std::pair<double, double>>& positions, double x) {
    std::vector<double> crossings;
    PixelSet lone({0, 0, 0, 0});
    ReducedPath path({-10, -10, 810, 610}, [&](const Point* points, int count) {
        for (int i = 1; i < count; ++i) {
            const Point &a = points[i - 1], &b = points[i];
            constexpr int kFar = (1 << 22) + 1;
            EXPECT_LE(std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y)}), kFar);
            if ((a.x <= x) != (b.x <= x))
                crossings.push_back(a.y + (x - a.x) * (static_cast<double>(b.y) - a.y) / (b.x - a.x));
        }
    });
    ChartLine line(path, lone);
    for (const auto& [px, py] : positions)
        line.Add(px, py);
    line.End();
    return crossings;
}

TEST(ChartLineTest, FarStrokesKeepTheirDirection) {
    const struct {
        const char* name;
        std::vector<std::pair<double, double>> positions;
        std::vector<double> crossings; ///< of column 400
    } cases[] = {
        {"to far right", {{0, 100}, {1e9, 100 + 5e8}}, {300}},
        {"from far left", {{-1e12, 3e12 + 100}, {800, 100 - 2400}}, {100 - 1200}},
        {"beyond all digits", {{0, 100}, {1e200, 5e199}}, {300}},
        {"aslant, from far to far", {{-4e8 + 400, -2e8 + 300}, {4e8 + 400, 2e8 + 300}}, {300}},
        {"past it", {{-1e9, 1e8}, {1e9, 1e9}}, {}},
        {"out and back", {{0, 300}, {1e10, 300}, {0, 300}}, {300, 300}},
        {"out, round a corner far away, back", {{0, 300}, {1e10, 300}, {1e10, 1e11}, {-1e10, 1e11}}, {300}},
        {"infinite both ways", {{-INFINITY, INFINITY}, {INFINITY, INFINITY}, {-INFINITY, -INFINITY}}, {}},
        {"a gap", {{0, 10}, {NAN, 10}, {800, 10}, {0, NAN}, {0, 20}, {800, 20}}, {20}},
    };
    for (const auto& each : cases) {
        const std::vector<double> found = Crossings(each.positions, 400);
        ASSERT_EQ(found.size(), each.crossings.size()) << each.name;
        for (std::size_t i = 0; i < found.size(); ++i)
            EXPECT_NEAR(found[i], each.crossings[i], 1) << each.name;
    }
}

} // namespace
} // namespace kavlix
