#include "scrollgraph/TimeTicks.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace kavlix {

namespace {

constexpr int kMinute = 60;
constexpr int kHour = 3600;
constexpr int kSteps[] = {5, 10, 20, 30, 60, 120, 180, 300, 600, 900, 1200, 1800, 3600, 7200};
constexpr int kLongestStep = 10800;

/// How much is missing to the next multiple of `step`, a whole step at a multiple itself.
int ToNextMultiple(int value, int step) {
    return (value / step + 1) * step - value;
}

} // namespace

std::string FullTimeText(const CalendarTime& time) {
    char text[80];
    std::snprintf(text, sizeof text, "%04d/%02d/%02d %02d:%02d:%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return text;
}

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

TimeTicks::TimeTicks(const LocalClock& clock, std::int64_t start, int step, int every)
    : m_clock(clock), m_distance(std::int64_t{step} * every),
      m_firstOffset(SecondsToRoundTime(clock.ToLocal(start), step)), m_time(start + m_firstOffset),
      m_text(FullTimeText(clock.ToLocal(m_time))) {
}

void TimeTicks::Next() {
    m_time += m_distance;
    const std::string before = Date();
    m_text = FullTimeText(m_clock.ToLocal(m_time));
    m_showsDate = Date() != before;
}

} // namespace kavlix
