// SPDX-License-Identifier: MIT
// The search for the nearest sample against a walk over all samples.
#include "chartdraw/core/NearestSample.h"

#include <gtest/gtest.h>

#include <random>

#include "chartdraw/core/ChartSeries.h"
#include "plot/AxisMap.h"

namespace kavlix {
namespace {

/// Counts the points that are read.
class CountedSeries : public ChartSeries {
public:
    ChartPoint operator[](int i) const {
        ++reads;
        return ChartSeries::operator[](i);
    }
    mutable int reads = 0;
};

TEST(NearestSampleTest, IsThatOfAWalkAndReadsFewPoints) {
    std::mt19937 random(11);
    const auto uniform = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    std::int64_t reads = 0, points = 0;
    for (int round = 0; round < 250; ++round) {
        CountedSeries series;
        const int kind = round % 5; // 0 to 2 sorted
        const int count = round % 4 == 0 ? static_cast<int>(uniform(0, 40)) : 3000;
        double x = uniform(-50, 50), y = 0;
        for (int i = 0; i < count; ++i) {
            x = kind < 3    ? x + std::floor(uniform(0, 3))
                : kind == 3 ? uniform(-500, 500)
                            : x + uniform(-5, 5.5);
            y = kind == 1 ? uniform(-100, 100) : y + uniform(-3, 3);
            const bool isGap = uniform(0, 1) < (kind < 3 ? 0.05 : 0.0005);
            series.Append(x, isGap ? (i % 3 == 0 ? HUGE_VAL : std::nan("")) : y);
        }
        const bool logX = uniform(0, 1) < 0.2, logY = uniform(0, 1) < 0.3;
        const double low = logX ? 0.5 : uniform(-100, 100);
        const AxisMap xMap(logX, low, low + uniform(1, 2000), 40, 600);
        const AxisMap yMap(logY, logY ? 0.1 : -100, 120, 400, round % 2 == 0 ? -300 : 300);
        const double px = uniform(0, 700), py = uniform(50, 750);
        const auto along = [&](double each) { return xMap.ExactPosition(each) - px; };
        const auto across = [&](double each) { return yMap.ExactPosition(each) - py; };

        NearestSample expected, expectedInX;
        for (int i = 0; i < count; ++i) {
            const ChartPoint point = series[i];
            if (!std::isfinite(point.x) || !std::isfinite(point.y))
                continue;
            const double dx = along(point.x), dy = across(point.y), inX = point.x - low;
            if (dx * dx + dy * dy < expected.distance)
                expected = {i, dx * dx + dy * dy};
            if (inX * inX < expectedInX.distance)
                expectedInX = {i, inX * inX};
        }
        series.reads = 0;
        const NearestSample found = FindNearestSample(series, xMap.Value(px), along, across, logY);
        SCOPED_TRACE(testing::Message() << "round " << round);
        EXPECT_EQ(found.index, expected.index);
        EXPECT_EQ(found.distance, expected.distance);
        if (kind != 1) { // for values like noise more points have to be read
            reads += series.reads;
            points += count;
        }
        EXPECT_EQ(FindNearestInX(series, low).index, expectedInX.index);
    }
    EXPECT_LT(reads, points / 4);
}

} // namespace
} // namespace kavlix
