// SPDX-License-Identifier: MIT
// Calendar arithmetic: days, dates and times of day in the proleptic Gregorian calendar.
#pragma once

#include <cstdint>

namespace kavlix {

constexpr std::int64_t kSecondsPerDay = 86400;

/// `value` / `divisor`, rounded down; `divisor` is positive.
constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) {
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

/// The smallest multiple of `step` that is not below `value`; `step` is positive.
constexpr std::int64_t CeilToMultiple(std::int64_t value, std::int64_t step) {
    return -FloorDivide(-value, step) * step;
}

/// A date and a time of day.
struct CalendarStamp {
    int year = 1970; ///< year 0 is the year before year 1
    int month = 1;   ///< 1 to 12
    int day = 1;     ///< 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool HasDateOf(const CalendarStamp& other) const {
        return year == other.year && month == other.month && day == other.day;
    }
};

/// Days in a month (1 to 12).
int DaysInMonth(int year, int month);
/// Days from 1970-01-01 to a date. The date must exist.
std::int64_t DaysFromDate(int year, int month, int day);
/// Day of the week of a day counted from 1970-01-01: 0 Sunday to 6 Saturday.
int WeekdayOf(std::int64_t days);

/// Seconds from 1970-01-01 00:00 to `stamp` in the same zone.
std::int64_t SecondsOf(const CalendarStamp& stamp);
/// The date and time `seconds` after 1970-01-01 00:00 in the same zone. The year must fit an int.
CalendarStamp StampOf(std::int64_t seconds);

} // namespace kavlix
