// SPDX-License-Identifier: MIT
// CTime, a point in time, and CTimeSpan, a number of seconds.
#pragma once

#include <ctime>

#include <afx/String.h>

class CArchive;

/// A number of seconds, positive or negative, in 64 bits.
class MFC_API CTimeSpan {
public:
    CTimeSpan() : m_nSpan(0) {}
    CTimeSpan(__time64_t seconds) : m_nSpan(seconds) {}
    CTimeSpan(LONG days, int hours, int minutes, int seconds)
        : m_nSpan(((days * __time64_t{24} + hours) * 60 + minutes) * 60 + seconds) {}

    /// GetDays() returns the whole days, the other functions the remainder. All have the sign of the span:
    /// hours -23..23, minutes and seconds -59..59.
    LONGLONG GetDays() const { return m_nSpan / SecondsPerDay; }
    LONG GetHours() const { return static_cast<LONG>(m_nSpan % SecondsPerDay / 3600); }
    LONG GetMinutes() const { return static_cast<LONG>(m_nSpan % 3600 / 60); }
    LONG GetSeconds() const { return static_cast<LONG>(m_nSpan % 60); }
    /// The whole span in one unit, rounded towards 0.
    LONGLONG GetTotalHours() const { return m_nSpan / 3600; }
    LONGLONG GetTotalMinutes() const { return m_nSpan / 60; }
    LONGLONG GetTotalSeconds() const { return m_nSpan; }
    LONGLONG GetTimeSpan() const { return m_nSpan; }

    /// Formats the span: %D whole days; %H hours, %M minutes and %S seconds, filled with 0 to two characters
    /// (a minus counts as one); %% a percent sign. Another code asserts in debug builds and is copied in
    /// other builds. With an `id`, the format is a string resource.
    CString Format(LPCTSTR format) const;
    CString Format(UINT id) const;

    CTimeSpan operator+(CTimeSpan span) const { return Wrapped(Bits() + span.Bits()); }
    CTimeSpan operator-(CTimeSpan span) const { return Wrapped(Bits() - span.Bits()); }
    CTimeSpan& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTimeSpan& operator-=(CTimeSpan span) { return *this = *this - span; }
    bool operator==(CTimeSpan span) const { return m_nSpan == span.m_nSpan; }
    bool operator!=(CTimeSpan span) const { return m_nSpan != span.m_nSpan; }
    bool operator<(CTimeSpan span) const { return m_nSpan < span.m_nSpan; }
    bool operator>(CTimeSpan span) const { return m_nSpan > span.m_nSpan; }
    bool operator<=(CTimeSpan span) const { return m_nSpan <= span.m_nSpan; }
    bool operator>=(CTimeSpan span) const { return m_nSpan >= span.m_nSpan; }

private:
    friend class CTime;
    static constexpr __time64_t SecondsPerDay = 86400;
    ULONGLONG Bits() const { return static_cast<ULONGLONG>(m_nSpan); }
    static CTimeSpan Wrapped(ULONGLONG bits) { return CTimeSpan(static_cast<__time64_t>(bits)); }

    __time64_t m_nSpan;
};

/// A point in time: seconds since 1970-01-01 00:00:00 UTC, in 64 bits. Local time uses the system's zone with
/// the daylight-saving rules of the year. Dates exist for the years 1601 to 30827; other times have the date
/// 1970-01-01 00:00:00.
class MFC_API CTime {
public:
    static CTime GetCurrentTime();

    CTime() : m_time(0) {}
    CTime(__time64_t time) : m_time(time) {}
    /// From local time. `isDst` is 0 for standard time, positive for daylight-saving time, -1 for the zone's
    /// rules. Values outside their ranges assert in debug builds and make the time -1 in other builds. A day
    /// that the month does not have makes the time -1. Debug builds accept years from 1900, other builds
    /// years from 1601.
    CTime(int year, int month, int day, int hour, int minute, int second, int isDst = -1);
    /// From local time in the DOS format, which has even seconds only.
    CTime(WORD dosDate, WORD dosTime, int isDst = -1);
    /// From local time. An invalid date makes the time -1.
    explicit CTime(const SYSTEMTIME& local, int isDst = -1);
    /// From UTC, truncated to whole seconds.
    explicit CTime(const FILETIME& utc, int isDst = -1);

    __time64_t GetTime() const { return m_time; }
    /// Local date and time: month 1..12, day 1..31, day of week 1 (Sunday)..7.
    int GetYear() const;
    int GetMonth() const;
    int GetDay() const;
    int GetHour() const;
    int GetMinute() const;
    int GetSecond() const;
    int GetDayOfWeek() const;

    /// Fill `*result` and return it. A null `result` stands for a record of the calling thread, which the
    /// next call overwrites.
    struct tm* GetLocalTm(struct tm* result = nullptr) const;
    struct tm* GetGmtTm(struct tm* result = nullptr) const;
    /// Local time. FALSE if the time has no date.
    bool GetAsSystemTime(SYSTEMTIME& local) const;

    /// Formats local time (FormatGmt: UTC) with the codes of strftime: %a %A %b %B %c %d %H %I %j %m %M %p %S
    /// %U %w %W %x %X %y %Y %z %Z %%, also with '#' after the '%'. Other codes are copied. With an `id`, the
    /// format is a string resource.
    CString Format(LPCTSTR format) const;
    CString Format(UINT id) const;
    CString FormatGmt(LPCTSTR format) const;
    CString FormatGmt(UINT id) const;

    CTimeSpan operator-(CTime time) const { return CTimeSpan(m_time) - CTimeSpan(time.m_time); }
    CTime operator-(CTimeSpan span) const { return CTime((CTimeSpan(m_time) - span).m_nSpan); }
    CTime operator+(CTimeSpan span) const { return CTime((CTimeSpan(m_time) + span).m_nSpan); }
    CTime& operator+=(CTimeSpan span) { return *this = *this + span; }
    CTime& operator-=(CTimeSpan span) { return *this = *this - span; }
    bool operator==(CTime time) const { return m_time == time.m_time; }
    bool operator!=(CTime time) const { return m_time != time.m_time; }
    bool operator<(CTime time) const { return m_time < time.m_time; }
    bool operator>(CTime time) const { return m_time > time.m_time; }
    bool operator<=(CTime time) const { return m_time <= time.m_time; }
    bool operator>=(CTime time) const { return m_time >= time.m_time; }

private:
    void SetLocal(const SYSTEMTIME& local, int isDst);

    __time64_t m_time;
};

/// The number of seconds takes 8 bytes.
MFC_API CArchive& operator<<(CArchive& ar, CTimeSpan span);
MFC_API CArchive& operator>>(CArchive& ar, CTimeSpan& span);
MFC_API CArchive& operator<<(CArchive& ar, CTime time);
MFC_API CArchive& operator>>(CArchive& ar, CTime& time);
