// Tick steps, ticks and labels of the time axis.
#pragma once

#include <cstdint>
#include <string>

namespace kavlix {

/// A date and a time of day.
struct CalendarTime {
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Converts seconds since 1970-01-01 00:00 UTC to local time.
class LocalClock {
public:
    virtual ~LocalClock() = default;
    virtual CalendarTime ToLocal(std::int64_t time) const = 0;
};

/// The full time text, "YYYY/MM/DD hh:mm:ss".
std::string FullTimeText(const CalendarTime& time);
inline constexpr int kDateLength = 10; ///< of "YYYY/MM/DD" in a full time text
inline constexpr int kClockLength = 8; ///< of "hh:mm:ss" in a full time text
inline constexpr int kMonthAt = 5;     ///< index of "MM/DD" in a full time text

/// The shortest tick step, in seconds, of the table of round durations (5 s to 2 h) that leaves at most
/// `maxTicks` + 1 whole steps in `secondsInView`; 3 h when none does.
int SelectTickStep(int secondsInView, int maxTicks);

/// Seconds from a local time to the next multiple of `step`; 0 when the time is a multiple. A `step` below a
/// minute counts multiples of seconds, a `step` below an hour multiples of minutes, a longer one multiples of
/// hours. `step` is above 0, in seconds, as SelectTickStep returns it.
int SecondsToRoundTime(const CalendarTime& time, int step);
/// Seconds from a local time to the next multiple of a step in seconds, in minutes, and in hours.
int SecondsToRoundSecond(const CalendarTime& time, int seconds);
int SecondsToRoundMinute(const CalendarTime& time, int minutes);
int SecondsToRoundHour(const CalendarTime& time, int hours);

// Places of the upright texts of a time label, logical units. A label with a date has its clock time at the
// tick.
inline constexpr int kClockShift = 110; ///< from a clock time without a date to its tick on the right
inline constexpr int kDateShift = 70;   ///< from the tick to the lower edge of a date on the right

/// Iterates over the labels of a time axis, left to right. Ticks are counted from 0 and advance in true time,
/// whatever the local clock does: at the end of daylight saving the labels show the repeated hour twice.
///
/// Every tick has a label where labels have room. Where labels would touch, only ticks at multiples of a
/// longer round duration in local time (twice the step and more, whole days, weeks) have one. Where no tick
/// stands exactly at such a multiple, the first tick after the multiple has the label.
class TimeTicks {
public:
    /// `clock` must outlive the ticks. Tick 0 is the first round time from `start` (seconds since 1970) on.
    /// `step` is a result of SelectTickStep. `spacing` of two ticks and `textHeight` of a label are in
    /// logical units.
    TimeTicks(const LocalClock& clock, std::int64_t start, int step, int spacing, int textHeight);

    /// Seconds from the start to tick 0.
    int FirstOffset() const { return m_firstOffset; }

    /// Number of the label's tick.
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
    std::int64_t m_step;
    int m_round = 1; ///< seconds; labels stand at multiples of it in local time, where not every tick has one
    int m_firstOffset;
    std::int64_t m_time;      ///< of tick 0
    std::int64_t m_every = 1; ///< every m_every-th tick may have a label
    std::int64_t m_tick = 0;
    std::string m_text;
    bool m_showsDate = true;
};

} // namespace kavlix
