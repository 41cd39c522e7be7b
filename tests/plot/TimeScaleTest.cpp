// SPDX-License-Identifier: MIT
// Ticks of time axes against a walk along the local clock, and their properties in ranges from 10 us to 300 years.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>
#include <string>

#include "plot/LabelRow.h"
#include "plot/TimeScale.h"
#include "tests/plot/Zones.h"
#include "tests/support/Numbers.h"

namespace kavlix {
namespace {

using namespace kavlix::zones;

constexpr double kYear = 365.2425 * 86400;

TimeLabelWidths Widths(const TimeStep& step) {
    const int digits = step.FractionDigits();
    return {step.IsBelowDay() ? 30 + (digits > 0 ? 20 + 6 * digits : 0) : 35, 70, 8};
}

/// The multiple of a step of days or months that `local` (seconds) lies in, counted from any multiple.
std::int64_t PeriodOf(const TimeStep& step, std::int64_t local) {
    const CalendarStamp stamp = StampOf(local);
    if (step.unit == TimeStep::Unit::Month)
        return FloorDivide(std::int64_t{stamp.year} * 12 + stamp.month - 1, step.count);
    std::int64_t day = FloorDivide(local, kSecondsPerDay);
    while (step.count == 7 ? WeekdayOf(day) != 1 : day % step.count != 0)
        --day;
    return day;
}

std::string Text(std::int64_t time, bool isRepeated, bool startsPeriod) {
    return std::to_string(time) + (isRepeated ? " repeated" : "") + (startsPeriod ? " period" : "");
}

/// The ticks of `step` from `from` to `to`, found by a walk from minute to minute.
std::vector<std::string> WalkedTicks(const TimeStep& step, std::int64_t from, std::int64_t to,
                                     const ZoneOffsets& zone) {
    std::vector<std::string> ticks;
    std::set<std::int64_t> seen; // local times, or periods
    const bool isClock = step.IsBelowDay();
    const std::int64_t pace = isClock ? 60 : 900;
    std::int64_t begin = FloorDivide(from - 2 * kSecondsPerDay, 900) * 900;
    std::int64_t period = 0; // day or year of the tick before
    const auto shown = [&](std::int64_t local) {
        return isClock ? FloorDivide(local, kSecondsPerDay) : StampOf(local).year;
    };
    for (std::int64_t time = begin; time <= to; time += pace) {
        const std::int64_t local = time + zone.At(time);
        const bool isNew = seen.insert(isClock ? local : PeriodOf(step, local)).second;
        if (time <= from)
            period = shown(from + zone.At(from));
        if (time < from || time == begin || (isClock ? local % step.count != 0 : !isNew))
            continue;
        ticks.push_back(Text(time, !isNew, !step.IsYears() && shown(local) != period));
        period = shown(local);
    }
    return ticks;
}

TEST(TimeScaleTest, TicksStandWhereAWalkAlongTheLocalClockFindsThem) {
    const ZoneOffsets zones[] = {Berlin(), NewYork(), LordHowe(), SaoPaulo(), Samoa(), ZoneOffsets()};
    testkit::Numbers random(7);
    std::set<std::int64_t> steps;
    int repeated = 0;
    for (int round = 0; round < 200; ++round) {
        const ZoneOffsets& zone = zones[random.Below(6)];
        // Half of the ranges hold a change of the clock.
        const std::int64_t day = DaysFromDate(2011, 1, 1) + random.Below(400);
        std::int64_t from = day * kSecondsPerDay + random.Below(kSecondsPerDay);
        const bool isLong = round % 10 == 0;
        const std::int64_t range = isLong
                                       ? random.Below(1200) * kSecondsPerDay + 40 * kSecondsPerDay
                                       : 7200 + random.Below(random.OneIn(4) ? 12 * kSecondsPerDay : 50000);
        const auto changes = zone.Changes(from, from + 366 * kSecondsPerDay);
        if (!isLong && !changes.empty() && random.OneIn(2))
            from = changes[0].time + (random.OneIn(4) ? random.Below(kHour / 2)
                                                      : -static_cast<std::int64_t>(random.Next() % range));
        const double origin = static_cast<double>(from - random.Below(1000));
        const TimeScale scale(static_cast<double>(from) - origin, static_cast<double>(from + range) - origin,
                              origin, 150 + random.Below(900), 6, zone, Widths);
        if (scale.Step().unit == TimeStep::Unit::Second && scale.Step().count < 60)
            continue;
        std::vector<std::string> ticks;
        for (const TimeTick& tick : scale.Ticks()) {
            const auto time = static_cast<std::int64_t>(tick.value + origin);
            ASSERT_EQ(SecondsOf(tick.local), time + zone.At(time));
            ticks.push_back(Text(time, tick.isRepeated, tick.startsPeriod));
            repeated += tick.isRepeated;
        }
        steps.insert(scale.Step().count + static_cast<int>(scale.Step().unit) * 100000);
        ASSERT_EQ(ticks, WalkedTicks(scale.Step(), from, from + range, zone))
            << "round " << round << ", unit " << static_cast<int>(scale.Step().unit) << ", "
            << scale.Step().count;
    }
    EXPECT_GE(steps.size(), 10u) << "kinds of steps";
    EXPECT_GE(repeated, 20);
}

TEST(TimeScaleTest, AnyRangeHasRoundTicksWithRoomForTheirLabels) {
    const ZoneOffsets zone = Berlin();
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> exponent(-5, std::log10(300 * kYear)),
        start(-130 * kYear, 110 * kYear);
    constexpr int kGap = 6;
    for (int round = 0; round < 2000; ++round) {
        const double range = std::pow(10.0, exponent(random)) * 1.0001;
        const double origin = start(random);
        const double min = round % 2 == 0 ? 0 : -range * 0.7;
        const int length = 40 + static_cast<int>(random() % 1200);
        SCOPED_TRACE(::testing::Message() << "round " << round << ": " << range << " s from " << origin);
        const TimeScale scale(min, min + range, origin, length, kGap, zone, Widths);
        const TimeLabelWidths widths = Widths(scale.Step());
        LabelRow row(-1000, length + 1000, 0);
        const double slack = 1e-3 + 1e-9 * length / range; // ticks are exact to a nanosecond
        const TimeTick* before = nullptr;
        for (const TimeTick& tick : scale.Ticks()) {
            const double at = (tick.value - min) * length / range;
            ASSERT_TRUE(at >= -slack && at <= length + slack);
            const bool isAlone = row.Take(static_cast<int>(at) - widths.label / 2, widths.label);
            // Where the clock goes back, the label that follows can come too close.
            ASSERT_TRUE(isAlone || (before && before->local.month > 8 && scale.Step().count >= 3 * 3600));
            switch (scale.Step().unit) {
            case TimeStep::Unit::Nanosecond:
                ASSERT_EQ(tick.nano % scale.Step().count, 0);
                break;
            case TimeStep::Unit::Second:
                ASSERT_EQ(SecondsOf(tick.local) % scale.Step().count + tick.nano, 0);
                break;
            default:
                ASSERT_EQ(tick.local.hour * 3600 + tick.local.minute * 60 + tick.local.second + tick.nano, 0);
            }
            if (before != nullptr) {
                ASSERT_LT(before->value, tick.value);
                if (scale.Step().unit == TimeStep::Unit::Nanosecond) {
                    ASSERT_NEAR(tick.value - before->value, scale.Step().ShortestSeconds(), range * 1e-6);
                }
            }
            before = &tick;
        }
        // A step is at most five times as long as the next finer one.
        if (length >= 11 * (widths.period + 10 + kGap)) {
            ASSERT_GE(scale.Ticks().size(), 2u);
        }
        for (std::size_t i = 1; i < scale.MinorTicks().size(); ++i)
            ASSERT_LT(scale.MinorTicks()[i - 1], scale.MinorTicks()[i]);
    }
}

TEST(TimeScaleTest, ViewsOfMicrosecondsAreExactNearTheOrigin) {
    const double origin = 1795305600.123456; // 2026
    const TimeScale scale(-2e-6, 8e-6, origin, 1000, 6, ZoneOffsets(), Widths);
    ASSERT_EQ(scale.Ticks().size(), 10u);
    EXPECT_EQ(scale.Ticks()[0].nano % 1000, 0);
    const double fraction = origin - std::floor(origin);
    for (const TimeTick& tick : scale.Ticks())
        EXPECT_NEAR(tick.value, tick.nano * 1e-9 - fraction, 1e-15);
}

TEST(TimeScaleTest, RangesBeyondTheCalendarGiveNoTicks) {
    for (const double range : {1e-12, 1e12, 1e300, HUGE_VAL, std::nan("")})
        for (const double origin : {0.0, -1e300, 1e17, std::nan("")}) {
            const TimeScale scale(0, range, origin, 800, 0, Berlin(), [](const TimeStep&) {
                return TimeLabelWidths{40, 60, 0};
            });
            EXPECT_LE(scale.Ticks().size(), 20u);
        }
}

} // namespace
} // namespace kavlix
