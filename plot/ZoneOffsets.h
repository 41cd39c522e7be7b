// SPDX-License-Identifier: MIT
// The offsets of a time zone from UTC, found from the rules of its years.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "plot/Calendar.h"

namespace kavlix {

/// The moment of a year at which a clock changes, as the clock shows it before the change.
struct ClockChange {
    int month = 0;   ///< 1 to 12; 0: the clock does not change
    int weekday = 0; ///< 0 Sunday to 6 Saturday; ignored when `nth` is 0
    /// 1 to 4: this one of the month's weekdays; 5: the last one; 0: the change is at the date `day`
    int nth = 0;
    int day = 0;    ///< 1 to 31, used when `nth` is 0
    int second = 0; ///< seconds from midnight; 86400 is the end of the day
};

/// The rules of a zone for the local time of one year. Unless both changes are given, the whole year has
/// standard time.
struct ZoneYear {
    int standardOffset = 0; ///< local time minus UTC, seconds
    int daylightOffset = 0; ///< local time minus UTC, seconds, in daylight saving time
    ClockChange toStandard;
    ClockChange toDaylight;
};

/// From the instant `time` on (seconds since 1970-01-01 00:00 UTC) local time minus UTC is `offset` seconds.
struct OffsetChange {
    std::int64_t time = 0;
    int offset = 0;
};

/// Offsets of a zone from UTC. Each year can have rules of its own; they hold from the year's first instant by
/// the rules of the year before. A change at the first or the last instant of a year belongs to that border:
/// the year has the other time from its first to its last instant. All results are kept by year.
class ZoneOffsets {
public:
    /// The rules of a year. Called at most twice for the same year.
    using Rules = std::function<ZoneYear(int year)>;

    ZoneOffsets() = default; ///< UTC
    explicit ZoneOffsets(Rules rules) : m_rules(std::move(rules)) {}

    /// Local time minus UTC at the instant `time`, seconds.
    int At(std::int64_t time) const;
    CalendarStamp ToLocal(std::int64_t time) const { return StampOf(time + At(time)); }
    /// The changes of the offset after the instant `from` and until `to`, inclusive, in order. The years in
    /// between are looked at one by one.
    std::vector<OffsetChange> Changes(std::int64_t from, std::int64_t to) const;
    /// The first instant at which the local clock shows `local` (seconds as SecondsOf) or, where it never does,
    /// a later time.
    std::int64_t FirstInstant(std::int64_t local) const;

    /// Whether the local clock shows the time of this instant again, because it was set back.
    bool IsRepeated(std::int64_t time) const { return FirstInstant(time + At(time)) < time; }

private:
    /// Offsets of one year; the first one holds from the year's first instant.
    using Offsets = std::vector<OffsetChange>;
    const Offsets& OfYear(int year) const;
    /// The year whose rules hold at `time`.
    int YearAt(std::int64_t time) const;

    Rules m_rules;
    mutable std::map<int, Offsets> m_years;
};

} // namespace kavlix
