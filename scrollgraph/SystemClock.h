// SPDX-License-Identifier: MIT
// LocalClock for the system's time zone, and a cache of the zone's rules.
#pragma once

#include <afxwin.h>

#include <map>
#include <optional>

#include "scrollgraph/core/LocalClock.h"

namespace kavlix {

/// Cache of the rules of the system's time zone, year by year. Asking the system for a year's rules takes
/// hundreds of times as long as drawing the label that needs them.
class ZoneRules {
public:
    /// Compares the system's present zone with the cached one, which is cheap; clears the cache when they
    /// differ.
    void Refresh();
    /// The rules of `year`; the zone's present rules when the system has none for that year, and UTC in an
    /// unknown zone.
    const TIME_ZONE_INFORMATION& OfYear(WORD year);

private:
    DYNAMIC_TIME_ZONE_INFORMATION m_zone = {};
    std::map<WORD, TIME_ZONE_INFORMATION> m_years;
};

/// The system's local time, in the zone that is set when the clock is constructed.
class SystemClock : public LocalClock {
public:
    /// `rules` must outlive the clock. Several clocks may use the same rules, one after the other.
    explicit SystemClock(ZoneRules& rules) : m_rules(rules) { m_rules.Refresh(); }

    /// 1970-01-01 00:00:00 for a time that the system cannot convert.
    CalendarTime ToLocal(std::int64_t time) const override;
    /// Seconds since 1970-01-01 00:00 UTC at a local time; none when the calendar has no such day or the
    /// clock no such time. For a time that daylight saving skips or repeats, the system chooses the moment.
    std::optional<std::int64_t> FromLocal(const CalendarTime& local) const;

private:
    ZoneRules& m_rules;
};

} // namespace kavlix
