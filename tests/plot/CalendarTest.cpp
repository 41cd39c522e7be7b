// SPDX-License-Identifier: MIT
// Calendar arithmetic against a walk from day to day.
#include <gtest/gtest.h>

#include "plot/Calendar.h"

namespace kavlix {
namespace {

TEST(CalendarTest, DaysAndDatesAgreeWithAWalkFromDayToDay) {
    int year = -401, month = 1, day = 1, weekday = WeekdayOf(DaysFromDate(year, month, day));
    for (std::int64_t days = DaysFromDate(year, month, day); year < 2420; ++days) {
        ASSERT_EQ(DaysFromDate(year, month, day), days) << year << "-" << month << "-" << day;
        ASSERT_EQ(WeekdayOf(days), weekday);
        // A moment of the day that differs from day to day.
        const std::int64_t second = (days * 7919 % kSecondsPerDay + kSecondsPerDay) % kSecondsPerDay;
        const CalendarStamp stamp = StampOf(days * kSecondsPerDay + second);
        ASSERT_EQ(SecondsOf(stamp), days * kSecondsPerDay + second);
        ASSERT_TRUE(stamp.HasDateOf({year, month, day}));
        ASSERT_EQ(stamp.hour * 3600 + stamp.minute * 60 + stamp.second, second);
        weekday = (weekday + 1) % 7;
        const bool isLeap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
        const int length = month == 2 ? (isLeap ? 29 : 28) : 30 + (month < 8 ? month % 2 : (month + 1) % 2);
        if (++day > length) {
            day = 1;
            if (++month > 12) {
                month = 1;
                ++year;
            }
        }
    }
    EXPECT_EQ(DaysFromDate(1970, 1, 1), 0);
    EXPECT_EQ(WeekdayOf(DaysFromDate(2026, 11, 22)), 0) << "a Sunday";
}

} // namespace
} // namespace kavlix
