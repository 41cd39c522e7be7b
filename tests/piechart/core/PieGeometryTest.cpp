// SPDX-License-Identifier: MIT
// Angles, points and sectors against formulas and a plain sum.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <random>
#include <vector>

#include "piechart/core/PieGeometry.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

/// Whether `value` is `exact` truncated toward zero. If `exact` is nearly a whole number,
/// rounding may decide.
bool IsTruncated(int value, double exact) {
    return value == std::trunc(exact + 1e-6) || value == std::trunc(exact - 1e-6);
}

TEST(PieGeometryTest, RandomPiesFollowTheFormulas) {
    std::mt19937 random(3);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    for (int run = 0; run < 5000; ++run) {
        SCOPED_TRACE(run);
        const int left = below(100) - 50, top = below(100) - 50;
        const int width = 1 + below(500), height = 1 + below(500), side = std::min(width, height) - 40;
        const Rect pie = PieSquare({left, top, left + width, top + height});
        const Point corner{left + (width - side) / 2 - 15, top + (height - side) / 2};
        EXPECT_EQ(pie, (Rect{corner.x, corner.y, corner.x + side, corner.y + side}));
        const Point centre = PieCentre(pie);
        EXPECT_TRUE(IsTruncated(centre.x, (pie.left + pie.right) / 2.0));
        EXPECT_TRUE(IsTruncated(centre.y, (pie.top + pie.bottom) / 2.0));
        const Point away{below(7) - 3, below(7) - 3};
        const double seen = std::atan2(away.x, -away.y) * 180 / kPi;
        EXPECT_NEAR(AngleOfPoint(pie, {centre.x + away.x, centre.y + away.y}),
                    away.x == 0 && away.y == 0 ? -1
                    : seen < 0                 ? seen + 360
                                               : seen,
                    1e-7);

        const double angle = below(7200) / 10.0 - 360, radians = angle * kPi / 180;
        const bool inner = below(2) == 0;
        const double radius = pie.Height() / 2.0 * (inner ? 0.6 : 1);
        const Point found = PointOnPie(pie, angle, inner);
        EXPECT_TRUE(IsTruncated(found.x, (pie.left + pie.right) / 2.0 + std::sin(radians) * radius));
        EXPECT_TRUE(IsTruncated(found.y, (pie.top + pie.bottom) / 2.0 - std::cos(radians) * radius));
    }
    // These must be exact, because the edges of pieces often have these angles.
    const Rect pie{55, 20, 215, 180};
    EXPECT_EQ(AngleOfPoint(pie, {136, 100}), 90.0);
    EXPECT_EQ(AngleOfPoint(pie, {135, 101}), 180.0);
    EXPECT_EQ(AngleOfPoint(pie, {135, 99}), 0.0);
    EXPECT_NEAR(AngleOfPoint(pie, {INT_MAX, INT_MIN}), 45, 1e-4);
    EXPECT_EQ(PointOnPie(pie, NAN, false), (Point{0, 0}));
}

TEST(PieGeometryTest, LineInASectorKeepsItsDistance) {
    const Rect pie{55, 20, 215, 180};
    for (const double span : {20.0, 60.0, 179.0, 181.0, 300.0, 355.0, 360.0}) {
        const std::vector<Point> line = LineInSector(pie, 70, 70 + span, 4);
        ASSERT_GE(line.size(), 4u) << span;
        EXPECT_EQ(line.front(), line.back());
        for (const Point& point : line) {
            const double from = PieRadians(std::fmod(AngleOfPoint(pie, point) - 70 + 720, 360));
            const double away = std::min(from, PieRadians(span) - from);
            const double distance = std::hypot(point.x - 135, point.y - 100);
            EXPECT_LT(distance, 77);
            EXPECT_TRUE(span == 360 || away > 1.57 || distance * std::sin(away) > 2.5) << span;
        }
    }
    EXPECT_TRUE(LineInSector(pie, 10, 12, 4).empty()) << "no room";
}

TEST(PieGeometryTest, ASectorReachesFromTheHighestSumToTheNext) {
    const double odd[] = {0, -1, 1e308, -1e308, 5e-324, NAN, INFINITY, -INFINITY};
    std::mt19937 random(5);
    for (int run = 0; run < 2000; ++run) {
        PieRunningSum running;
        double sum = 0, highest = 0;
        for (unsigned n = random() % 8; n > 0; --n) {
            const double value = random() % 6 == 0 ? odd[random() % std::size(odd)] : random() % 50 - 5.0;
            const double total = random() % 20 == 0 ? odd[random() % std::size(odd)] : 100.0;
            const PieSector sector = running.Add(value, total);
            sum += value / total * 360;
            EXPECT_EQ(sector.begin, std::min(highest, 360.0));
            EXPECT_EQ(sector.end, std::min(std::fmax(highest, sum), 360.0)) << "fmax passes over NaN";
            const bool isLevel = value / total == 0 && sum == highest && sum <= 360;
            EXPECT_EQ(sector.hasPlace, sector.end > sector.begin || isLevel);
            EXPECT_EQ(running.Reaches(200), sum >= 200);
            highest = std::fmax(highest, sum);
        }
    }
}

} // namespace
} // namespace kavlix
