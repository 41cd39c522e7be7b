// SPDX-License-Identifier: MIT
// Reduced lines against plain walks over all points.
#include "chartdraw/core/ChartReduction.h"
#include "chartdraw/core/RasterPath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

using namespace kavlix;

namespace {

constexpr int kWidth = 60;
constexpr int kHeight = 40;
constexpr std::uint32_t kInk = 1;
const Rect kFrame{0, 0, kWidth, kHeight};
const Rect kView{-2, -2, kWidth + 2, kHeight + 2}; // a thin pen reaches 2 pixels into the frame from outside

/// A picture in which strokes leave out their last pixel, as GDI does.
struct Canvas {
    std::vector<std::uint32_t> pixels = std::vector<std::uint32_t>(kWidth * kHeight);
    PixelRaster raster{pixels.data(), kWidth, kFrame};
    PixelSet lone{kFrame};
    int handedOn = 0;

    void Draw(const Point* points, int count) {
        for (int i = 1; i < count; ++i)
            raster.Stroke(points[i - 1], points[i], kInk);
        handedOn += count;
    }
};

void WalkAll(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, ChartLine::Mode mode,
             Canvas& canvas) {
    std::vector<Point> part;
    const auto flush = [&] {
        if (part.size() > 1)
            canvas.Draw(part.data(), static_cast<int>(part.size()));
        if (!part.empty() && std::all_of(part.begin(), part.end(), [&](Point at) { return at == part[0]; }))
            canvas.lone.Add(part[0]);
        part.clear();
    };
    for (int i = 0; i < series.Size(); ++i) {
        if (series.IsGapBefore(i))
            flush();
        const auto x = xMap.Position(series[i].x);
        const auto y = yMap.Position(series[i].y);
        if (x && y && mode == ChartLine::Steps && !part.empty())
            part.push_back({*x, part.back().y});
        if (x && y)
            part.push_back({*x, *y});
        else
            flush();
    }
    flush();
}

void WalkReduced(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, ChartLine::Mode mode,
                 Canvas& canvas) {
    ReducedPath path(kView, [&](const Point* points, int count) { canvas.Draw(points, count); });
    ChartLine line(path, canvas.lone, mode);
    Reduce(series, ColumnBorders(xMap, kView.left, kView.right), yMap, kView, line);
}

void WalkPainted(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, ChartLine::Mode mode,
                 Canvas& canvas) {
    RasterPath path(canvas.raster, kInk);
    ChartLine line(path, canvas.lone, mode);
    Reduce(series, ColumnBorders(xMap, kView.left, kView.right), yMap, kView, line);
}

/// The place of the first pixel that differs, and its two values.
std::string FirstDifference(const Canvas& a, const Canvas& b) {
    const auto [own, other] = std::mismatch(a.pixels.begin(), a.pixels.end(), b.pixels.begin());
    if (own == a.pixels.end())
        return "";
    const auto place = own - a.pixels.begin();
    return std::to_string(place % kWidth) + "," + std::to_string(place / kWidth) + ": " +
           std::to_string(*own) + " for " + std::to_string(*other);
}

/// As WalkAll, for points so far away that their strokes must be cut.
void WalkFar(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, ChartLine::Mode mode,
             Canvas& canvas) {
    ReducedPath path(kView, [&](const Point* points, int count) { canvas.Draw(points, count); });
    ChartLine line(path, canvas.lone, mode);
    for (int i = 0; i < series.Size(); ++i) {
        if (series.IsGapBefore(i))
            line.End();
        line.Add(xMap.ExactPosition(series[i].x), yMap.ExactPosition(series[i].y));
    }
    line.End();
}

const LinearMap kWholeY(0, kHeight - 1, kHeight - 1, 1 - kHeight);

} // namespace

TEST(ChartReduction, DrawsWhatTheWholeLineDraws) {
    std::mt19937 random(5);
    const auto unit = [&] { return random() / 4294967296.0; };
    const auto oneIn = [&](int rounds) { return random() % static_cast<unsigned>(rounds) == 0; };
    for (int round = 0; round < 4000; ++round) {
        const int count = 1 + static_cast<int>(std::pow(unit(), 3) * (round % 100 == 0 ? 60000 : 9000));
        // From steep noise to long runs in one row, with x even, in order, or back and forth.
        const double rows = std::pow(10, unit() * 2.5);
        const double step = std::pow(10, unit() * 4 - 3);
        const double gaps = oneIn(12) ? 0.4 : oneIn(4) ? 0.003 : 0;
        const double far = oneIn(6) ? 0.01 : 0;
        const bool backwards = oneIn(7), isRandom = oneIn(5), isEven = oneIn(3);
        const bool isLogX = oneIn(5), isLogY = oneIn(5);
        const double xStep = 1.0 / count;
        const auto xOf = [&](double x) { return isLogX ? std::pow(10, 3 * x) - 1.5 : x; };
        const auto yOf = [&](double y) { return isLogY ? std::pow(10, y) : y; };
        ChartSeries series;
        series.SetEven(isLogX ? -0.2 : 0.1, xStep);
        if (oneIn(4))
            series.SetGapLimit(xStep * (oneIn(2) ? 1.9 : 1.9999) * (isLogX ? 1000 : 1));
        double x = 0, y = unit();
        for (int i = 0; i < count; ++i) {
            x = isRandom ? unit() : x + (backwards ? (unit() - 0.5) * 0.05 : xStep * 2 * unit());
            y += unit() < step ? (unit() - 0.5) * 0.5 : 0;
            double value = yOf(std::round(y * rows) / rows);
            if (unit() < gaps)
                value = unit() < 0.5 ? NAN : unit() - 0.5;
            else if (unit() < far)
                value = (unit() < 0.5 ? 1 : -1) * (unit() < 0.1 ? INFINITY : std::pow(10, 20 * unit()));
            if (isEven)
                series.AppendEven(value);
            else
                series.Append(xOf(x), value);
        }
        const double xRange = oneIn(2) ? 1 : std::pow(10, -3 * unit());
        const double yRange = oneIn(3) ? 2 : std::pow(10, 0.5 - 2 * unit());
        const double xMin = (1 - xRange) * unit(), yMin = y - yRange * unit();
        double left = isEven || !isLogX ? xMin : std::pow(10, 3 * xMin);
        double right = isEven || !isLogX ? xMin + xRange : std::pow(10, 3 * (xMin + xRange));
        if (isLogX && isEven)
            left = std::max(left, right / 1000);
        double low = yOf(yMin), high = yOf(yMin + yRange);
        if (oneIn(4))
            std::swap(left, right);
        if (oneIn(4))
            std::swap(low, high);
        const AxisMap xMap(isLogX, left, right, oneIn(4) ? -3 : 0, kWidth - 1);
        const AxisMap yMap(isLogY, low, high, kHeight - 1, 1 - kHeight);
        Canvas reduced, painted, whole;
        const ChartLine::Mode mode = oneIn(3) ? ChartLine::Steps : ChartLine::Straight;
        WalkReduced(series, xMap, yMap, mode, reduced);
        WalkPainted(series, xMap, yMap, mode, painted);
        (far > 0 ? WalkFar : WalkAll)(series, xMap, yMap, mode, whole);
        for (Canvas* canvas : {&whole, &reduced, &painted}) {
            canvas->lone.Visit([&](Point at) { canvas->raster.Run(at.x, at.y, at.y, 2 * kInk); });
            ASSERT_EQ(FirstDifference(*canvas, whole), "")
                << "round " << round << ", " << count << " points, sorted " << series.IsSorted() << isEven
                << isLogX << isLogY << mode << " far " << far << " gaps " << gaps << " limit "
                << series.GapLimit();
        }
    }
}

TEST(ChartReduction, HandsOnWhatThePixelsTake) {
    std::mt19937 random(9);
    ChartSeries series;
    constexpr int count = 300000;
    for (int i = 0; i < count; ++i)
        series.Append(i, random() % kHeight);
    const struct {
        const char* name;
        double min, max;
        int most;
    } views[] = {{"all", 0, count, 6 * kWidth}, {"inside", 150000, 150100, 200}, {"behind", 4e5, 5e5, 20}};
    for (const auto& view : views) {
        Canvas canvas;
        WalkReduced(series, LinearMap(view.min, view.max, 0, kWidth - 1), kWholeY, ChartLine::Straight,
                    canvas);
        EXPECT_LE(canvas.handedOn, view.most) << view.name;
    }
}
