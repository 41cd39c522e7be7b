// SPDX-License-Identifier: MIT
// Tick steps, ticks and labels of the time axis.
#pragma once

#include <cstdint>
#include <string>

#include "scrollgraph/core/LocalClock.h"

namespace kavlix {

/// The shortest tick step, in seconds, of the table of round durations (5 s to 2 h) that leaves at most
/// `maxTicks` + 1 whole steps in `secondsInView`; 3 h when none does.
int SelectTickStep(int secondsInView, int maxTicks);

/// Seconds from a local time to the next multiple of `step`; 0 when the time is a multiple. Multiples are
/// counted from the start of the minute for a `step` below a minute, from the start of the hour for a `step`
/// below an hour, and from the start of the day for a longer one. `step` is above 0, in seconds; from a
/// minute on it is truncated to whole minutes, from an hour on to whole hours.
int SecondsToRoundTime(const CalendarTime& time, int step);
/// The three cases of SecondsToRoundTime: a step in seconds, counted from the start of the minute; in
/// minutes, from the start of the hour; in hours, from the start of the day.
int SecondsToRoundSecond(const CalendarTime& time, int seconds);
int SecondsToRoundMinute(const CalendarTime& time, int minutes);
int SecondsToRoundHour(const CalendarTime& time, int hours);

// The texts of a time label run upwards. In a label with a date the clock time stands at the tick.

/// Logical units from a tick leftwards to the left edge of its clock time, in a label without a date.
inline constexpr int kClockShift = 110;
/// Logical units from a tick rightwards to the right edge of its date.
inline constexpr int kDateShift = 70;

/// Iterates over the labels of a time axis, left to right. Ticks are counted from 0 and stand at equal
/// distances in true time, whatever the local clock does: at the end of daylight saving the labels show the
/// repeated hour twice.
///
/// If the ticks are far enough apart for their labels, every tick has a label. Otherwise only ticks at
/// multiples, in local time, of a longer round duration have a label: a duration of two steps or more, up to
/// whole days and weeks. Durations above a day are counted from the midnight of the first label. If no tick
/// stands exactly at a multiple, the first tick after the multiple has the label.
class TimeTicks {
public:
    /// `clock` must outlive the ticks. Tick 0 is the first round time from `start` (seconds since 1970) on.
    /// `step` is a result of SelectTickStep. `spacing` of two ticks and `textHeight` of a label are in
    /// logical units.
    TimeTicks(const LocalClock& clock, std::int64_t start, int step, int spacing, int textHeight);

    /// Seconds from the start to tick 0.
    int FirstOffset() const { return m_firstOffset; }

    /// Number of the tick that the current label belongs to.
    std::int64_t Tick() const { return m_tick; }
    /// Full time text of the label.
    const std::string& Text() const { return m_text; }
    std::string Date() const { return m_text.substr(0, kDateLength); }
    std::string Clock() const { return m_text.substr(m_text.size() - kClockLength); }
    /// Whether the label shows its date: the first label does, and every label with another date than the
    /// label before.
    bool ShowsDate() const { return m_showsDate; }

    /// Moves to the next label.
    void Next();
    /// Moves forward to the first label that is not before `tick`.
    void GoTo(std::int64_t tick);

private:
    void Show(std::int64_t tick);

    const LocalClock& m_clock;
    std::int64_t m_step; ///< seconds between two ticks
    /// Seconds. When not every tick has a label, labels stand at multiples of this duration in local time.
    int m_round = 1;
    int m_firstOffset;
    std::int64_t m_time;      ///< time of tick 0, seconds since 1970-01-01 00:00 UTC
    std::int64_t m_every = 1; ///< every m_every-th tick may have a label
    std::int64_t m_tick = 0;
    std::string m_text;
    bool m_showsDate = true;
};

} // namespace kavlix
