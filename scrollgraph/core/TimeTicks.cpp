// SPDX-License-Identifier: MIT
// TimeTicks: round steps in local time, and the choice of ticks with labels.
#include "scrollgraph/core/TimeTicks.h"

#include <algorithm>
#include <iterator>

namespace kavlix {
namespace {

constexpr int kMinute = 60;
constexpr int kHour = 3600;
constexpr int kSteps[] = {5, 10, 20, 30, 60, 120, 180, 300, 600, 900, 1200, 1800, 3600, 7200};
constexpr int kLongestStep = 10800;
constexpr int kDay = 86400;
constexpr int kWeek = 7 * kDay;

/// The difference from `value` to the next larger multiple of `step`; a whole step when `value` is a
/// multiple.
int ToNextMultiple(int value, int step) {
    return (value / step + 1) * step - value;
}

/// The next longer round duration after `seconds`: from kSteps, then 3, 6 and 12 hours, 1 and 2 days, 1 week,
/// and from there each twice as long as the one before.
std::int64_t LongerRoundTime(std::int64_t seconds) {
    const auto longer = std::upper_bound(std::begin(kSteps), std::end(kSteps), seconds);
    if (longer != std::end(kSteps))
        return *longer;
    return seconds < kLongestStep ? kLongestStep : seconds == 2 * kDay ? kWeek : 2 * seconds;
}

/// The smallest distance, in logical units, between ticks at which neighbouring labels do not touch.
/// `allDated`: every label has a date; otherwise labels with and without dates are neighbours.
int LabelDistance(bool allDated, int textHeight) {
    const int left = kDateShift - textHeight; // left edge of a date, relative to the tick
    return allDated ? textHeight - left : std::max(textHeight - kClockShift - left, textHeight + kClockShift);
}

/// Seconds between two labels. `spacing` of two ticks and `textHeight` are in logical units.
std::int64_t LabelStep(int step, int spacing, int textHeight) {
    // Between ticks of a step in kSteps the height of a text is distance enough, because few of their labels
    // have dates. With the longest step every eighth label has a date.
    if (spacing <= 0 || (step < kLongestStep && spacing >= textHeight))
        return step;
    const auto fits = [=](std::int64_t seconds) {
        return seconds % step == 0 && seconds / step * spacing >= LabelDistance(seconds >= kDay, textHeight);
    };
    std::int64_t seconds = step;
    while (!fits(seconds))
        seconds = LongerRoundTime(seconds);
    return seconds;
}

} // namespace

int SelectTickStep(int secondsInView, int maxTicks) {
    const auto fits = [=](int step) { return secondsInView / step <= std::int64_t{maxTicks} + 1; };
    const auto found = std::find_if(std::begin(kSteps), std::end(kSteps), fits);
    return found != std::end(kSteps) ? *found : kLongestStep;
}

int SecondsToRoundSecond(const CalendarTime& time, int seconds) {
    return time.second % seconds == 0 ? 0 : ToNextMultiple(time.second, seconds);
}

int SecondsToRoundMinute(const CalendarTime& time, int minutes) {
    return time.second == 0 && time.minute % minutes == 0
               ? 0
               : ToNextMultiple(time.minute, minutes) * kMinute - time.second;
}

int SecondsToRoundHour(const CalendarTime& time, int hours) {
    return time.second == 0 && time.minute == 0 && time.hour % hours == 0
               ? 0
               : (ToNextMultiple(time.hour, hours) * kMinute - time.minute) * kMinute - time.second;
}

int SecondsToRoundTime(const CalendarTime& time, int step) {
    if (step >= kHour)
        return SecondsToRoundHour(time, step / kHour);
    return step >= kMinute ? SecondsToRoundMinute(time, step / kMinute) : SecondsToRoundSecond(time, step);
}

TimeTicks::TimeTicks(const LocalClock& clock, std::int64_t start, int step, int spacing, int textHeight)
    : m_clock(clock), m_step(step), m_firstOffset(SecondsToRoundTime(clock.ToLocal(start), step)),
      m_time(start + m_firstOffset) {
    const std::int64_t labelStep = LabelStep(step, spacing, textHeight);
    m_every = labelStep / step;
    m_round = static_cast<int>(std::min<std::int64_t>(labelStep, kDay));
    Show(m_every > 1 ? SecondsToRoundTime(clock.ToLocal(m_time), m_round) / step : 0);
}

/// Moves to the label of `tick`. After daylight saving begins or ends, a tick other than `tick` can stand at
/// the round time; the label then moves to that other tick.
void TimeTicks::Show(std::int64_t tick) {
    m_tick = tick;
    CalendarTime local = m_clock.ToLocal(m_time + m_tick * m_step);
    if (m_every > 1) {
        const int missing = SecondsToRoundTime(local, m_round);
        const int passed = missing == 0 ? 0 : m_round - missing;
        const std::int64_t away = missing < passed ? (missing + m_step - 1) / m_step : -(passed / m_step);
        if (away != 0)
            local = m_clock.ToLocal(m_time + (m_tick += away) * m_step);
    }
    m_text = FullTimeText(local);
}

void TimeTicks::Next() {
    const std::string before = Date();
    Show(m_tick + m_every);
    m_showsDate = Date() != before;
}

void TimeTicks::GoTo(std::int64_t tick) {
    // Skip most labels at once. A change of the local clock moves a label by less than the distance between
    // two labels.
    if (tick - m_tick > 3 * m_every)
        Show(m_tick + ((tick - m_tick) / m_every - 2) * m_every);
    while (m_tick < tick)
        Next();
}

} // namespace kavlix
