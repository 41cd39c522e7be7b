// SPDX-License-Identifier: MIT
// Reading and writing times, and the calendar.

#include <gtest/gtest.h>

#include <tuple>

#include "monitor/recording/TimeText.h"

namespace kavlix::recording {
namespace {

TEST(ParseTime, ReadsWhatRecordersWrite) {
    const std::tuple<const char*, Time, Time, bool> cases[] = {
        {"2013-12-02 21:15", 1386018900, 0, false},
        {"2013-12-02", 1385942400, 0, false},
        {"2013-12-02t21:15:00z", 1386018900, 0, true},
        {"2013-12-02T21:15:00+01:00", 1386015300, 0, true},
        {"2013-12-02T21:15:00-0530", 1386038700, 0, true},
        {"2013-12-02 21:15:00,25", 1386018900, 250'000, false},
        {"2013-12-02T21:15:00.123456789Z", 1386018900, 123'456, true},
        {"2016-12-31 23:59:60", 1483228800, 0, false},
        {"1969-12-31 23:59:59.75", -1, 750'000, false},
        {"-62135596800", -62'135'596'800, 0, false},
        {"-0.25", -1, 750'000, false},
        {"1386018900.000001", 1386018900, 1, false},
        {"1.3860189e9", 1386018900, 0, false},
    };
    for (const auto& [text, seconds, micros, zoned] : cases) {
        ParsedTime read;
        ASSERT_TRUE(ParseTime(text, read)) << text;
        EXPECT_EQ(read.time, seconds * kMicrosPerSecond + micros) << text;
        EXPECT_EQ(read.zoned, zoned) << text;
    }
}

TEST(ParseTime, RefusesAllElseAndLeavesTheResult) {
    const auto refuses = [](const std::string& text) {
        ParsedTime read{42, true};
        EXPECT_FALSE(ParseTime(text, read)) << text;
        EXPECT_EQ(read.time, 42) << text;
    };
    for (const char* text :
         {"", "NaN", "2013-12", "2013-1-02", "2013-12-02Z", "1e300", "-1e300", "12abc", "253402300800",
          "-62135596801", "2013/12/02 21:15:00", "0001-01-01 00:00:00+00:01", "9999-12-31 23:59:60"})
        refuses(text);
    for (const std::string day : {"13-12-02", "2013-00-01", "2013-13-01", "2013-12-00", "2013-02-29",
                                  "1900-02-29", "2013-04-31", "0000-01-01"})
        refuses(day + " 00:00:00");
    for (const std::string clock :
         {"24:00:00", "23:60:00", "23:59:61", "1:00:00", "21:", "21:15:", "21:15:00.", " 21:15:00",
          "21:15:00x", "21:15:00+1", "21:15:00+01:", "21:15:00+01:60", "21:15:00+24"})
        refuses("2013-12-02 " + clock);
}

TEST(CivilTime, EveryDayOfTenThousandYearsFollowsTheOneBefore) {
    CivilTime civil;
    civil.year = 1;
    for (Time day = kFirstTime; day <= kLastTime; day += kMicrosPerDay) {
        ASSERT_EQ(FromCivil(civil), day) << civil.year << ' ' << civil.month << ' ' << civil.day;
        const CivilTime back = ToCivil(day);
        ASSERT_TRUE(back.year == civil.year && back.month == civil.month && back.day == civil.day);
        if (++civil.day > DaysInMonth(civil.year, civil.month)) {
            civil.day = 1;
            if (++civil.month > 12) {
                civil.month = 1;
                ++civil.year;
            }
        }
    }
    EXPECT_EQ(FormatExact(INT64_MAX), "9999-12-31 23:59:59.999999");
}

TEST(FormatTime, ShowsWhatThePrecisionAsksFor) {
    const Time time = 1386018909 * kMicrosPerSecond + 250'999;
    EXPECT_EQ(FormatClock(time, TimePrecision::Minutes), "21:15");
    EXPECT_EQ(FormatClock(time, TimePrecision::Millis), "21:15:09.250");
    EXPECT_EQ(FormatDateTime(time, TimePrecision::Minutes), "2013-12-02 21:15");
    EXPECT_EQ(FormatExact(time - 999), "2013-12-02 21:15:09.250");
}

TEST(FormatDuration, TakesTheTwoLargestUnits) {
    const std::pair<Time, const char*> cases[] = {
        {0, "0 s"},
        {-55 * kMicrosPerMinute, "55 min"},
        {90 * kMicrosPerMinute, "1 h 30 min"},
        {51 * kMicrosPerHour + 59 * kMicrosPerMinute, "2 d 3 h"},
        {2 * kMicrosPerDay + 5 * kMicrosPerMinute, "2 d"},
    };
    for (const auto& [duration, text] : cases)
        EXPECT_EQ(FormatDuration(duration), text);
}

} // namespace
} // namespace kavlix::recording
