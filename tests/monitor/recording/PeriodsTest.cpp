// Periods, their statistics, and the scale of whole numbers.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "monitor/recording/Periods.h"
#include "monitor/recording/WholeScale.h"

namespace kavlix::recording {
namespace {

constexpr double kGap = NAN;
constexpr double kHuge = DBL_MAX;
constexpr double kTiny = DBL_TRUE_MIN;

TEST(Periods, BeginAtRoundTimesAndAreFew) {
    const struct {
        CivilTime first;
        CivilTime last;
        std::size_t count;
        const char* length;
        const char* firstLabel;
    } cases[] = {
        {{2024, 5, 1, 10, 0, 3, 0}, {2024, 5, 1, 10, 0, 3, 0}, 1, "5 seconds", "10:00:00"},
        {{2024, 5, 1, 10, 7, 30, 0}, {2024, 5, 1, 10, 22, 0, 0}, 16, "minute", "10:07"},
        {{2024, 5, 1, 10, 7, 30, 0}, {2024, 5, 1, 10, 23, 0, 0}, 4, "5 minutes", "10:05"},
        {{2014, 2, 14, 14, 27, 0, 0}, {2014, 2, 28, 14, 22, 0, 0}, 15, "day", "02-14"},
        {{2013, 12, 2, 21, 15, 0, 0}, {2014, 2, 19, 15, 25, 0, 0}, 12, "week", "12-02"},
        {{2024, 5, 1, 10, 0, 0, 0}, {2024, 5, 2, 13, 0, 0, 0}, 10, "3 hours", "05-01 09:00"},
        {{1969, 12, 31, 23, 0, 0, 0}, {1970, 1, 3, 1, 0, 0, 0}, 10, "6 hours", "12-31 18:00"},
        {{1900, 1, 1, 0, 0, 0, 0}, {2024, 1, 1, 0, 0, 0, 0}, 9, "768 weeks", "1896-06"},
    };
    for (const auto& given : cases) {
        const Periods periods({FromCivil(given.first), FromCivil(given.last)});
        EXPECT_EQ(periods.LengthText(), given.length);
        EXPECT_EQ(periods.Count(), given.count) << given.length;
        EXPECT_EQ(periods.Label(0), given.firstLabel);
        EXPECT_EQ(periods.Of(FromCivil(given.first)), 0u);
        EXPECT_EQ(periods.Of(FromCivil(given.last)), given.count - 1);
    }
    EXPECT_EQ(Periods({}).Count(), 1u);
}

TEST(Periods, StatisticsLeaveOutWhatIsMissingAndHoldTheLargestNumbers) {
    Recording recording;
    for (const int minute : {0, 20, 40, 60, 180, 200})
        recording.times.push_back(minute * kMicrosPerMinute);
    recording.series = {{"a", 0, {3, kGap, 1, -2, kHuge, kHuge}}};
    const Periods periods(recording.times);
    ASSERT_EQ(periods.LengthText(), "15 minutes");
    const PeriodStatistics found = StatisticsOf(recording, 0, periods);
    EXPECT_EQ(found.mean[0], 3);
    EXPECT_TRUE(std::isnan(found.mean[1]) && std::isnan(found.lowest[1]) && std::isnan(found.highest[1]));
    EXPECT_EQ(found.lowest[4], -2);

    recording.times = {0, 1, 2, 3, 4, 5};
    const PeriodStatistics all = StatisticsOf(recording, 0, Periods(recording.times));
    EXPECT_EQ(all.lowest[0], -2);
    EXPECT_EQ(all.highest[0], kHuge);
    EXPECT_TRUE(std::isfinite(all.mean[0]));
    recording.series[0].values = {3, kGap, 1, -2, 4, 4};
    EXPECT_DOUBLE_EQ(StatisticsOf(recording, 0, Periods(recording.times)).mean[0], 2);
    EXPECT_EQ(RankedValues(recording, 0, Periods(recording.times)).at(0),
              (std::vector<double>{-2, 1, 3, 4, 4}));

    Recording many;
    many.series = {{"b", 0, {}}};
    for (int i = 0; i < 2001; ++i) {
        many.times.push_back(i);
        many.series[0].values.push_back(2000 - i);
    }
    const std::vector<double> ranked = RankedValues(many, 0, Periods(many.times)).at(0);
    ASSERT_EQ(ranked.size(), kMostRanked);
    EXPECT_EQ(ranked.front(), 0);
    EXPECT_EQ(ranked[100], 500) << "the lower quartile is where it was";
    EXPECT_EQ(ranked.back(), 2000);
}

TEST(WholeScale, TakesAPowerOfTenThatKeepsValuesApart) {
    const struct {
        double min;
        double max;
        bool fromZero;
        const char* unit;
        int low;
        int high;
        int step;
    } cases[] = {{0, 174, true, "", 0, 200, 50},
                 {2, 74, false, " (x 0.1)", 0, 800, 200},
                 {0.02, 0.074, true, " (x 0.0001)", 0, 800, 200},
                 {-3, 6, true, " (x 0.01)", -400, 600, 200},
                 {1000, 1003, false, " (x 0.01)", 100000, 100300, 50},
                 {100, 5.2e7, true, " (x 10000)", 0, 6000, 1000},
                 {7, 7, false, " (x 0.01)", 700, 701, 1},
                 {0, 0, false, "", 0, 10, 2},
                 {-kHuge, kHuge, false, nullptr, 0, 0, 0},
                 {kTiny, kTiny, true, nullptr, 0, 0, 0},
                 {1e15, 1e15 + 1, false, nullptr, 0, 0, 0}};
    for (const auto& given : cases) {
        ValueSpan span;
        span.Take(given.min);
        span.Take(given.max);
        const WholeScale scale = ChooseWholeScale(span, given.fromZero);
        SCOPED_TRACE(given.max);
        EXPECT_LT(scale.min, scale.max);
        EXPECT_GT(scale.step, 0);
        EXPECT_LE((scale.max - scale.min) / scale.step, 20);
        EXPECT_LE(scale.min, scale.ToWhole(given.min));
        EXPECT_GE(scale.max, scale.ToWhole(given.max));
        if (given.unit == nullptr)
            continue;
        EXPECT_EQ(scale.UnitText(), given.unit);
        EXPECT_EQ(scale.min, given.low);
        EXPECT_EQ(scale.max, given.high);
        EXPECT_EQ(scale.step, given.step);
    }
    EXPECT_EQ(ChooseWholeScale({}, true).max, 10);
}

} // namespace
} // namespace kavlix::recording
