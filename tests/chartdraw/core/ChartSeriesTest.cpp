// SPDX-License-Identifier: MIT
// ChartSeries against a plain vector of points.
#include "chartdraw/core/ChartSeries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace kavlix {
namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();

/// A plain series: points in a vector, every answer by a walk.
struct PlainSeries {
    std::vector<ChartPoint> points;
    bool isSorted = true;
    std::int64_t dropped = 0;
    int countLimit = 0;
    double spanLimit = 0;

    void Drop(std::size_t count) {
        points.erase(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(count));
        dropped += static_cast<std::int64_t>(count);
    }
    void Limit() {
        if (countLimit > 0 && points.size() > static_cast<std::size_t>(countLimit))
            Drop(points.size() - static_cast<std::size_t>(countLimit));
        while (spanLimit > 0 && points.size() > 1 && points.front().x < points.back().x - spanLimit)
            Drop(1);
    }
    void Insert(double x, double y) {
        auto place = points.end();
        if (isSorted && x == x)
            place = std::find_if(points.begin(), points.end(), [=](auto& each) { return each.x > x; });
        isSorted = isSorted && x == x;
        points.insert(place, {x, y});
        Limit();
    }
    void Append(double x, double y) {
        isSorted = isSorted && x == x && (points.empty() || x >= points.back().x);
        points.push_back({x, y});
        Limit();
    }
    template <class Value> ValueBounds Bounds(Value value, bool positive, double from, double to) const {
        ValueBounds bounds;
        for (const ChartPoint& each : points)
            if (std::isfinite(each.x) && std::isfinite(each.y) && each.x >= from && each.x <= to &&
                (!positive || value(each) > 0))
                bounds.Add(value(each));
        return bounds;
    }
};

void ExpectSame(const ValueBounds& found, const ValueBounds& expected, const char* what) {
    EXPECT_EQ(found.min, expected.min) << what;
    EXPECT_EQ(found.max, expected.max) << what;
}

/// Compares all answers; some of them for a random range.
template <class Random> void Compare(const ChartSeries& series, const PlainSeries& plain, Random& random) {
    const int size = static_cast<int>(plain.points.size());
    ASSERT_EQ(series.Size(), size);
    EXPECT_EQ(series.IsSorted(), plain.isSorted);
    EXPECT_EQ(series.Dropped(), plain.dropped);
    for (int i = 0; i < size; ++i) {
        const ChartPoint at = plain.points[static_cast<std::size_t>(i)], own = series[i];
        ASSERT_TRUE(own.x == at.x || at.x != at.x) << i << ": " << own.x << " " << at.x;
        ASSERT_TRUE(own.y == at.y || (own.y != own.y && at.y != at.y)) << i << ": " << own.y << " " << at.y;
    }
    const auto x = [](const ChartPoint& at) { return at.x; };
    const auto y = [](const ChartPoint& at) { return at.y; };
    ExpectSame(series.XBounds(), plain.Bounds(x, false, -kNone, kNone), "x");
    ExpectSame(series.YBounds(), plain.Bounds(y, false, -kNone, kNone), "y");
    ExpectSame(series.PositiveXBounds(), plain.Bounds(x, true, -kNone, kNone), "x > 0");
    ExpectSame(series.PositiveYBounds(), plain.Bounds(y, true, -kNone, kNone), "y > 0");
    if (size == 0)
        return;
    const auto index = [&] { return static_cast<int>(random() % static_cast<unsigned>(size)); };
    double from = series[index()].x, to = series[index()].x;
    if (from > to)
        std::swap(from, to);
    for (const bool positive : {false, true})
        ExpectSame(series.YBoundsBetween(from, to, positive), plain.Bounds(y, positive, from, to), "between");
    const IndexRange between = series.IndicesBetween(from, to);
    IndexRange range{index(), index()};
    if (range.first > range.last)
        std::swap(range.first, range.last);
    SpanStatistics expected;
    double sum = 0;
    std::int64_t notPositive = 0;
    int nearest = -1;
    const double wanted = from + 0.3 * (to - from);
    for (int i = 0; i < size; ++i) {
        const ChartPoint& at = plain.points[static_cast<std::size_t>(i)];
        const double distance = std::abs(at.x - wanted);
        if (distance == distance && (nearest < 0 || distance < std::abs(series[nearest].x - wanted)))
            nearest = i;
        if (plain.isSorted && from == from && to == to) {
            EXPECT_EQ(i >= between.first && i <= between.last, at.x >= from && at.x <= to) << i;
        }
        if (i < range.first || i > range.last || std::isnan(at.y))
            continue;
        notPositive += at.y <= 0 ? 1 : 0;
        sum += at.y;
        expected.min = ++expected.count == 1 ? at.y : std::min(expected.min, at.y);
        expected.max = expected.count == 1 ? at.y : std::max(expected.max, at.y);
        expected.first = expected.count == 1 ? at.y : expected.first;
        expected.last = at.y;
    }
    EXPECT_EQ(series.NearestInX(wanted), wanted == wanted ? nearest : -1);
    EXPECT_EQ(series.CountNotPositive(range), notPositive);
    const SpanStatistics found = series.StatisticsOf(range);
    ASSERT_EQ(found.count, expected.count);
    if (expected.count == 0)
        return;
    EXPECT_EQ(found.min, expected.min);
    EXPECT_EQ(found.max, expected.max);
    EXPECT_EQ(found.first, expected.first);
    EXPECT_EQ(found.last, expected.last);
    if (std::isfinite(sum)) {
        EXPECT_NEAR(found.mean, sum / static_cast<double>(expected.count), 1e-9);
    }
}

} // namespace

TEST(ChartSeries, AnswersAsAPlainVectorDoes) {
    std::mt19937 random(3);
    const auto unit = [&] { return random() / 4294967296.0; };
    for (int round = 0; round < 24; ++round) {
        ChartSeries series;
        PlainSeries plain;
        const bool startsEven = round % 3 == 0;
        const bool staysSorted = round % 4 != 3;
        const double start = round % 2 == 0 ? 1.7e9 : -20, step = round % 5 == 0 ? 0.1 : 0.25;
        EXPECT_TRUE(series.SetEven(start, step));
        double x = start;
        for (int call = 0; call < 40; ++call) {
            const int many = static_cast<int>(std::pow(unit(), 3) * 12000);
            const auto value = [&] {
                const double y = std::round((unit() - 0.3) * 100) / 16;
                return unit() > 0.002 ? y : unit() < 0.5 ? std::nan("") : (unit() - 0.5) * kNone;
            };
            switch (random() % (staysSorted ? 8 : 9)) {
            case 0:
            case 1:
                for (int i = 0; i < many && startsEven; ++i) {
                    const double y = value();
                    x = start +
                        static_cast<double>(plain.dropped + static_cast<std::int64_t>(plain.points.size())) *
                            step;
                    if (!plain.points.empty() && plain.points.back().x > x)
                        break;
                    series.Append(x, y); // evenly, but told one by one
                    plain.Append(x, y);
                }
                break;
            case 2:
            case 3:
                for (int i = 0; i < many; ++i) {
                    const double y = value();
                    x += unit() < 0.1 ? 0 : std::round(unit() * 64) / 32;
                    series.Append(x, y);
                    plain.Append(x, y);
                }
                break;
            case 4:
                for (int i = 0; i < 20 && !plain.points.empty(); ++i) {
                    const double y = value();
                    const double late = std::round((x - unit() * (unit() < 0.5 ? 3 : 400)) * 8) / 8;
                    series.Insert(late, y);
                    plain.Insert(late, y);
                }
                break;
            case 5: {
                const int count = static_cast<int>(unit() * unit() * series.Size());
                series.RemoveHead(count);
                plain.Drop(static_cast<std::size_t>(count));
                break;
            }
            case 6: {
                const double y = value();
                EXPECT_EQ(series.ReplaceLast(y), !plain.points.empty());
                if (!plain.points.empty())
                    plain.points.back().y = y;
                break;
            }
            case 7:
                plain.countLimit = unit() < 0.5 ? 0 : static_cast<int>(unit() * 20000);
                plain.spanLimit = unit() < 0.5 ? 0 : unit() * 5000;
                series.SetLimit(plain.countLimit, plain.spanLimit);
                plain.Limit();
                break;
            default: {
                const double back = unit() < 0.2 ? std::nan("") : x - unit();
                series.Append(back, 1);
                plain.Append(back, 1);
                x = back == back ? back : x;
            }
            }
            Compare(series, plain, random);
            if (HasFatalFailure() || HasNonfatalFailure())
                FAIL() << "round " << round << ", call " << call;
        }
        series.Clear();
        EXPECT_TRUE(series.IsSorted() && series.Size() == 0 && series.Dropped() == 0);
    }
}

TEST(ChartSeries, EvenXIsComputed) {
    ChartSeries series;
    EXPECT_TRUE(series.SetEven(1.7e9, 0.001));
    series.SetLimit(5000, 0);
    for (int i = 0; i < 20000; ++i)
        series.AppendEven(i);
    EXPECT_FALSE(series.SetEven(0, 1));
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(series[i].x, 1.7e9 + (15000 + i) * 0.001);
    EXPECT_EQ(series.Insert(1.7e9 + 19.9985, -1), 4998) << "one more point, one less at the head";
    series.AppendEven(7);
    EXPECT_EQ(series[4999].x, 1.7e9 + 20000 * 0.001);
    series.SetLimit(0, 0);
    const double ys[] = {1, 2, 3};
    series.Assign(nullptr, ys, 3);
    series.AppendEven(4);
    EXPECT_EQ(series[3].x, 3) << "x of Assign without x is the index";
}

TEST(ChartSeries, LargeStepsAreGaps) {
    std::mt19937 random(8);
    ChartSeries series;
    std::vector<double> xs;
    series.SetGapFactor(3);
    EXPECT_EQ(series.GapLimit(), kNone);
    double x = 0;
    for (int i = 0; i < 20000; ++i) {
        x += random() % 97 == 0 ? 10 : i < 12000 ? 1 : 2;
        series.Append(x, 0);
        xs.push_back(x);
    }
    EXPECT_NEAR(series.GapLimit(), 3, 0.06);
    series.RemoveHead(6000);
    EXPECT_NEAR(series.GapLimit(), 6, 0.12) << "most steps are 2 now";
    series.Insert(xs[17000] - 0.5, 1);
    series.Insert(xs[17000] - 0.25, 1);
    series.SetGapLimit(4);
    EXPECT_EQ(series.GapLimit(), 4);
    int gaps = 0;
    for (int i = 0; i < series.Size(); ++i) {
        EXPECT_EQ(series.IsGapBefore(i), i > 0 && series[i].x - series[i - 1].x > 4) << i;
        gaps += series.IsGapBefore(i) ? 1 : 0;
    }
    EXPECT_GT(gaps, 100);
    series.SetGapLimit(0);
    series.SetGapFactor(0);
    EXPECT_EQ(series.GapLimit(), kNone);
    series.SetGapFactor(3);
    EXPECT_NEAR(series.GapLimit(), 6, 0.12) << "of the points that are there";
}

} // namespace kavlix
