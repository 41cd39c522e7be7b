#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>
#include <vector>

#include "plot/SeriesReduction.h"

namespace kavlix {
namespace {

constexpr Rect kView{0, 0, 40, 30};
using Line = std::vector<Point>;
using Pixels = std::set<std::pair<int, int>>;

/// The pixels of the view that strokes from point to point paint, each without its last pixel.
Pixels Painted(const std::vector<Line>& lines, const Rect& view) {
    Pixels pixels;
    for (const Line& line : lines) {
        for (std::size_t i = 1; i < line.size(); ++i) {
            const Point from = line[i - 1], to = line[i];
            const int dx = to.x - from.x, dy = to.y - from.y;
            const int steps = std::max(std::abs(dx), std::abs(dy));
            for (int k = 0; k < steps; ++k) {
                const Point at{from.x + dx * k / steps, from.y + dy * k / steps};
                if (view.Contains(at))
                    pixels.insert({at.x, at.y});
            }
        }
    }
    return pixels;
}

struct Reduced {
    std::vector<Line> parts;
    std::size_t points = 0;
};

/// `lines` through the reduction.
Reduced Reduce(const std::vector<Line>& lines, const Rect& view) {
    Reduced reduced;
    SeriesReduction reduction(view, [&](const Point* points, int count) {
        EXPECT_GE(count, 2);
        reduced.parts.emplace_back(points, points + count);
        reduced.points += static_cast<std::size_t>(count);
    });
    for (const Line& line : lines) {
        for (const Point& point : line)
            reduction.Add(point);
        reduction.Break();
    }
    reduction.End();
    return reduced;
}

TEST(SeriesReductionTest, PaintsWhatTheWholeLinePaints) {
    std::mt19937 random(11);
    const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int round = 0; round < 3000; ++round) {
        // Steps from tiny to across the view; x going on, standing still or going back; lines leaving it.
        const int reach = 1 + upTo(round % 3 == 0 ? 60 : 4);
        const bool forward = round % 2 == 0;
        std::vector<Line> lines(1 + static_cast<std::size_t>(upTo(3)));
        for (Line& line : lines) {
            Point at{upTo(40), upTo(30)};
            for (int i = upTo(60); i > 0; --i) {
                at.x += forward ? upTo(4) / 3 * upTo(3) : upTo(2 * reach + 1) - reach;
                at.y += upTo(2 * reach + 1) - reach;
                line.push_back(at);
            }
        }
        const Reduced reduced = Reduce(lines, kView);
        ASSERT_EQ(Painted(reduced.parts, kView), Painted(lines, kView)) << "round " << round;
    }
}

TEST(SeriesReductionTest, HandsOnFewPoints) {
    std::mt19937 random(5);
    Line forward, up, outside, spot(100000, Point{7, 7});
    for (int i = 0; i < 100000; ++i) {
        forward.push_back({i / 2500, static_cast<int>(random() % 30)});
        up.push_back({static_cast<int>(random() % 40), i / 3400});
        outside.push_back({static_cast<int>(random() % 4000) - 2000, -1 - static_cast<int>(random() % 50)});
    }
    EXPECT_LE(Reduce({forward}, kView).points, 40u * 8);
    EXPECT_LE(Reduce({up}, kView).points, 30u * 8);
    EXPECT_LE(Reduce({outside}, kView).points, 2u);
    EXPECT_EQ(Reduce({spot}, kView).points, 2u) << "a stroke of no length is a dot with some pens";
    EXPECT_EQ(Reduce({{{3, 3}}, {}, {{4, 4}}}, kView).points, 0u) << "no stroke";
}

TEST(SeriesReductionTest, LongLinesComeInPartsThatMeet) {
    Line line;
    for (int i = 0; i < 20000; ++i)
        line.push_back({i % 2 * 39, i % 30});
    const Reduced reduced = Reduce({line}, kView);
    ASSERT_GT(reduced.parts.size(), 2u);
    for (std::size_t i = 1; i < reduced.parts.size(); ++i)
        EXPECT_EQ(reduced.parts[i].front(), reduced.parts[i - 1].back()) << "part " << i;
    EXPECT_EQ(reduced.points, line.size() + reduced.parts.size() - 1) << "none is left out";
}

TEST(SeriesReductionTest, PositionsGoWithTheirPixels) {
    Line handedOn;
    SeriesReduction reduction(
        kView, [&](const Point* points, int count) { handedOn.assign(points, points + count); });
    // Thirty units a pixel: all fall into column 1.
    for (const Point& position : Line{{31, 300}, {35, 900}, {40, 30}, {44, 600}, {50, 310}})
        reduction.Add({position.x / 30, position.y / 30}, position);
    reduction.End();
    EXPECT_EQ(handedOn, (Line{{31, 300}, {35, 900}, {40, 30}, {50, 310}}));
}

} // namespace
} // namespace kavlix
