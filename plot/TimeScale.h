// SPDX-License-Identifier: MIT
// The ticks of a time axis.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "plot/Calendar.h"
#include "plot/TimeStep.h"
#include "plot/ZoneOffsets.h"

namespace kavlix {

/// An instant: `second` counts from 1970-01-01 00:00 UTC, `nano` is 0 to 999,999,999.
struct TimePoint {
    std::int64_t second = 0;
    int nano = 0;

    bool operator<(const TimePoint& other) const {
        return second != other.second ? second < other.second : nano < other.nano;
    }
};

/// Converts between instants and the values of an axis: seconds after `origin`, which is in seconds since
/// 1970-01-01 00:00 UTC. Values near 0 are exact to a nanosecond, wherever the origin is. Instants are limited to
/// the years 1 to 9999.
class TimeOrigin {
public:
    explicit TimeOrigin(double origin);
    /// Rounded to a nanosecond; the origin for NaN.
    TimePoint Point(double value) const;
    double Value(const TimePoint& point) const {
        return static_cast<double>(point.second - m_second) + (point.nano * 1e-9 - m_fraction);
    }

private:
    std::int64_t m_second;
    double m_fraction; ///< of a second, 0 to below 1
};

/// A tick, and what its label shows.
struct TimeTick {
    double value = 0;    ///< seconds after the axis' origin
    CalendarStamp local; ///< by the local clock
    int nano = 0;        ///< nanoseconds of the second
    /// Whether the local clock shows this time for the second time, because it was set back.
    bool isRepeated = false;
    /// Whether the second row changes here. It shows the date; for days and months the year; for steps below a
    /// millisecond date and clock to the second. The first tick is compared with the start of the range.
    bool startsPeriod = false;
};

/// Widths of the widest labels, in pixels.
struct TimeLabelWidths {
    int label = 0;  ///< of the first row
    int period = 0; ///< of the second row
    int mark = 0;   ///< of what marks a repeated time, beside the clock
};

/// Ticks of the finest round step whose labels do not touch, at the round times of the local clock and calendar.
/// Where the clock is set back, the repeated times have two ticks. Where the clock is set forward, the missing
/// times have none. A day without a midnight has its tick at its first instant.
///
/// Two labels below a day can come closer than the step where the clock changes; who draws them leaves out the
/// label that does not fit.
class TimeScale {
public:
    /// Labels of a step.
    using Measure = std::function<TimeLabelWidths(const TimeStep& step)>;

    /// No ticks.
    TimeScale() = default;
    /// `min` < `max` are values of the axis. `length` is their distance in pixels, `gap` the least space between
    /// two labels; a gap below 1 counts as 1. `measure` is called for steps from fine to coarse.
    TimeScale(double min, double max, double origin, int length, int gap, const ZoneOffsets& zone,
              const Measure& measure);

    const TimeStep& Step() const { return m_step; }
    /// In ascending order, from `min` to `max`, inclusive.
    const std::vector<TimeTick>& Ticks() const { return m_ticks; }
    /// Values of ticks without labels between the others; none when they would stand closer than
    /// kMinorTickRoom pixels.
    const std::vector<double>& MinorTicks() const { return m_minorTicks; }
    /// The time at `min`.
    const CalendarStamp& Start() const { return m_start; }

    static constexpr int kMinorTickRoom = 6; ///< pixels

private:
    TimeStep m_step;
    std::vector<TimeTick> m_ticks;
    std::vector<double> m_minorTicks;
    CalendarStamp m_start;
};

} // namespace kavlix
