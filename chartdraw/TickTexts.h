// SPDX-License-Identifier: MIT
// The texts of time axes, in the order and with the names of the user's locale.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

#include "plot/TimeScale.h"

namespace kavlix {

/// A piece of a locale's date or time format: a field such as "yyyy", or a literal text.
struct FormatPiece {
    wchar_t field = 0; ///< d, M, y, h, H, m, s, t; 0: the piece is `text`
    int count = 0;     ///< number of letters of the field
    std::wstring text;
};

/// Texts of times.
class TickTexts {
public:
    /// Asks the system for the user's formats.
    TickTexts();

    /// First row: "14:05", "14:05:30.25", "2 PM", "22 Nov", "Nov" or "2026". A time that the clock shows for the second
    /// time is marked: "02:00 (2)".
    CString Label(const TimeStep& step, const TimeTick& tick) const;
    /// Second row: the date for steps below a day, the year for steps below a year. For steps below a millisecond date and
    /// clock, and the first row has only the seconds: "30.000005".
    CString Period(const TimeStep& step, const CalendarStamp& stamp) const;
    /// Labels, and periods, of which one is as wide as the widest that the step can have.
    std::vector<CString> WidestLabels(const TimeStep& step) const;
    std::vector<CString> WidestPeriods(const TimeStep& step) const;
    /// What marks a repeated time.
    static CString Mark() { return _T(" (2)"); }
    /// Date and clock time with `digits` digits of the second's fraction, 0 to 9.
    CString Full(const CalendarStamp& stamp, int nano, int digits) const;

private:
    using Format = std::vector<FormatPiece>;
    CString Text(const Format& format, const CalendarStamp& stamp, int nano = 0, int digits = 0) const;
    std::wstring Field(const FormatPiece& piece, const CalendarStamp& stamp) const;

    Format m_date;     ///< day, month and year
    Format m_monthDay; ///< day and month
    Format m_seconds;  ///< hour, minute and second
    Format m_minutes;  ///< hour and minute
    Format m_hours;    ///< in a locale of 12 hours without minutes
    std::wstring m_decimal, m_am, m_pm;
    std::wstring m_months[12]; ///< short names
};

} // namespace kavlix
