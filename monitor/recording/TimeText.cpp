// SPDX-License-Identifier: MIT
// The calendar, and reading and writing of times.

#include "monitor/recording/TimeText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

constexpr int kDaysPerEra = 146'097;     // days in 400 years
constexpr int kEraOfEpochDays = 719'468; // days from 0000-03-01 to 1970-01-01

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads text from left to right. A Read function that fails leaves the position unchanged.
class Cursor {
public:
    explicit Cursor(std::string_view text) : m_text(text) {}

    bool AtEnd() const { return m_at == m_text.size(); }
    char Peek() const { return AtEnd() ? '\0' : m_text[m_at]; }

    bool Read(char expected) {
        if (Peek() != expected || AtEnd())
            return false;
        ++m_at;
        return true;
    }

    bool ReadDigits(std::size_t count, int& value) {
        if (m_text.size() - m_at < count)
            return false;
        int read = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const char c = m_text[m_at + i];
            if (!IsDigit(c))
                return false;
            read = read * 10 + (c - '0');
        }
        m_at += count;
        value = read;
        return true;
    }

    /// Reads the digits behind a decimal point, at least one, as millionths. Further digits are dropped.
    bool ReadMillionths(int& micros) {
        if (!IsDigit(Peek()))
            return false;
        int scale = 100'000;
        int read = 0;
        for (; IsDigit(Peek()); ++m_at) {
            read += (m_text[m_at] - '0') * scale;
            scale /= 10;
        }
        micros = read;
        return true;
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

bool ReadDate(Cursor& cursor, CivilTime& civil) {
    return cursor.ReadDigits(4, civil.year) && cursor.Read('-') && cursor.ReadDigits(2, civil.month) &&
           cursor.Read('-') && cursor.ReadDigits(2, civil.day) && civil.year >= 1 && civil.month >= 1 &&
           civil.month <= 12 && civil.day >= 1 && civil.day <= DaysInMonth(civil.year, civil.month);
}

/// Reads the time of day. Second 60 sets `leap`, and is stored as second 59.
bool ReadClock(Cursor& cursor, CivilTime& civil, bool& leap) {
    if (!cursor.ReadDigits(2, civil.hour) || !cursor.Read(':') || !cursor.ReadDigits(2, civil.minute) ||
        civil.hour > 23 || civil.minute > 59)
        return false;
    if (!cursor.Read(':'))
        return true;
    if (!cursor.ReadDigits(2, civil.second) || civil.second > 60)
        return false;
    leap = civil.second == 60;
    civil.second = std::min(civil.second, 59);
    if (cursor.Read('.') || cursor.Read(','))
        return cursor.ReadMillionths(civil.micros);
    return true;
}

/// Reads `Z`, or `+HH`, `+HHMM` or `+HH:MM` with plus or minus. `offset` receives the offset from UTC in
/// microseconds, positive in the east.
bool ReadZone(Cursor& cursor, Time& offset) {
    if (cursor.Read('Z') || cursor.Read('z')) {
        offset = 0;
        return true;
    }
    const bool east = cursor.Peek() == '+';
    if (!cursor.Read('+') && !cursor.Read('-'))
        return false;
    int hours = 0;
    int minutes = 0;
    if (!cursor.ReadDigits(2, hours) || hours > 23)
        return false;
    const bool colon = cursor.Read(':');
    if ((colon || !cursor.AtEnd()) && (!cursor.ReadDigits(2, minutes) || minutes > 59))
        return false;
    offset = (hours * kMicrosPerHour + minutes * kMicrosPerMinute) * (east ? 1 : -1);
    return true;
}

bool ParseCalendar(std::string_view text, ParsedTime& result) {
    Cursor cursor(text);
    CivilTime civil;
    bool leap = false;
    Time offset = 0;
    bool zoned = false;
    if (!ReadDate(cursor, civil))
        return false;
    if (!cursor.AtEnd()) {
        if (!cursor.Read(' ') && !cursor.Read('T') && !cursor.Read('t'))
            return false;
        if (!ReadClock(cursor, civil, leap))
            return false;
        if (!cursor.AtEnd()) {
            cursor.Read(' ');
            zoned = ReadZone(cursor, offset);
            if (!zoned || !cursor.AtEnd())
                return false;
        }
    }
    const Time time = FromCivil(civil) + (leap ? kMicrosPerSecond : 0) - offset;
    if (time < kFirstTime || time > kLastTime)
        return false;
    result.time = time;
    result.zoned = zoned;
    return true;
}

/// Reads seconds written as digits, with an optional minus sign and decimal part. Uses no double, which would
/// round microseconds.
bool ParsePlainSeconds(std::string_view text, Time& time) {
    constexpr Time kMostSeconds = 1'000'000'000'000;
    const bool negative = !text.empty() && text.front() == '-';
    std::size_t at = negative ? 1 : 0;
    const std::size_t firstDigit = at;
    Time seconds = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        seconds = seconds * 10 + (text[at] - '0');
        if (seconds > kMostSeconds)
            return false;
    }
    int micros = 0;
    if (at == firstDigit)
        return false;
    if (at < text.size()) {
        Cursor fraction(text.substr(at));
        if (!fraction.Read('.') || (!fraction.AtEnd() && !fraction.ReadMillionths(micros)) ||
            !fraction.AtEnd())
            return false;
    }
    time = seconds * kMicrosPerSecond + micros;
    time = negative ? -time : time;
    return true;
}

bool ParseSeconds(std::string_view text, Time& time) {
    if (ParsePlainSeconds(text, time))
        return time >= kFirstTime && time <= kLastTime;
    // Some programs write an exponent or a plus sign.
    double seconds = 0;
    if (ParseNumber(text, seconds) != NumberKind::Value)
        return false;
    const double micros = std::round(seconds * static_cast<double>(kMicrosPerSecond));
    if (!(micros >= static_cast<double>(kFirstTime)) || !(micros <= static_cast<double>(kLastTime)))
        return false;
    time = std::clamp(static_cast<Time>(micros), kFirstTime, kLastTime);
    return true;
}

template <typename... Args> std::string Printed(const char* format, Args... args) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, args...);
    return buffer;
}

} // namespace

int DaysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : kDays[std::clamp(month, 1, 12) - 1];
}

// Days are counted in eras of 400 years that begin on 1 March, so that a leap day is the last day of its
// year. The method was published by Howard Hinnant as "days_from_civil" and "civil_from_days".
Time FromCivil(const CivilTime& civil) {
    const int year = civil.month <= 2 ? civil.year - 1 : civil.year;
    const int era = (year >= 0 ? year : year - 399) / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (civil.month + (civil.month > 2 ? -3 : 9)) + 2) / 5 + civil.day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    const Time days = Time{era} * kDaysPerEra + dayOfEra - kEraOfEpochDays;
    return days * kMicrosPerDay + civil.hour * kMicrosPerHour + civil.minute * kMicrosPerMinute +
           civil.second * kMicrosPerSecond + civil.micros;
}

CivilTime ToCivil(Time time) {
    const Time inRange = std::clamp(time, kFirstTime, kLastTime);
    const Time midnight = FloorTo(inRange, kMicrosPerDay);
    Time rest = inRange - midnight;
    const int days = static_cast<int>(midnight / kMicrosPerDay) + kEraOfEpochDays;
    const int era = (days >= 0 ? days : days - (kDaysPerEra - 1)) / kDaysPerEra;
    const int dayOfEra = days - era * kDaysPerEra;
    const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int monthFromMarch = (5 * dayOfYear + 2) / 153;

    CivilTime civil;
    civil.day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    civil.month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    civil.year = yearOfEra + era * 400 + (civil.month <= 2 ? 1 : 0);
    civil.hour = static_cast<int>(rest / kMicrosPerHour);
    rest %= kMicrosPerHour;
    civil.minute = static_cast<int>(rest / kMicrosPerMinute);
    rest %= kMicrosPerMinute;
    civil.second = static_cast<int>(rest / kMicrosPerSecond);
    civil.micros = static_cast<int>(rest % kMicrosPerSecond);
    return civil;
}

bool ParseTime(std::string_view text, ParsedTime& result) {
    const std::string_view trimmed = TrimBlanks(text);
    if (ParseCalendar(trimmed, result))
        return true;
    Time time = 0;
    if (!ParseSeconds(trimmed, time))
        return false;
    result.time = time;
    result.zoned = false;
    return true;
}

std::string FormatDate(Time time) {
    const CivilTime civil = ToCivil(time);
    return Printed("%04d-%02d-%02d", civil.year, civil.month, civil.day);
}

std::string FormatClock(Time time, TimePrecision precision) {
    const CivilTime civil = ToCivil(time);
    switch (precision) {
    case TimePrecision::Minutes:
        return Printed("%02d:%02d", civil.hour, civil.minute);
    case TimePrecision::Millis:
        return Printed("%02d:%02d:%02d.%03d", civil.hour, civil.minute, civil.second, civil.micros / 1000);
    case TimePrecision::Micros:
        return Printed("%02d:%02d:%02d.%06d", civil.hour, civil.minute, civil.second, civil.micros);
    case TimePrecision::Seconds:
        break;
    }
    return Printed("%02d:%02d:%02d", civil.hour, civil.minute, civil.second);
}

std::string FormatDateTime(Time time, TimePrecision precision) {
    return FormatDate(time) + ' ' + FormatClock(time, precision);
}

std::string FormatExact(Time time) {
    const int micros = ToCivil(time).micros;
    if (micros == 0)
        return FormatDateTime(time, TimePrecision::Seconds);
    return FormatDateTime(time, micros % 1000 == 0 ? TimePrecision::Millis : TimePrecision::Micros);
}

std::string FormatDuration(Time duration) {
    struct Unit {
        Time length;
        const char* name;
    };
    static constexpr Unit kUnits[] = {
        {kMicrosPerDay, "d"},    {kMicrosPerHour, "h"}, {kMicrosPerMinute, "min"},
        {kMicrosPerSecond, "s"}, {1000, "ms"},          {1, "us"}};
    constexpr std::size_t kUnitCount = std::size(kUnits);
    constexpr Time kMost = std::numeric_limits<Time>::max();
    const Time length = duration >= 0 ? duration : (duration < -kMost ? kMost : -duration);
    for (std::size_t i = 0; i < kUnitCount; ++i) {
        if (length < kUnits[i].length)
            continue;
        std::string text = std::to_string(length / kUnits[i].length) + ' ' + kUnits[i].name;
        if (i + 1 < kUnitCount) {
            const Time rest = length % kUnits[i].length / kUnits[i + 1].length;
            if (rest != 0)
                text += ' ' + std::to_string(rest) + ' ' + kUnits[i + 1].name;
        }
        return text;
    }
    return "0 s";
}

} // namespace kavlix::recording
