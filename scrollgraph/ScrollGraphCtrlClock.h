#pragma once

#include <afxwin.h>

#include <map>
#include <optional>

#include "scrollgraph/core/TimeTicks.h"

namespace kavlix {

/// The rules of the system's time zone, year by year. Asking the system for a year's rules takes hundreds of
/// times as long as drawing the label that needs them, so what it told is kept for as long as it keeps that
/// zone.
class ZoneRules {
public:
    /// Looks which zone the system keeps now, which is cheap. The rules of another one are forgotten.
    void Refresh();
    /// Those of `year`; without any from the system those of UTC.
    const TIME_ZONE_INFORMATION& OfYear(WORD year);

private:
    DYNAMIC_TIME_ZONE_INFORMATION m_zone = {};
    std::map<WORD, TIME_ZONE_INFORMATION> m_years;
};

/// The local time of this system, in the zone that it keeps when the clock is made.
class SystemClock : public LocalClock {
public:
    /// `rules` must outlive the clock and may serve many, one after the other.
    explicit SystemClock(ZoneRules& rules) : m_rules(rules) { m_rules.Refresh(); }

    CalendarTime ToLocal(std::int64_t time) const override;
    /// Seconds since 1970-01-01 00:00 UTC at a local time; none when the calendar has no such day or clock no
    /// such time. A time that daylight saving leaves out or repeats is one that the system takes it for.
    std::optional<std::int64_t> FromLocal(const CalendarTime& local) const;

private:
    ZoneRules& m_rules;
};

} // namespace kavlix
