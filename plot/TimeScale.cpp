// SPDX-License-Identifier: MIT
// The choice of a time axis' step, and the ticks of a step.
#include "plot/TimeScale.h"

#include <algorithm>
#include <cmath>

namespace kavlix {
namespace {

constexpr std::int64_t kNanosPerSecond = 1000000000;
constexpr std::int64_t kFirstSecond = -62135596800; // 0001-01-01 00:00
constexpr std::int64_t kLastSecond = 253402300799;  // 9999-12-31 23:59:59

/// Calls `visit(point)` for the multiples of steps below a second.
template <class Visit>
void VisitFractions(const TimePoint& from, const TimePoint& to, std::int64_t step, Visit visit) {
    // A step divides a second, so multiples are counted from each full second.
    TimePoint point = {from.second, 0};
    std::int64_t nano = CeilToMultiple(from.nano, step);
    for (;; nano += step) {
        if (nano >= kNanosPerSecond) {
            nano = 0;
            ++point.second;
        }
        point.nano = static_cast<int>(nano);
        if (to < point)
            return;
        visit(point);
    }
}

/// Calls `visit(point)` for the multiples of steps of seconds to hours. While the offset stays the same, multiples
/// of the local clock are equally far apart. Hours that are skipped or repeated need no code of their own then.
template <class Visit>
void VisitClock(std::int64_t from, std::int64_t to, std::int64_t step, const ZoneOffsets& zone, Visit visit) {
    std::vector<OffsetChange> changes = zone.Changes(from, to);
    changes.push_back({to + 1, 0});
    int offset = zone.At(from);
    for (const OffsetChange& change : changes) {
        for (std::int64_t local = CeilToMultiple(from + offset, step); local - offset < change.time;
             local += step)
            visit(TimePoint{local - offset, 0});
        from = change.time;
        offset = change.offset;
    }
}

/// Calls `visit(point)` for the first instants of days and months. `local(i)` are the local seconds of tick `i`.
template <class Local, class Visit> void VisitDates(std::int64_t first, std::int64_t from, std::int64_t to,
                                                    const ZoneOffsets& zone, Local local, Visit visit) {
    std::int64_t time = zone.FirstInstant(local(first));
    for (std::int64_t i = first + 1; time <= to && time <= kLastSecond; ++i) {
        const std::int64_t next = zone.FirstInstant(local(i));
        // A day is empty where a country moved across the date line.
        if (time >= from && time < next)
            visit(TimePoint{time, 0});
        time = next;
    }
}

/// Calls `visit(point)` for every multiple of `step` from `from` to `to`, in ascending order.
template <class Visit> void VisitTicks(const TimeStep& step, const TimePoint& from, const TimePoint& to,
                                       const ZoneOffsets& zone, Visit visit) {
    const std::int64_t begin = from.second + (from.nano > 0 ? 1 : 0); // first full second
    const std::int64_t local = begin + zone.At(begin);
    switch (step.unit) {
    case TimeStep::Unit::Nanosecond:
        VisitFractions(from, to, step.count, visit);
        break;
    case TimeStep::Unit::Second:
        VisitClock(begin, to.second, step.count, zone, visit);
        break;
    case TimeStep::Unit::Day: {
        constexpr std::int64_t kMonday = 4; // 1970-01-05
        const std::int64_t base = step.count == 7 ? kMonday : 0;
        const std::int64_t day = FloorDivide(local, kSecondsPerDay) - 1;
        VisitDates(
            FloorDivide(day - base, step.count), begin, to.second, zone,
            [&](std::int64_t i) { return (base + i * step.count) * kSecondsPerDay; }, visit);
        break;
    }
    case TimeStep::Unit::Month: {
        const CalendarStamp stamp = StampOf(local - kSecondsPerDay);
        VisitDates(
            FloorDivide(std::int64_t{stamp.year} * 12 + stamp.month - 1, step.count), begin, to.second, zone,
            [&](std::int64_t i) {
                const std::int64_t month = i * step.count;
                const auto year = static_cast<int>(FloorDivide(month, 12));
                return DaysFromDate(year, static_cast<int>(month - std::int64_t{year} * 12) + 1, 1) *
                       kSecondsPerDay;
            },
            visit);
        break;
    }
    }
}

/// Whether two ticks of `step` belong to the same entry of the second row.
bool SharePeriod(const TimeStep& step, const CalendarStamp& a, const CalendarStamp& b) {
    if (step.IsBelowMillisecond())
        return SecondsOf(a) == SecondsOf(b);
    return step.IsYears() || (step.IsBelowDay() ? a.HasDateOf(b) : a.year == b.year);
}

/// Least distance of two neighbouring entries of the second row, seconds.
double PeriodSeconds(const TimeStep& step) {
    constexpr double kDay = 86400;
    return step.IsBelowMillisecond() ? 1 : step.IsBelowDay() ? kDay : 365 * kDay;
}

/// Whether the clock is set back in a time that can have labels below a day.
bool IsSetBack(const ZoneOffsets& zone, std::int64_t from, std::int64_t to) {
    constexpr std::int64_t kYear = 366 * kSecondsPerDay;
    if (to - from > kYear)
        return false;
    int offset = zone.At(from);
    for (const OffsetChange& change : zone.Changes(from, to)) {
        if (change.offset < offset)
            return true;
        offset = change.offset;
    }
    return false;
}

} // namespace

TimeOrigin::TimeOrigin(double origin) {
    const double limited =
        std::clamp(origin, static_cast<double>(kFirstSecond), static_cast<double>(kLastSecond));
    const double whole = std::isnan(origin) ? 0 : std::floor(limited);
    m_second = static_cast<std::int64_t>(whole);
    m_fraction = std::isnan(origin) ? 0 : limited - whole;
}

TimePoint TimeOrigin::Point(double value) const {
    if (std::isnan(value))
        value = 0;
    const double limited = std::clamp(value, static_cast<double>(kFirstSecond - m_second),
                                      static_cast<double>(kLastSecond - m_second));
    const double whole = std::floor(limited);
    const double nanos = std::round((limited - whole + m_fraction) * kNanosPerSecond);
    const auto count = static_cast<std::int64_t>(nanos);
    return {m_second + static_cast<std::int64_t>(whole) + count / kNanosPerSecond,
            static_cast<int>(count % kNanosPerSecond)};
}

TimeScale::TimeScale(double min, double max, double origin, int length, int gap, const ZoneOffsets& zone,
                     const Measure& measure) {
    const TimeOrigin base(origin);
    const TimePoint from = base.Point(min);
    const TimePoint to = base.Point(max);
    m_start = zone.ToLocal(from.second);
    if (!(min < max) || length <= 0)
        return;
    const double pixels = length / (max - min); // per second
    gap = std::max(gap, 1);

    const bool mayRepeat = IsSetBack(zone, from.second - kSecondsPerDay, to.second);
    const auto fits = [&](const TimeStep& step) {
        const double distance = step.ShortestSeconds() * pixels;
        if (distance <= gap)
            return false;
        const TimeLabelWidths widths = measure(step);
        const int label = widths.label + (mayRepeat && step.IsBelowDay() ? widths.mark : 0);
        return distance >= label + gap &&
               (step.IsYears() || PeriodSeconds(step) * pixels >= widths.period + gap);
    };
    const std::vector<TimeStep>& steps = RoundTimeSteps();
    const auto chosen = std::find_if(steps.begin(), steps.end(), fits);
    if (chosen == steps.end())
        return;
    m_step = *chosen;
    CalendarStamp before = m_start;
    VisitTicks(
        m_step, from, to, zone,
        [&](const TimePoint& point) {
            const std::int64_t local = point.second + zone.At(point.second);
            TimeTick tick{base.Value(point), StampOf(local), point.nano};
            tick.isRepeated = mayRepeat && m_step.IsBelowDay() && zone.IsRepeated(point.second);
            tick.startsPeriod = !SharePeriod(m_step, before, tick.local);
            before = tick.local;
            m_ticks.push_back(tick);
        });

    const auto minor = std::find_if(steps.begin(), chosen, [&](const TimeStep& step) {
        return step.ShortestSeconds() * pixels >= kMinorTickRoom && m_step.IsMultipleOf(step);
    });
    if (minor != chosen)
        VisitTicks(*minor, from, to, zone,
                   [&](const TimePoint& point) { m_minorTicks.push_back(base.Value(point)); });
    auto label = m_ticks.begin();
    const auto hasLabel = [&](double value) {
        while (label != m_ticks.end() && label->value < value)
            ++label;
        return label != m_ticks.end() && label->value == value;
    };
    m_minorTicks.erase(std::remove_if(m_minorTicks.begin(), m_minorTicks.end(), hasLabel),
                       m_minorTicks.end());
}

} // namespace kavlix
