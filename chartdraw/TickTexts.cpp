// SPDX-License-Identifier: MIT
// Reads the user's date and time formats and fills them in.
#include "chartdraw/TickTexts.h"

#include <algorithm>
#include <cwchar>

namespace kavlix {
namespace {

constexpr LCTYPE kMonthDayFormat = 0x78; // LOCALE_SMONTHDAY, which older headers lack

std::wstring Ask(LCTYPE type, const wchar_t* otherwise) {
    wchar_t text[128] = {};
    const int length = ::GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, static_cast<int>(std::size(text)));
    return length > 1 ? text : otherwise;
}

/// Splits a format such as "h:mm:ss tt" or "d 'de' MMMM". Quoted and other texts become pieces of their own.
std::vector<FormatPiece> Split(const std::wstring& format) {
    std::vector<FormatPiece> pieces;
    bool isQuoted = false;
    wchar_t before = 0;
    for (const wchar_t c : format) {
        if (c == L'\'') {
            isQuoted = !isQuoted;
            before = 0;
            continue;
        }
        const bool isField = !isQuoted && std::wcschr(L"dMyhHmst", c) != nullptr;
        if (isField && c == before)
            ++pieces.back().count;
        else if (isField)
            pieces.push_back({c, 1, {}});
        else if (before == L' ' && !isQuoted)
            pieces.back().text += c;
        else
            pieces.push_back({0, 0, std::wstring(1, c)});
        before = isField ? c : isQuoted ? 0 : L' ';
    }
    return pieces;
}

/// Removes the fields that `matches` with the text before, or at the beginning of a format the text behind.
template <class Matches> std::vector<FormatPiece> Without(std::vector<FormatPiece> pieces, Matches matches) {
    for (std::size_t i = 0; i < pieces.size();) {
        if (pieces[i].field == 0 || !matches(pieces[i])) {
            ++i;
            continue;
        }
        std::size_t first = i;
        std::size_t behind = i + 1;
        if (first > 0)
            while (first > 0 && pieces[first - 1].field == 0)
                --first;
        else
            while (behind < pieces.size() && pieces[behind].field == 0)
                ++behind;
        pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(first),
                     pieces.begin() + static_cast<std::ptrdiff_t>(behind));
        i = first;
    }
    return pieces;
}

auto Is(wchar_t field) {
    return [field](const FormatPiece& piece) { return piece.field == field; };
}

std::wstring Number(int value, int digits) {
    wchar_t text[24];
    std::swprintf(text, std::size(text), L"%0*d", digits, value);
    return text;
}

/// Full names of months become short ones.
std::vector<FormatPiece> WithShortMonth(std::vector<FormatPiece> pieces) {
    for (FormatPiece& piece : pieces)
        if (piece.field == L'M')
            piece.count = std::min(piece.count, 3);
    return pieces;
}

bool IsHourStep(const TimeStep& step) {
    return step.unit == TimeStep::Unit::Second && step.count % 3600 == 0;
}

} // namespace

TickTexts::TickTexts() {
    const std::wstring order = Ask(LOCALE_IDATE, L"1"); // 0: month, day, year
    const auto isWeekday = [](const FormatPiece& piece) { return piece.field == L'd' && piece.count > 2; };
    m_date = WithShortMonth(Without(Split(Ask(LOCALE_SLONGDATE, L"d MMMM yyyy")), isWeekday));
    m_monthDay = WithShortMonth(Split(Ask(kMonthDayFormat, order == L"0" ? L"MMMM d" : L"d MMMM")));
    m_seconds = Split(Ask(LOCALE_STIMEFORMAT, L"HH:mm:ss"));
    m_minutes = Without(m_seconds, Is(L's'));
    const bool hasHalves = std::any_of(m_minutes.begin(), m_minutes.end(), Is(L't'));
    m_hours = hasHalves ? Without(m_minutes, Is(L'm')) : m_minutes;
    m_decimal = Ask(LOCALE_SDECIMAL, L".");
    m_am = Ask(LOCALE_S1159, L"AM");
    m_pm = Ask(LOCALE_S2359, L"PM");
    for (int i = 0; i < 12; ++i)
        m_months[i] = Ask(LOCALE_SABBREVMONTHNAME1 + static_cast<LCTYPE>(i), Number(i + 1, 2).c_str());
}

std::wstring TickTexts::Field(const FormatPiece& piece, const CalendarStamp& stamp) const {
    const int digits = std::min(piece.count, 2);
    switch (piece.field) {
    case L'd':
        return Number(stamp.day, digits);
    case L'M':
        return piece.count > 2 ? m_months[stamp.month - 1] : Number(stamp.month, digits);
    case L'y':
        return Number(stamp.year, 4); // also where the locale shortens years: 1926 is not 2026
    case L'h':
        return Number((stamp.hour + 11) % 12 + 1, digits);
    case L'H':
        return Number(stamp.hour, digits);
    case L'm':
        return Number(stamp.minute, digits);
    case L's':
        return Number(stamp.second, digits);
    case L't':
        return stamp.hour < 12 ? m_am : m_pm;
    default:
        return piece.text;
    }
}

CString TickTexts::Text(const Format& format, const CalendarStamp& stamp, int nano, int digits) const {
    std::wstring text;
    for (const FormatPiece& piece : format) {
        text += Field(piece, stamp);
        if (piece.field == L's' && digits > 0)
            text += m_decimal + Number(nano, 9).substr(0, static_cast<std::size_t>(digits));
    }
    return CString(text.c_str());
}

CString TickTexts::Label(const TimeStep& step, const TimeTick& tick) const {
    CString text;
    if (step.unit == TimeStep::Unit::Day) {
        text = Text(m_monthDay, tick.local);
    } else if (step.unit == TimeStep::Unit::Month) {
        text =
            CString((step.IsYears() ? Number(tick.local.year, 4) : m_months[tick.local.month - 1]).c_str());
    } else if (step.IsBelowMillisecond()) {
        text = Text({{L's', 2, {}}}, tick.local, tick.nano, step.FractionDigits());
    } else {
        const bool hasSeconds = step.unit == TimeStep::Unit::Nanosecond || step.count < 60;
        text = Text(hasSeconds         ? m_seconds
                    : IsHourStep(step) ? m_hours
                                       : m_minutes,
                    tick.local, tick.nano, step.FractionDigits());
    }
    return tick.isRepeated ? text + Mark() : text;
}

CString TickTexts::Period(const TimeStep& step, const CalendarStamp& stamp) const {
    if (step.IsYears())
        return CString();
    if (step.IsBelowMillisecond())
        return Full(stamp, 0, 0);
    return step.IsBelowDay() ? Text(m_date, stamp) : CString(Number(stamp.year, 4).c_str());
}

std::vector<CString> TickTexts::WidestLabels(const TimeStep& step) const {
    std::vector<CString> texts;
    TimeTick tick;
    tick.nano = 999999999;
    if (step.IsBelowDay()) {
        for (const int hour : {10, 22}) {
            tick.local = {2000, 10, 28, hour, 58, 58};
            texts.push_back(Label(step, tick));
        }
        return texts;
    }
    for (int month = 1; month <= 12; ++month) {
        tick.local = {2000, month, 28, 0, 0, 0};
        texts.push_back(Label(step, tick));
    }
    return texts;
}

std::vector<CString> TickTexts::WidestPeriods(const TimeStep& step) const {
    std::vector<CString> texts;
    for (int month = 1; month <= (step.IsBelowDay() ? 12 : 1); ++month)
        texts.push_back(Period(step, {2000, month, 28, 22, 58, 58}));
    return texts;
}

CString TickTexts::Full(const CalendarStamp& stamp, int nano, int digits) const {
    return Text(m_date, stamp) + _T(" ") + Text(m_seconds, stamp, nano, digits);
}

} // namespace kavlix
