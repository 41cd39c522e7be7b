#pragma once

#include <cstdint>
#include <string>

namespace kavlix {

/// A moment as calendar and clock show it.
struct CalendarTime {
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// What tells local time from seconds since 1970-01-01 00:00 UTC.
class LocalClock {
public:
    virtual ~LocalClock() = default;
    virtual CalendarTime ToLocal(std::int64_t time) const = 0;
};

/// "YYYY/MM/DD hh:mm:ss", the full time text.
std::string FullTimeText(const CalendarTime& time);
/// Of a full time text: "YYYY/MM/DD" and "hh:mm:ss".
inline constexpr int kDateLength = 10;
inline constexpr int kClockLength = 8;
/// In the date of a full time text: where "MM/DD" begins.
inline constexpr int kMonthAt = 5;

/// The shortest tick step, in seconds, of the table of round durations (5 s to 2 h) that leaves at most
/// `maxTicks` + 1 whole steps in `secondsInView`; 3 h when none does.
int SelectTickStep(int secondsInView, int maxTicks);

/// Seconds from a local time to the next one that is a round multiple of `step`, which is above 0 and as the
/// table has them: of its seconds below a minute, of its minutes below an hour, else of its hours. 0 when the
/// time is round already.
int SecondsToRoundTime(const CalendarTime& time, int step);
/// The same for a step in whole seconds, minutes or hours.
int SecondsToRoundSecond(const CalendarTime& time, int seconds);
int SecondsToRoundMinute(const CalendarTime& time, int minutes);
int SecondsToRoundHour(const CalendarTime& time, int hours);

/// Where the upright texts of a time label stand, in logical units. A clock time alone stands kClockShift
/// left of its tick. Beside a date the clock time stands at the tick, and the date's lower edge kDateShift
/// right of it.
inline constexpr int kClockShift = 110;
inline constexpr int kDateShift = 70;

/// The ticks of a time axis, counted from 0, and their labels, left to right. Time goes on by the step
/// whatever the local clock does: across the end of daylight saving the labels tell the repeated hour twice,
/// and none stands still.
///
/// Every tick has a label where there is room for it. Where labels would touch, only the first tick from each
/// multiple of a longer round duration on has one (twice the step and more, whole days, weeks), in local
/// time.
class TimeTicks {
public:
    /// @param clock must outlive the ticks
    /// @param start seconds since 1970 from which the first tick is looked for
    /// @param step of SelectTickStep
    /// @param spacing of two ticks, logical units
    /// @param textHeight of a label, logical units
    TimeTicks(const LocalClock& clock, std::int64_t start, int step, int spacing, int textHeight);

    /// Seconds from the start to tick 0.
    int FirstOffset() const { return m_firstOffset; }

    /// The tick that the label belongs to.
    std::int64_t Tick() const { return m_tick; }
    /// Full time text of the label.
    const std::string& Text() const { return m_text; }
    std::string Date() const { return m_text.substr(0, kDateLength); }
    std::string Clock() const { return m_text.substr(m_text.size() - kClockLength); }
    /// Whether the label is the first, or its date another than that of the label before.
    bool ShowsDate() const { return m_showsDate; }

    /// Goes on to the next label.
    void Next();
    /// Goes on to the first label not before `tick`.
    void GoTo(std::int64_t tick);

private:
    void Show(std::int64_t tick);

    const LocalClock& m_clock;
    std::int64_t m_step;
    int m_round = 1; ///< seconds of local time, whose multiples labels stand at, where not every tick has one
    int m_firstOffset;
    std::int64_t m_time;      ///< of tick 0
    std::int64_t m_every = 1; ///< every m_every-th tick may have a label
    std::int64_t m_tick = 0;
    std::string m_text;
    bool m_showsDate = true;
};

} // namespace kavlix
