// SPDX-License-Identifier: MIT
// CTime and CTimeSpan: local time by the rules of a zone and year, formats, other forms of dates.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "tests/support/ImportHook.h"
#include "tests/support/Utf8.h"

namespace {

constexpr __time64_t hour = 3600;
constexpr __time64_t day = 24 * hour;

std::string Local(CTime time) {
    return testkit::Utf8(time.Format(_T("%Y-%m-%d %H:%M:%S")));
}

std::string Gmt(CTime time) {
    return testkit::Utf8(time.FormatGmt(_T("%Y-%m-%d %H:%M:%S")));
}

/// Rules of zones in the format of the system: wDay is the number of the Sunday in the month, 5 the last.
struct Zone {
    const char* name;
    LONG bias; // minutes, west positive
    WORD firstYear;
    SYSTEMTIME toStandard;
    SYSTEMTIME toDaylight;
};

const Zone zones[] = {
    {"America/New_York", 300, 2007, {0, 11, 0, 1, 2, 0, 0, 0}, {0, 3, 0, 2, 2, 0, 0, 0}},
    {"America/New_York", 300, 0, {0, 10, 0, 5, 2, 0, 0, 0}, {0, 4, 0, 1, 2, 0, 0, 0}},
    {"Asia/Kolkata", -330, 0, {}, {}},
    {"Australia/Sydney", -600, 0, {0, 4, 0, 1, 3, 0, 0, 0}, {0, 10, 0, 1, 2, 0, 0, 0}},
};

const char* currentZone = nullptr;

BOOL WINAPI RulesOfCurrentZone(USHORT year, PDYNAMIC_TIME_ZONE_INFORMATION, LPTIME_ZONE_INFORMATION rules) {
    for (const Zone& zone : zones) {
        if (strcmp(zone.name, currentZone) != 0 || year < zone.firstYear)
            continue;
        *rules = {};
        rules->Bias = zone.bias;
        rules->DaylightBias = -60;
        rules->StandardDate = zone.toStandard;
        rules->DaylightDate = zone.toDaylight;
        return TRUE;
    }
    return FALSE;
}

struct Moment {
    const char* zone;
    __time64_t utc;
    const char* local;
    int isDst;
};

const Moment moments[] = {
    {"America/New_York", 1721044800, "2024-07-15 08:00:00", 1},
    {"America/New_York", 1710053999, "2024-03-10 01:59:59", 0}, // before the clocks go forward
    {"America/New_York", 1710054000, "2024-03-10 03:00:00", 1},
    {"America/New_York", 1730613599, "2024-11-03 01:59:59", 1}, // and before they go back
    {"America/New_York", 1730613600, "2024-11-03 01:00:00", 0},
    {"America/New_York", 1704067199, "2023-12-31 18:59:59", 0}, // another year than in UTC
    {"Asia/Kolkata", 1721044800, "2024-07-15 17:30:00", 0},     // half an hour
    {"Australia/Sydney", 1705320000, "2024-01-15 23:00:00", 1}, // summer in January
};

void CheckMoments(const char* zone) {
    for (const Moment& moment : moments) {
        if (strcmp(zone, moment.zone) != 0)
            continue;
        const CTime time(moment.utc);
        EXPECT_EQ(moment.local, Local(time)) << zone << " " << moment.utc;
        EXPECT_EQ(moment.isDst, time.GetLocalTm()->tm_isdst) << zone << " " << moment.local;
        SYSTEMTIME local{};
        ASSERT_TRUE(time.GetAsSystemTime(local));
        EXPECT_TRUE(CTime(local, moment.isDst) == time) << zone << " " << moment.local << " back again";
        EXPECT_TRUE(CTime(time.GetYear(), time.GetMonth(), time.GetDay(), time.GetHour(), time.GetMinute(),
                          time.GetSecond(), moment.isDst) == time);
    }
}

TEST(Time, FollowsTheRulesOfTheZoneAndYear) {
    const testkit::ImportHook hook("KavlixMfc.dll", "GetTimeZoneInformationForYear",
                                   reinterpret_cast<void*>(&RulesOfCurrentZone));
    ASSERT_TRUE(hook.Installed());
    for (const char* zone : {"America/New_York", "Asia/Kolkata", "Australia/Sydney"}) {
        currentZone = zone;
        CheckMoments(zone);
    }
    currentZone = "America/New_York";
    EXPECT_EQ("2006-03-20 07:00:00", Local(CTime(1142856000))) << "the rules of 2006, not of today";
    EXPECT_EQ(1721044800, CTime(2024, 7, 15, 8, 0, 0).GetTime()) << "the rules decide";
    EXPECT_EQ(1721044800 + hour, CTime(2024, 7, 15, 8, 0, 0, 0).GetTime()) << "standard time was asked for";
    EXPECT_STREQ(_T("-0400"), CTime(1721044800).Format(_T("%z")));
    currentZone = "Asia/Kolkata";
    EXPECT_STREQ(_T("+0530"), CTime(1721044800).Format(_T("%z")));
}

TEST(Time, ComesBackFromLocalTime) {
    for (__time64_t utc = -20 * 365 * day; utc < 100 * 365 * day; utc += 37 * day + 12345) {
        const CTime time(utc);
        const struct tm local = *time.GetLocalTm();
        ASSERT_TRUE(CTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                          local.tm_sec, local.tm_isdst) == time)
            << utc;
    }
}

TEST(Time, TellsGmtOfAnyYear) {
    EXPECT_EQ("1969-12-31 23:59:59", Gmt(CTime(-1)));
    EXPECT_EQ("2038-01-19 03:14:08", Gmt(CTime(2147483648LL)));
    EXPECT_EQ("1601-01-01 00:00:00", Gmt(CTime(-11644473600)));
    // The third time is before the first date.
    for (const CTime time : {CTime(), CTime(INT64_MAX), CTime(-11644473601), CTime(INT64_MIN)})
        EXPECT_EQ("1970-01-01 00:00:00", Gmt(time)) << time.GetTime();
    EXPECT_EQ(3, CTime(CTime(951782400 + 12 * hour)).GetDayOfWeek()) << "a Tuesday, counted from 1";
}

TEST(Time, FormatsEveryCodeAndCopiesWhatIsNone) {
    const CTime time(951827696); // 2000-02-29 12:34:56 UTC
    EXPECT_STREQ(_T("00 02 29|12:34:56|060|AM/PM PM|12"),
                 time.FormatGmt(_T("%y %m %d|%H:%M:%S|%j|AM/PM %p|%I")));
    EXPECT_STREQ(_T("100% %Q %"), time.FormatGmt(_T("100%% %Q %")));
    const CString padding('x', 5000);
    EXPECT_EQ(10004, time.FormatGmt(padding + "%Y" + padding).GetLength());
}

TEST(Time, OtherFormsOfDateAreTakenAndCutToSeconds) {
    const FILETIME fileTime{0xD53E8000 + 9999999, 0x019DB1DE}; // 1970-01-01 and almost a second
    EXPECT_EQ(0, CTime(fileTime).GetTime());
    EXPECT_EQ("2024-07-15 10:20:30",
              Local(CTime(WORD{(44 << 9) | (7 << 5) | 15}, WORD{(10 << 11) | (20 << 5) | 15})));
    EXPECT_EQ(-1, CTime(2023, 2, 29, 0, 0, 0).GetTime());
#ifdef _DEBUG
    EXPECT_DEATH(CTime(2023, 13, 1, 0, 0, 0), "assertion failed");
#else
    EXPECT_EQ(-1, CTime(2023, 13, 1, 0, 0, 0).GetTime());
#endif
}

TEST(Time, SpansAddAndCompare) {
    const CTimeSpan span(2, 3, 4, 5);
    EXPECT_EQ(2 * day + 3 * hour + 4 * 60 + 5, span.GetTotalSeconds());
    EXPECT_EQ(51, span.GetTotalHours());
    EXPECT_EQ(std::tuple(2, 3, 4, 5),
              std::tuple(span.GetDays(), span.GetHours(), span.GetMinutes(), span.GetSeconds()));
    EXPECT_STREQ(_T("2 days 03:04:05 100%"), span.Format(_T("%D days %H:%M:%S 100%%")));
    const CTime start(1000);
    const CTime time = start + span;
    EXPECT_TRUE(time > start && time - start == span && time - span == start && !(time <= start));
}

} // namespace
