// SPDX-License-Identifier: MIT
// The round steps of a time axis.
#pragma once

#include <cstdint>
#include <vector>

namespace kavlix {

/// A round duration. Its multiples are counted on the local clock and calendar: below a day from midnight, every
/// second day from 1970-01-01, weeks from Monday, months and years from January of year 0.
struct TimeStep {
    enum class Unit { Nanosecond, Second, Day, Month };
    Unit unit = Unit::Second;
    std::int64_t count = 1; ///< of the unit: below 1 s nanoseconds, below 1 day seconds, below 1 month days

    /// Seconds of the shortest such step: February for a month.
    double ShortestSeconds() const;
    /// Whether every multiple of this step is a multiple of `finer`, too.
    bool IsMultipleOf(const TimeStep& finer) const;
    bool IsBelowDay() const { return unit == Unit::Nanosecond || unit == Unit::Second; }
    /// Steps too fine for labels with the whole clock time: seconds stand in the first row, the clock in the second.
    bool IsBelowMillisecond() const { return unit == Unit::Nanosecond && count < 1000000; }
    bool IsYears() const { return unit == Unit::Month && count % 12 == 0; }
    /// Digits of the fraction of a second that tell neighbouring multiples apart: 0 to 9.
    int FractionDigits() const;
};

/// All steps from 1 ns to 5000 years, ascending: 1, 2, 5 times a power of ten below a second; 1, 5, 15, 30
/// seconds and minutes; 1, 3, 6, 12 hours; a day, two days, a week, a month, a quarter; 1, 2, 5 times a power of ten
/// years.
const std::vector<TimeStep>& RoundTimeSteps();

} // namespace kavlix
