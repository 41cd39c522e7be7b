// SPDX-License-Identifier: MIT
// Reduced lines against plain walks over all points.
#include "chartdraw/core/ChartReduction.h"
#include "chartdraw/core/RasterPath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
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

void WalkAll(const ChartSeries& series, const LinearMap& xMap, const LinearMap& yMap, Canvas& canvas) {
    std::vector<Point> part;
    const auto flush = [&] {
        if (part.size() > 1)
            canvas.Draw(part.data(), static_cast<int>(part.size()));
        if (!part.empty() && std::all_of(part.begin(), part.end(), [&](Point at) { return at == part[0]; }))
            canvas.lone.Add(part[0]);
        part.clear();
    };
    for (int i = 0; i < series.Size(); ++i) {
        const auto x = xMap.Position(series[i].x);
        const auto y = yMap.Position(series[i].y);
        if (x && y)
            part.push_back({*x, *y});
        else
            flush();
    }
    flush();
}

void WalkReduced(const ChartSeries& series, const LinearMap& xMap, const LinearMap& yMap, Canvas& canvas) {
    ReducedPath path(kView, [&](const Point* points, int count) { canvas.Draw(points, count); });
    ChartLine line(path, canvas.lone);
    ChartReduction(series, xMap, yMap, kView, line).Run();
}

void WalkPainted(const ChartSeries& series, const LinearMap& xMap, const LinearMap& yMap, Canvas& canvas) {
    RasterPath path(canvas.raster, kInk);
    ChartLine line(path, canvas.lone);
    ChartReduction(series, xMap, yMap, kView, line).Run();
}

const LinearMap kWholeY(0, kHeight - 1, kHeight - 1, 1 - kHeight);

} // namespace

TEST(ChartReduction, DrawsWhatTheWholeLineDraws) {
    std::mt19937 random(5);
    const auto unit = [&] { return random() / 4294967296.0; };
    for (int round = 0; round < 3000; ++round) {
        const int count = 1 + static_cast<int>(std::pow(unit(), 3) * 9000);
        // From steep noise to long runs in one row, with x in order or back and forth.
        const double rows = std::pow(10, unit() * 2.5);
        const double step = std::pow(10, unit() * 4 - 3);
        const double gaps = round % 12 == 0 ? 0.4 : round % 4 == 0 ? 0.003 : 0;
        const bool backwards = round % 7 == 0;
        const bool isRandom = round % 5 == 0;
        const double xStep = 1.0 / count;
        ChartSeries series;
        double x = 0, y = unit();
        for (int i = 0; i < count; ++i) {
            x = isRandom ? unit() : x + (backwards ? (unit() - 0.5) * 0.05 : xStep * 2 * unit());
            y += unit() < step ? (unit() - 0.5) * 0.5 : 0;
            series.Append(x,
                          unit() < gaps ? (unit() < 0.5 ? NAN : unit() - 0.5) : std::round(y * rows) / rows);
        }
        const double xRange = round % 2 == 0 ? 1 : std::pow(10, -3 * unit());
        const double yRange = round % 3 == 0 ? 2 : std::pow(10, 0.5 - 2 * unit());
        const double xMin = (1 - xRange) * unit(), yMin = y - yRange * unit();
        const LinearMap xMap(xMin, xMin + xRange, 0, kWidth - 1);
        const LinearMap yMap(yMin, yMin + yRange, kHeight - 1, 1 - kHeight);
        Canvas reduced, painted, whole;
        WalkReduced(series, xMap, yMap, reduced);
        WalkPainted(series, xMap, yMap, painted);
        WalkAll(series, xMap, yMap, whole);
        for (Canvas* canvas : {&whole, &reduced, &painted}) {
            canvas->lone.Visit([&](Point at) { canvas->raster.Run(at.x, at.y, at.y, 2 * kInk); });
            ASSERT_EQ(canvas->pixels, whole.pixels) << "round " << round << ", " << count << " points";
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
        WalkReduced(series, LinearMap(view.min, view.max, 0, kWidth - 1), kWholeY, canvas);
        EXPECT_LE(canvas.handedOn, view.most) << view.name;
    }
}
