// SPDX-License-Identifier: MIT
// Periods, their statistics, and the scale of whole numbers.

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include "monitor/recording/Periods.h"
#include "monitor/recording/WholeScale.h"

namespace kavlix::recording {
namespace {

TEST(Periods, BeginAtRoundTimesAndAreFew) {
    const struct {
        CivilTime first;
        CivilTime last;
        std::size_t count;
        const char* length;
        const char* firstLabel;
    } cases[] = {
        {{2024, 5, 1, 10, 7, 30, 0}, {2024, 5, 1, 10, 22, 0, 0}, 16, "minute", "10:07"},
        {{2024, 5, 1, 10, 7, 30, 0}, {2024, 5, 1, 10, 23, 0, 0}, 4, "5 minutes", "10:05"},
        {{2013, 12, 2, 21, 15, 0, 0}, {2014, 2, 19, 15, 25, 0, 0}, 12, "week", "12-02"},
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
}

TEST(Periods, StatisticsLeaveOutWhatIsMissingAndHoldTheLargestNumbers) {
    Recording recording;
    for (const int minute : {0, 20, 40, 60, 180, 200})
        recording.times.push_back(minute * kMicrosPerMinute);
    recording.series = {{"a", 0, {3, NAN, 1, -2, DBL_MAX, DBL_MAX}}};
    const Periods periods(recording.times);
    ASSERT_EQ(periods.LengthText(), "15 minutes");
    const PeriodStatistics found = StatisticsOf(recording, 0, periods);
    EXPECT_EQ(found.mean[0], 3);
    EXPECT_TRUE(std::isnan(found.mean[1]) && std::isnan(found.lowest[1]) && std::isnan(found.highest[1]));

    recording.times = {0, 1, 2, 3, 4, 5};
    recording.series[0].values = {3, NAN, 1, -2, 4, 4};
    const PeriodStatistics all = StatisticsOf(recording, 0, Periods(recording.times));
    EXPECT_DOUBLE_EQ(all.mean[0], 2);
    EXPECT_EQ(all.highest[0], 4);
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
                 {100, 5.2e7, true, " (x 10000)", 0, 6000, 1000},
                 {0.02, 0.074, true, " (x 0.0001)", 0, 800, 200},
                 {-3, 6, true, " (x 0.01)", -400, 600, 200},
                 {7, 7, false, " (x 0.01)", 700, 701, 1},
                 {0, 0, false, "", 0, 10, 2}};
    for (const auto& given : cases) {
        ValueSpan span;
        span.Take(given.min);
        span.Take(given.max);
        const WholeScale scale = ChooseWholeScale(span, given.fromZero);
        EXPECT_EQ(scale.UnitText(), given.unit);
        EXPECT_EQ(scale.min, given.low);
        EXPECT_EQ(scale.max, given.high);
        EXPECT_EQ(scale.step, given.step);
    }
}

} // namespace
} // namespace kavlix::recording
