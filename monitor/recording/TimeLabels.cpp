// SPDX-License-Identifier: MIT
// Chooses form and precision of the time labels, and writes them.

#include "monitor/recording/TimeLabels.h"

#include <algorithm>

namespace kavlix::recording {
namespace {

// Logical units. The control's X label font is 300 high, its digits are about 150 wide, and the labels begin
// 100 below the axis.
constexpr int kCharWidth = 160;
constexpr int kBandMargin = 200;

bool IsMidnight(Time time) {
    return time % kMicrosPerDay == 0;
}

bool IsFirstOfMonth(Time time) {
    return ToCivil(time).day == 1;
}

bool IsNewYear(Time time) {
    const CivilTime civil = ToCivil(time);
    return civil.day == 1 && civil.month == 1;
}

template <typename Test> bool All(const std::vector<Time>& times, Test test) {
    return std::all_of(times.begin(), times.end(), test);
}

TimeLabelStyle::Form ChooseForm(const std::vector<Time>& times, int labels) {
    using Form = TimeLabelStyle::Form;
    if (times.empty())
        return Form::Clock;
    if (!All(times, IsMidnight)) {
        const Time span = times.back() - times.front();
        if (span / std::max(labels, 1) >= kMicrosPerDay)
            return Form::Date;
        return FormatDate(times.front()) == FormatDate(times.back()) ? Form::Clock : Form::DayAndClock;
    }
    if (times.size() < 2 || !All(times, IsFirstOfMonth))
        return Form::Date;
    return All(times, IsNewYear) ? Form::Year : Form::Month;
}

/// The precision that distinguishes the times, but not finer than is useful for their span.
TimePrecision ChoosePrecision(const std::vector<Time>& times) {
    if (times.empty())
        return TimePrecision::Seconds;
    const Time span = times.back() - times.front();
    const bool minutes = All(times, [](Time time) { return time % kMicrosPerMinute == 0; });
    if (minutes || span >= 3 * kMicrosPerDay)
        return TimePrecision::Minutes;
    if (span >= 10 * kMicrosPerMinute || All(times, [](Time time) { return time % kMicrosPerSecond == 0; }))
        return TimePrecision::Seconds;
    if (span >= 10 * kMicrosPerSecond || All(times, [](Time time) { return time % 1000 == 0; }))
        return TimePrecision::Millis;
    return TimePrecision::Micros;
}

} // namespace

TimeLabelStyle ChooseTimeLabels(const std::vector<Time>& times, int labels) {
    TimeLabelStyle style;
    style.form = ChooseForm(times, labels);
    style.precision = ChoosePrecision(times);
    style.chars = static_cast<int>(MakeTimeLabel(style, 0).size());
    style.bandHeight = kBandMargin + kCharWidth * style.chars;
    return style;
}

std::string MakeTimeLabel(const TimeLabelStyle& style, Time time) {
    using Form = TimeLabelStyle::Form;
    constexpr std::size_t year = 5; // length of `2013-`
    const std::string date = FormatDate(time);
    switch (style.form) {
    case Form::Clock:
        break;
    case Form::DayAndClock:
        return date.substr(year) + ' ' + FormatClock(time, style.precision);
    case Form::Date:
        return date;
    case Form::Month:
        return date.substr(0, 7); // `2013-12`
    case Form::Year:
        return date.substr(0, 4);
    }
    return FormatClock(time, style.precision);
}

std::string TimeAxisTitle(const std::vector<Time>& times, const TimeLabelStyle& style, bool zoned) {
    if (times.empty())
        return "Time";
    const auto written = [&](Time time) {
        const bool clock = style.form == TimeLabelStyle::Form::DayAndClock;
        return clock ? FormatDateTime(time, style.precision) : MakeTimeLabel(style, time);
    };
    std::string title = FormatDate(times.front());
    if (style.form != TimeLabelStyle::Form::Clock) {
        const std::string first = written(times.front());
        const std::string last = written(times.back());
        title = first == last ? first : first + " to " + last;
    }
    return zoned ? title + " (UTC)" : title;
}

} // namespace kavlix::recording
