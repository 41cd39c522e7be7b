// SPDX-License-Identifier: MIT
// Bars and areas, column by column, against plain walks over all points.
#include "chartdraw/core/ChartAreas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "plot/PixelRaster.h"

namespace kavlix {
namespace {

constexpr int kPlotWidth = 60;
constexpr int kPlotHeight = 40;
constexpr int kTall = 3000; // rows above and below row 0 that the plain walk of lines knows
const Rect kFrame{0, 0, kPlotWidth, kPlotHeight};
using PixelGrid = std::vector<int>;

/// The pixels of the areas inside the frame.
PixelGrid Painted(const ColumnRows& rows) {
    PixelGrid pixels(kPlotWidth * kPlotHeight);
    rows.VisitAreas(kFrame, [&](const Rect& area) {
        EXPECT_TRUE(area.left < area.right && area.top >= 0 && area.bottom <= kPlotHeight);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                ++pixels[static_cast<std::size_t>(y * kPlotWidth + x)];
    });
    return pixels;
}

void FillPlainly(PixelGrid& pixels, int x, int a, int b) {
    for (int y = std::max(std::min(a, b), 0); y <= std::min(std::max(a, b), kPlotHeight - 1); ++y)
        if (x >= 0 && x < kPlotWidth)
            pixels[static_cast<std::size_t>(y * kPlotWidth + x)] = 1;
}

/// A random series, and the maps of a random view of it.
class Scene {
public:
    explicit Scene(std::mt19937& random) : m_random(random) {
        const int count = static_cast<int>(std::pow(Unit(), 3) * 9000);
        const bool isSorted = !OneIn(4), isEven = OneIn(3), isLogX = OneIn(4), isLogY = OneIn(4);
        const double gaps = OneIn(2) ? 0 : 0.02;
        const auto xOf = [&](double x) { return isLogX ? std::pow(10, x * 2) - 1.5 : x; };
        const auto yOf = [&](double y) { return isLogY ? std::pow(10, y) : y; };
        series.SetEven(isLogX ? -0.5 : 0, isLogX ? 100.0 / (count + 1) : 1.0 / (count + 1));
        if (OneIn(3))
            series.SetGapLimit((isLogX ? 100 : 1.0) * 1.8 / (count + 1));
        double x = 0, y = 0.5;
        for (int i = 0; i < count; ++i) {
            x = isSorted ? x + 2 * Unit() / count : Unit();
            y += (Unit() - 0.5) * 0.3;
            const double value = Unit() < gaps ? (OneIn(2) ? NAN : -1.0) : yOf(y);
            if (isEven)
                series.AppendEven(value);
            else
                series.Append(xOf(x), value);
        }
        const double range = OneIn(2) ? 1 : std::pow(10, -2 * Unit());
        const double from = (1 - range) * Unit();
        double left = isLogX ? std::pow(10, 2 * from) : from;
        double right = isLogX ? std::pow(10, 2 * (from + range)) : from + range;
        double low = yOf(y - Unit()), high = yOf(y + Unit() + 0.1);
        if (OneIn(4))
            std::swap(left, right);
        if (OneIn(4))
            std::swap(low, high);
        barWidth = OneIn(4) ? 0 : (isLogX ? 30 : 1) * std::pow(10, -3 * Unit());
        xMap = AxisMap(isLogX, left, right, 0, kPlotWidth - 1);
        yMap = AxisMap(isLogY, low, high, kPlotHeight - 1, 1 - kPlotHeight);
        baseline = OneIn(3) ? 0 : low + (high - low) * Unit();
    }

    double Unit() { return m_random() / 4294967296.0; }
    bool OneIn(int rounds) { return m_random() % static_cast<unsigned>(rounds) == 0; }

    ChartSeries series;
    AxisMap xMap = LinearMap(0, 1, 0, 1), yMap = LinearMap(0, 1, 0, 1);
    double baseline = 0;
    double barWidth = 0;

private:
    std::mt19937& m_random;
};

/// The row of the baseline: the lower end of a logarithmic axis stands for values that it cannot show.
int BaseOf(const Scene& scene) {
    return scene.yMap.Position(scene.baseline).value_or(kPlotHeight - 1);
}

TEST(ChartAreas, BarsAreThoseOfEachPoint) {
    std::mt19937 random(11);
    for (int round = 0; round < 800; ++round) {
        Scene scene(random);
        const int wide = scene.OneIn(3) ? 1 + static_cast<int>(scene.Unit() * 6) : 0; // impulses
        PixelGrid expected(kPlotWidth * kPlotHeight);
        for (int i = 0; i < scene.series.Size(); ++i) {
            const ChartPoint point = scene.series[i];
            const auto x = scene.xMap.Position(point.x), y = scene.yMap.Position(point.y);
            if (!x || !y)
                continue;
            const bool isAscending = scene.xMap.IsAscending();
            const int before = isAscending ? -kCoordinateLimit : kCoordinateLimit;
            int left = scene.xMap.Position(point.x - scene.barWidth / 2).value_or(before);
            int right = scene.xMap.Position(point.x + scene.barWidth / 2).value_or(before);
            if (left > right)
                std::swap(left, right);
            right = std::max(right, left + 1);
            if (wide > 0) {
                left = *x - wide / 2;
                right = left + wide;
            }
            for (int column = std::max(left, 0); column < std::min(right, kPlotWidth); ++column)
                FillPlainly(expected, column, BaseOf(scene), *y);
        }
        ColumnRows rows(0, kPlotWidth);
        const BarShape bars = wide > 0 ? BarShape(scene.xMap, wide) : BarShape(scene.xMap, scene.barWidth);
        ASSERT_EQ(BaselineRow(scene.yMap, scene.baseline), BaseOf(scene));
        CoverBars(scene.series, bars, scene.yMap, BaseOf(scene), rows);
        ASSERT_EQ(Painted(rows), expected) << "round " << round << ", " << scene.series.Size() << " points";
    }
}

/// For each column the highest and the lowest pixel of the strokes between all points, and of the points.
ColumnRows WalkLine(const Scene& scene, bool isStepped) {
    std::vector<std::uint32_t> memory(kPlotWidth * 2 * kTall);
    const PixelRaster raster(memory.data() + kTall * kPlotWidth, kPlotWidth, {0, -kTall, kPlotWidth, kTall});
    bool isOpen = false;
    Point last;
    const auto strokeTo = [&](Point to) {
        if (isOpen)
            raster.Stroke(last, to, 1);
        raster.Run(to.x, to.y, to.y, 1);
        last = to;
        isOpen = true;
    };
    for (int i = 0; i < scene.series.Size(); ++i) {
        const auto x = scene.xMap.Position(scene.series[i].x), y = scene.yMap.Position(scene.series[i].y);
        isOpen = isOpen && x && y && !scene.series.IsGapBefore(i);
        if (isOpen && isStepped)
            strokeTo({*x, last.y});
        if (x && y)
            strokeTo({*x, *y});
    }
    ColumnRows rows(0, kPlotWidth);
    for (int y = -kTall; y < kTall; ++y)
        for (int x = 0; x < kPlotWidth; ++x)
            if (memory[static_cast<std::size_t>((y + kTall) * kPlotWidth + x)] != 0)
                rows.Cover(x, y, y);
    return rows;
}

TEST(ChartAreas, AreasFollowTheLinesOfAllPoints) {
    std::mt19937 random(12);
    for (int round = 0; round < 400; ++round) {
        Scene scene(random), other(random);
        const bool isStepped = scene.OneIn(3);
        PixelGrid toBase(kPlotWidth * kPlotHeight), toOther(kPlotWidth * kPlotHeight);
        const ColumnRows line = WalkLine(scene, isStepped), otherLine = WalkLine(other, false);
        for (int x = 0; x < kPlotWidth; ++x) {
            const ColumnRows::Rows &a = line.At(x), &b = otherLine.At(x);
            if (a.IsEmpty())
                continue;
            FillPlainly(toBase, x, std::min(a.top, BaseOf(scene)), std::max(a.bottom, BaseOf(scene)));
            if (!b.IsEmpty())
                FillPlainly(toOther, x, std::min(a.top, b.top), std::max(a.bottom, b.bottom));
        }
        ColumnRows rows(0, kPlotWidth), otherRows(0, kPlotWidth);
        CoverLine(scene.series, ColumnBorders(scene.xMap, 0, kPlotWidth), scene.yMap, isStepped, rows);
        CoverLine(other.series, ColumnBorders(other.xMap, 0, kPlotWidth), other.yMap, false, otherRows);
        ColumnRows between = rows;
        rows.ExtendTo(BaseOf(scene));
        between.ExtendTo(otherRows);
        ASSERT_EQ(Painted(rows), toBase) << "round " << round << ", " << scene.series.Size() << " points";
        ASSERT_EQ(Painted(between), toOther) << "round " << round;
    }
}

TEST(ChartAreas, InfiniteValuesFillToTheEdge) {
    ChartSeries series;
    for (const double y : {0.5, double(INFINITY), 0.5, -1e300, 0.5})
        series.Append(series.Size(), y);
    const LinearMap xMap(0, 4, 0, kPlotWidth - 1), yMap(0, 1, kPlotHeight - 1, 1 - kPlotHeight);
    ColumnRows rows(0, kPlotWidth);
    CoverLine(series, ColumnBorders(xMap, 0, kPlotWidth), yMap, false, rows);
    rows.ExtendTo(kPlotHeight / 2);
    const PixelGrid pixels = Painted(rows);
    for (int x = 1; x < kPlotWidth - 1; ++x) // above the baseline up to the middle, then below it
        EXPECT_EQ(
            pixels[static_cast<std::size_t>((x < kPlotWidth / 2 ? 0 : kPlotHeight - 1) * kPlotWidth + x)], 1)
            << x;
}

} // namespace
} // namespace kavlix
