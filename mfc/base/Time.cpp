// SPDX-License-Identifier: MIT
// CTime and CTimeSpan: conversions and formats.

#include <afx.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "mfc/base/FileTime.h"
#include "mfc/base/LocalTime.h"

namespace {

// Seconds since 1970. FileTimeToSystemTime() refuses later times, because the highest bit of their FILETIME
// is set.
constexpr __time64_t kLastSecond = 910692730085;
constexpr __time64_t kNoTime = -1;

bool UtcFromTime(__time64_t time, SYSTEMTIME& utc) {
    if (time < -kFileTimeTo1970 || time > kLastSecond)
        return false;
    const FILETIME fileTime = FileTimeOf(time);
    return ::FileTimeToSystemTime(&fileTime, &utc) != 0;
}

bool TimeFromUtc(const SYSTEMTIME& utc, __time64_t& time) {
    FILETIME fileTime;
    if (!::SystemTimeToFileTime(&utc, &fileTime))
        return false;
    time = SecondsOf(fileTime);
    // Some systems accept the 30th of February and convert it to a day in March.
    SYSTEMTIME back;
    return UtcFromTime(time, back) && back.wMonth == utc.wMonth && back.wDay == utc.wDay;
}

int DayOfYear(const SYSTEMTIME& date) {
    static const int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    const bool leap = (date.wYear % 4 == 0 && date.wYear % 100 != 0) || date.wYear % 400 == 0;
    return before[date.wMonth - 1] + date.wDay - 1 + (leap && date.wMonth > 2 ? 1 : 0);
}

struct tm ToTm(const SYSTEMTIME& date, bool daylight) {
    struct tm result {};
    result.tm_year = date.wYear - 1900;
    result.tm_mon = date.wMonth - 1;
    result.tm_mday = date.wDay;
    result.tm_hour = date.wHour;
    result.tm_min = date.wMinute;
    result.tm_sec = date.wSecond;
    result.tm_wday = date.wDayOfWeek;
    result.tm_yday = DayOfYear(date);
    result.tm_isdst = daylight ? 1 : 0;
    return result;
}

struct tm* Give(const struct tm& value, struct tm* result) {
    static thread_local struct tm record;
    if (result == nullptr)
        result = &record;
    *result = value;
    return result;
}

CString OffsetText(int minutesEast) {
    CString text;
    const int minutes = minutesEast < 0 ? -minutesEast : minutesEast;
    text.Format(_T("%c%02d%02d"), minutesEast < 0 ? '-' : '+', minutes / 60, minutes % 60);
    return text;
}

/// Formats code by code with strftime. A single call of strftime would stop at an unknown code, and would use
/// the zone of the C library.
CString FormatTm(LPCTSTR format, const struct tm& value, const CString& zoneName, const CString& offset) {
    CString text;
    if (format == nullptr)
        return text;
    for (LPCTSTR at = format; *at != 0; ++at) {
        if (*at != '%') {
            text += *at;
            continue;
        }
        LPCTSTR code = at + 1;
        const bool alternate = *code == '#';
        if (alternate)
            ++code;
        if (*code == 'Z') {
            text += zoneName;
        } else if (*code == 'z') {
            text += offset;
        } else if (*code != 0 && _tcschr(_T("aAbBcdHIjmMpSUwWxXyY%"), *code) != nullptr) {
            const char letter = static_cast<char>(*code);
            const char one[] = {'%', alternate ? '#' : letter, alternate ? letter : '\0', '\0'};
            char part[256];
            const std::size_t length = std::strftime(part, sizeof part, one, &value);
            text += CString(part, static_cast<int>(length));
        } else {
            text += *at;
            continue;
        }
        at = code;
    }
    return text;
}

CString FormatOf(UINT id) {
    CString format;
    format.LoadString(id);
    return format;
}

} // namespace

CString CTimeSpan::Format(LPCTSTR format) const {
    CString text;
    if (format == nullptr)
        return text;
    for (LPCTSTR at = format; *at != 0; ++at) {
        if (*at != '%' || at[1] == 0) {
            text += *at;
            continue;
        }
        CString part;
        switch (*++at) {
        case 'D':
            part.Format(_T("%lld"), static_cast<long long>(GetDays()));
            break;
        case 'H':
            part.Format(_T("%02ld"), static_cast<long>(GetHours()));
            break;
        case 'M':
            part.Format(_T("%02ld"), static_cast<long>(GetMinutes()));
            break;
        case 'S':
            part.Format(_T("%02ld"), static_cast<long>(GetSeconds()));
            break;
        case '%':
            part = _T("%");
            break;
        default:
            ASSERT(FALSE); // not a format code of a time span
            part.Format(_T("%%%c"), *at);
            break;
        }
        text += part;
    }
    return text;
}

CString CTimeSpan::Format(UINT id) const {
    return Format(static_cast<LPCTSTR>(FormatOf(id)));
}

CTime CTime::GetCurrentTime() {
    FILETIME now;
    ::GetSystemTimeAsFileTime(&now);
    return CTime(SecondsOf(now));
}

CTime::CTime(int year, int month, int day, int hour, int minute, int second, int isDst) : m_time(kNoTime) {
    ASSERT(year >= 1900 && year <= 30827);
    ASSERT(month >= 1 && month <= 12);
    ASSERT(day >= 1 && day <= 31);
    ASSERT(hour >= 0 && hour <= 23);
    ASSERT(minute >= 0 && minute <= 59);
    ASSERT(second >= 0 && second <= 59);
    const int values[] = {year, month, day, hour, minute, second};
    if (std::any_of(std::begin(values), std::end(values),
                    [](int value) { return value < 0 || value > 30827; }))
        return;
    SYSTEMTIME local{};
    local.wYear = static_cast<WORD>(year);
    local.wMonth = static_cast<WORD>(month);
    local.wDay = static_cast<WORD>(day);
    local.wHour = static_cast<WORD>(hour);
    local.wMinute = static_cast<WORD>(minute);
    local.wSecond = static_cast<WORD>(second);
    SetLocal(local, isDst);
}

CTime::CTime(WORD dosDate, WORD dosTime, int isDst) : m_time(kNoTime) {
    FILETIME fileTime;
    SYSTEMTIME local;
    if (::DosDateTimeToFileTime(dosDate, dosTime, &fileTime) && ::FileTimeToSystemTime(&fileTime, &local))
        SetLocal(local, isDst);
}

CTime::CTime(const SYSTEMTIME& local, int isDst) : m_time(kNoTime) {
    SetLocal(local, isDst);
}

CTime::CTime(const FILETIME& utc, int) : m_time(SecondsOf(utc)) {
}

void CTime::SetLocal(const SYSTEMTIME& local, int isDst) {
    m_time = kNoTime;
    __time64_t wall = 0;
    if (!TimeFromUtc(local, wall)) // fails for an invalid date
        return;
    SYSTEMTIME utc;
    if (isDst < 0) {
        if (UtcFromLocal(local, utc))
            TimeFromUtc(utc, m_time);
        return;
    }
    TIME_ZONE_INFORMATION zone;
    if (ZoneOfYear(local.wYear, zone))
        m_time = wall + 60 * (zone.Bias + (isDst > 0 ? zone.DaylightBias : zone.StandardBias));
}

bool CTime::GetAsSystemTime(SYSTEMTIME& local) const {
    SYSTEMTIME utc;
    return UtcFromTime(m_time, utc) && LocalFromUtc(utc, local);
}

struct tm* CTime::GetLocalTm(struct tm* result) const {
    SYSTEMTIME utc;
    SYSTEMTIME local;
    if (!UtcFromTime(m_time, utc) || !LocalFromUtc(utc, local)) {
        UtcFromTime(0, local);
        return Give(ToTm(local, false), result);
    }
    return Give(ToTm(local, IsDaylight(utc, local)), result);
}

struct tm* CTime::GetGmtTm(struct tm* result) const {
    SYSTEMTIME utc;
    if (!UtcFromTime(m_time, utc))
        UtcFromTime(0, utc);
    return Give(ToTm(utc, false), result);
}

int CTime::GetYear() const {
    struct tm local;
    return GetLocalTm(&local)->tm_year + 1900;
}

int CTime::GetMonth() const {
    struct tm local;
    return GetLocalTm(&local)->tm_mon + 1;
}

int CTime::GetDay() const {
    struct tm local;
    return GetLocalTm(&local)->tm_mday;
}

int CTime::GetHour() const {
    struct tm local;
    return GetLocalTm(&local)->tm_hour;
}

int CTime::GetMinute() const {
    struct tm local;
    return GetLocalTm(&local)->tm_min;
}

int CTime::GetSecond() const {
    struct tm local;
    return GetLocalTm(&local)->tm_sec;
}

int CTime::GetDayOfWeek() const {
    struct tm local;
    return GetLocalTm(&local)->tm_wday + 1;
}

CString CTime::Format(LPCTSTR format) const {
    struct tm local;
    GetLocalTm(&local);
    TIME_ZONE_INFORMATION zone{};
    ZoneOfYear(static_cast<WORD>(std::clamp(local.tm_year + 1900, 1601, 30827)), zone);
    const CString name = local.tm_isdst ? zone.DaylightName : zone.StandardName;
    const int bias = zone.Bias + (local.tm_isdst ? zone.DaylightBias : zone.StandardBias);
    return FormatTm(format, local, name, OffsetText(-bias));
}

CString CTime::Format(UINT id) const {
    return Format(static_cast<LPCTSTR>(FormatOf(id)));
}

CString CTime::FormatGmt(LPCTSTR format) const {
    struct tm gmt;
    return FormatTm(format, *GetGmtTm(&gmt), _T("GMT"), _T("+0000"));
}

CString CTime::FormatGmt(UINT id) const {
    return FormatGmt(static_cast<LPCTSTR>(FormatOf(id)));
}

CArchive& operator<<(CArchive& ar, CTimeSpan span) {
    return ar << static_cast<LONGLONG>(span.GetTimeSpan());
}

CArchive& operator>>(CArchive& ar, CTimeSpan& span) {
    LONGLONG seconds = 0;
    ar >> seconds;
    span = CTimeSpan(seconds);
    return ar;
}

CArchive& operator<<(CArchive& ar, CTime time) {
    return ar << static_cast<LONGLONG>(time.GetTime());
}

CArchive& operator>>(CArchive& ar, CTime& time) {
    LONGLONG seconds = 0;
    ar >> seconds;
    time = CTime(seconds);
    return ar;
}
