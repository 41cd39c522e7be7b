#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <set>
#include <vector>

#include "chartdraw/core/ChartLine.h"
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
        {"near", {{0, 0}, {800, 600}}, {300}},
        {"to far right", {{0, 100}, {1e9, 100 + 5e8}}, {300}},
        {"from far left", {{-1e12, 3e12 + 100}, {800, 100 - 2400}}, {100 - 1200}},
        {"beyond all digits", {{0, 100}, {1e200, 5e199}}, {300}},
        {"back from there", {{1e200, 5e199}, {0, 100}}, {300}},
        {"through, from far to far", {{-4e8 + 400, 300}, {4e8 + 400, 300}}, {300}},
        {"aslant, from far to far", {{-4e8 + 400, -2e8 + 300}, {4e8 + 400, 2e8 + 300}}, {300}},
        {"past it", {{-1e9, 1e8}, {1e9, 1e9}}, {}},
        {"out and back", {{0, 300}, {1e10, 300}, {0, 300}}, {300, 300}},
        {"out, round a corner far away, back", {{0, 300}, {1e10, 300}, {1e10, 1e11}, {-1e10, 1e11}}, {300}},
        {"infinite", {{0, 250}, {INFINITY, 250}}, {250}},
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
