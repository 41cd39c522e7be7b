// SPDX-License-Identifier: MIT
// Local times and their texts.
#pragma once

#include <cstdint>
#include <string>

namespace kavlix {

/// A date and a time of day.
struct CalendarTime {
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Converts seconds since 1970-01-01 00:00 UTC to local time.
class LocalClock {
public:
    virtual ~LocalClock() = default;
    virtual CalendarTime ToLocal(std::int64_t time) const = 0;
};

/// The full time text, "YYYY/MM/DD hh:mm:ss".
std::string FullTimeText(const CalendarTime& time);
inline constexpr int kDateLength = 10; ///< characters of "YYYY/MM/DD" in a full time text
inline constexpr int kClockLength = 8; ///< characters of "hh:mm:ss" in a full time text
inline constexpr int kMonthAt = 5;     ///< index of "MM/DD" in a full time text

} // namespace kavlix
