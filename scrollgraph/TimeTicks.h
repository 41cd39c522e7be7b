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

/// The ticks of a time axis, left to right. Time goes on by the step whatever the local clock does: across
/// the end of daylight saving the labels tell the repeated hour twice, and none stands still.
class TimeTicks {
public:
    /// @param clock must outlive the ticks
    /// @param start seconds since 1970 from which the first tick is looked for
    /// @param step of SelectTickStep
    /// @param every of so many steps one gets a tick; the first tick stands where it would with every step
    TimeTicks(const LocalClock& clock, std::int64_t start, int step, int every = 1);

    /// Seconds from the start to the first tick.
    int FirstOffset() const { return m_firstOffset; }
    /// Full time text of the tick.
    const std::string& Text() const { return m_text; }
    std::string Date() const { return m_text.substr(0, kDateLength); }
    std::string Clock() const { return m_text.substr(m_text.size() - kClockLength); }
    /// Whether the tick is the first, or its date another than that of the tick before.
    bool ShowsDate() const { return m_showsDate; }

    void Next();

private:
    const LocalClock& m_clock;
    std::int64_t m_distance;
    int m_firstOffset;
    std::int64_t m_time;
    std::string m_text;
    bool m_showsDate = true;
};

} // namespace kavlix
