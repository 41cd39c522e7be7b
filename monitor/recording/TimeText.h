// SPDX-License-Identifier: MIT
// Times: the calendar, times as text, and text as times.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kavlix::recording {

/// A moment: microseconds since 1970-01-01 00:00:00. A time written without a time zone is taken as it
/// stands, without conversion from or to the machine's zone. A time with a zone is converted to UTC.
using Time = std::int64_t;

inline constexpr Time kMicrosPerSecond = 1'000'000;
inline constexpr Time kMicrosPerMinute = 60 * kMicrosPerSecond;
inline constexpr Time kMicrosPerHour = 60 * kMicrosPerMinute;
inline constexpr Time kMicrosPerDay = 24 * kMicrosPerHour;

/// The first and the last moment that can be read and written: years 1 to 9999.
inline constexpr Time kFirstTime = -62'135'596'800 * kMicrosPerSecond;
inline constexpr Time kLastTime = 253'402'300'800 * kMicrosPerSecond - 1;

/// The latest multiple of `unit` that is not after `time`, also before 1970.
inline Time FloorTo(Time time, Time unit) {
    const Time rest = time % unit;
    return time - (rest < 0 ? rest + unit : rest);
}

/// A moment by the calendar (proleptic Gregorian).
struct CivilTime {
    int year = 1970;
    int month = 1;  ///< 1 to 12
    int day = 1;    ///< 1 to 31
    int hour = 0;   ///< 0 to 23
    int minute = 0; ///< 0 to 59
    int second = 0; ///< 0 to 59
    int micros = 0; ///< 0 to 999,999
};

/// Days in the given month (1 to 12) of the given year, leap years counted.
int DaysInMonth(int year, int month);

/// Turns a calendar time into a moment. The fields must be within their ranges.
Time FromCivil(const CivilTime& civil);

/// Turns a moment into a calendar time. A moment outside kFirstTime to kLastTime is cut to that range.
CivilTime ToCivil(Time time);

/// What ParseTime read.
struct ParsedTime {
    Time time = 0;
    bool zoned = false; ///< the text names a time zone (`Z` or an offset)
};

/// Reads a time in one of these forms: `YYYY-MM-DD HH:MM[:SS[.fraction]]`; the same with `T` between date and
/// time of day; a date, which means its midnight; seconds since 1970, whole or decimal, also negative or with
/// an exponent. A time of day may be followed by a zone: `Z`, `+HH:MM`, `-HHMM` or `+HH`. Blanks around the
/// text are ignored. Second 60 (a leap second) is read as the next second. Digits beyond microseconds are
/// dropped, except that seconds with an exponent or a plus sign are rounded to microseconds. Returns false,
/// and leaves `result` unchanged, when the text has another form or lies outside years 1 to 9999.
bool ParseTime(std::string_view text, ParsedTime& result);

/// What ParseTime expects, in words for a message.
inline constexpr const char* kTimeExpectation =
    "a time (YYYY-MM-DD HH:MM:SS, ISO 8601 or seconds since 1970)";

/// How much of a time is written.
enum class TimePrecision {
    Minutes, ///< 2013-12-02 21:15
    Seconds, ///< 2013-12-02 21:15:00
    Millis,  ///< 2013-12-02 21:15:00.250
    Micros   ///< 2013-12-02 21:15:00.250125
};

/// `YYYY-MM-DD`.
std::string FormatDate(Time time);

/// Time of day: `HH:MM`, `HH:MM:SS` or with a fraction. Digits beyond the precision are dropped, not rounded.
std::string FormatClock(Time time, TimePrecision precision);

/// Date and time of day with one blank between.
std::string FormatDateTime(Time time, TimePrecision precision);

/// Date and time of day to the second, or to the millisecond or microsecond if the moment needs more digits.
/// ParseTime reads the text as the same moment.
std::string FormatExact(Time time);

/// A length of time in its largest unit and, unless 0, the next smaller one: `5 min`, `2 d 3 h`, `250 ms`.
/// The sign is dropped.
std::string FormatDuration(Time duration);

} // namespace kavlix::recording
