// SPDX-License-Identifier: MIT
// Days, dates and times of day.
#include "plot/Calendar.h"

namespace kavlix {
namespace {

constexpr std::int64_t kDaysPerEra = 146097;       // days in 400 years
constexpr std::int64_t kEpochDaysFromEra = 719468; // from 0000-03-01 to 1970-01-01

} // namespace

int DaysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && isLeap ? 29 : kDays[month - 1];
}

// Years are counted from 1 March in eras of 400 years: the leap day is then the last day of its year. The method
// was published by Howard Hinnant as "days_from_civil" and "civil_from_days".
std::int64_t DaysFromDate(int year, int month, int day) {
    const std::int64_t marchYear = std::int64_t{year} - (month <= 2 ? 1 : 0);
    const std::int64_t era = FloorDivide(marchYear, 400);
    const std::int64_t yearOfEra = marchYear - era * 400;
    const int dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    return era * kDaysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear -
           kEpochDaysFromEra;
}

int WeekdayOf(std::int64_t days) {
    constexpr int kWeekdayOfEpoch = 4; // 1970-01-01 was a Thursday
    const std::int64_t fromSunday = days + kWeekdayOfEpoch;
    return static_cast<int>(fromSunday - FloorDivide(fromSunday, 7) * 7);
}

std::int64_t SecondsOf(const CalendarStamp& stamp) {
    return DaysFromDate(stamp.year, stamp.month, stamp.day) * kSecondsPerDay + stamp.hour * 3600 +
           stamp.minute * 60 + stamp.second;
}

CalendarStamp StampOf(std::int64_t seconds) {
    const std::int64_t days = FloorDivide(seconds, kSecondsPerDay);
    const std::int64_t fromEra = days + kEpochDaysFromEra;
    const std::int64_t era = FloorDivide(fromEra, kDaysPerEra);
    const auto dayOfEra = static_cast<int>(fromEra - era * kDaysPerEra);
    const int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int monthFromMarch = (5 * dayOfYear + 2) / 153;
    const auto rest = static_cast<int>(seconds - days * kSecondsPerDay);

    CalendarStamp stamp;
    stamp.day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    stamp.month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    stamp.year = static_cast<int>(era * 400) + yearOfEra + (stamp.month <= 2 ? 1 : 0);
    stamp.hour = rest / 3600;
    stamp.minute = rest / 60 % 60;
    stamp.second = rest % 60;
    return stamp;
}

} // namespace kavlix
