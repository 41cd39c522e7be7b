// SPDX-License-Identifier: MIT
// SeriesReduction against the whole line.
#include "plot/SeriesReduction.h"

#include <gtest/gtest.h>

#include <vector>

#include "plot/PixelRaster.h"
#include "tests/support/Numbers.h"

namespace kavlix {
namespace {

constexpr Rect kView{0, 0, 40, 30};
constexpr int kUnits = 30; ///< positions are this many times as fine as pixels
using Line = std::vector<Point>;

std::vector<std::uint32_t> Painted(const std::vector<Line>& lines) {
    std::vector<std::uint32_t> picture(static_cast<std::size_t>(kView.right * kView.bottom));
    const PixelRaster raster(picture.data(), kView.right, kView);
    for (const Line& line : lines)
        for (std::size_t i = 1; i < line.size(); ++i)
            raster.Stroke(line[i - 1], line[i], 1);
    return picture;
}

/// The pixels of `lines` that the reduction passes on, each part as a line of its own.
std::vector<Line> Reduce(const std::vector<Line>& lines) {
    std::vector<Line> parts;
    std::size_t first = 0; // part of the current line
    SeriesReduction reduction(kView, [&](const Point* points, int count) {
        EXPECT_GE(count, 2);
        Line part;
        for (const Point* point = points; point != points + count; ++point)
            part.push_back({point->x / kUnits, point->y / kUnits});
        EXPECT_TRUE(parts.size() == first || part.front() == parts.back().back()) << "parts meet";
        parts.push_back(part);
    });
    for (const Line& line : lines) {
        first = parts.size();
        for (const Point& pixel : line)
            reduction.Add(pixel, {pixel.x * kUnits, pixel.y * kUnits});
        reduction.Break();
    }
    reduction.End();
    return parts;
}

std::size_t PointsOf(const std::vector<Line>& parts) {
    std::size_t points = 0;
    for (const Line& part : parts)
        points += part.size();
    return points;
}

TEST(SeriesReductionTest, PaintsWhatTheWholeLinePaints) {
    testkit::Numbers random(11);
    for (int round = 0; round < 3000; ++round) {
        // Steps from one pixel to the width of the view. In every second round x never decreases.
        const int reach = 1 + random.Below(round % 3 == 0 ? 60 : 4);
        std::vector<Line> lines(1 + static_cast<std::size_t>(random.Below(3)));
        for (Line& line : lines) {
            Point at{random.Below(40), random.Below(30)};
            for (int i = random.Below(random.OneIn(20) ? 600 : 60); i > 0; --i) {
                at.x += round % 2 == 0 ? random.Below(4) / 3 * random.Below(3)
                                       : random.Below(2 * reach + 1) - reach;
                at.y += random.Below(2 * reach + 1) - reach;
                line.push_back(at);
            }
        }
        ASSERT_EQ(Painted(Reduce(lines)), Painted(lines)) << "round " << round;
    }
}

TEST(SeriesReductionTest, PassesOnFewPoints) {
    testkit::Numbers random(5);
    Line forward, up, outside, spot(100000, Point{7, 7});
    for (int i = 0; i < 100000; ++i) {
        forward.push_back({i / 2500, random.Below(30)});
        up.push_back({random.Below(40), i / 3400});
        outside.push_back({random.Below(4000) - 2000, -1 - random.Below(50)});
    }
    EXPECT_LE(PointsOf(Reduce({forward})), 40u * 8);
    EXPECT_LE(PointsOf(Reduce({up})), 30u * 8);
    EXPECT_LE(PointsOf(Reduce({outside})), 2u);
    EXPECT_EQ(PointsOf(Reduce({spot})), 2u) << "some pens draw a dot for a stroke of no length";
    EXPECT_EQ(PointsOf(Reduce({{{3, 3}}, {}, {{4, 4}}})), 0u) << "lines without a stroke";
}

} // namespace
} // namespace kavlix
