// SPDX-License-Identifier: MIT
// The instants at which a zone's offset changes, year by year.
#include "plot/ZoneOffsets.h"

#include <algorithm>

namespace kavlix {
namespace {

/// Local seconds of a change in `year`, counted from 1970-01-01 00:00.
std::int64_t LocalTimeOf(const ClockChange& change, int year) {
    const int lastDay = DaysInMonth(year, change.month);
    int day = std::clamp(change.day, 1, lastDay);
    if (change.nth > 0) {
        const int first = WeekdayOf(DaysFromDate(year, change.month, 1));
        day = 1 + (change.weekday - first + 7) % 7 + (change.nth - 1) * 7;
        while (day > lastDay)
            day -= 7;
    }
    return DaysFromDate(year, change.month, day) * kSecondsPerDay + change.second;
}

/// The offsets inside a year by its own rules: the one at its first instant, and the changes that follow.
struct YearOffsets {
    int first = 0;
    std::vector<OffsetChange> changes;

    YearOffsets(const ZoneYear& rules, int year) : first(rules.standardOffset) {
        if (rules.toStandard.month == 0 || rules.toDaylight.month == 0)
            return;
        const std::int64_t standard = LocalTimeOf(rules.toStandard, year);
        const std::int64_t daylight = LocalTimeOf(rules.toDaylight, year);
        const std::int64_t begin = DaysFromDate(year, 1, 1) * kSecondsPerDay;
        const std::int64_t end = DaysFromDate(year + 1, 1, 1) * kSecondsPerDay;
        const bool beginsInDaylight = standard < daylight;
        int offset = first = beginsInDaylight ? rules.daylightOffset : rules.standardOffset;
        for (const bool isDaylight : {!beginsInDaylight, beginsInDaylight}) {
            const std::int64_t local = isDaylight ? daylight : standard;
            if (local >= end)
                break;
            const std::int64_t time = local - offset;
            offset = isDaylight ? rules.daylightOffset : rules.standardOffset;
            if (local <= begin)
                first = offset;
            else if (changes.empty() || time > changes.back().time)
                changes.push_back({time, offset});
        }
    }

    int Last() const { return changes.empty() ? first : changes.back().offset; }
};

} // namespace

const ZoneOffsets::Offsets& ZoneOffsets::OfYear(int year) const {
    const auto known = m_years.find(year);
    if (known != m_years.end())
        return known->second;
    const YearOffsets before(m_rules ? m_rules(year - 1) : ZoneYear(), year - 1);
    YearOffsets own(m_rules ? m_rules(year) : ZoneYear(), year);
    const std::int64_t begin = DaysFromDate(year, 1, 1) * kSecondsPerDay - before.Last();
    Offsets offsets = {{begin, own.first}};
    for (const OffsetChange& change : own.changes)
        if (change.time > begin)
            offsets.push_back(change);
    return m_years.emplace(year, std::move(offsets)).first->second;
}

int ZoneOffsets::YearAt(std::int64_t time) const {
    const int year = StampOf(time).year;
    if (time < OfYear(year).front().time)
        return year - 1;
    return time >= OfYear(year + 1).front().time ? year + 1 : year;
}

int ZoneOffsets::At(std::int64_t time) const {
    if (!m_rules)
        return 0;
    const Offsets& offsets = OfYear(YearAt(time));
    const auto after = std::upper_bound(offsets.begin() + 1, offsets.end(), time,
                                        [](std::int64_t t, const OffsetChange& c) { return t < c.time; });
    return (after - 1)->offset;
}

std::vector<OffsetChange> ZoneOffsets::Changes(std::int64_t from, std::int64_t to) const {
    std::vector<OffsetChange> changes;
    if (!m_rules)
        return changes;
    int offset = At(from);
    const int last = YearAt(to);
    for (int year = YearAt(from); year <= last; ++year)
        for (const OffsetChange& change : OfYear(year))
            if (change.time > from && change.time <= to && change.offset != offset) {
                changes.push_back(change);
                offset = change.offset;
            }
    return changes;
}

std::int64_t ZoneOffsets::FirstInstant(std::int64_t local) const {
    if (!m_rules)
        return local;
    constexpr std::int64_t kLargestOffset = 26 * 3600;
    std::int64_t begin = local - kLargestOffset;
    int offset = At(begin);
    for (const OffsetChange& change : Changes(begin, local + kLargestOffset)) {
        if (const std::int64_t time = std::max(begin, local - offset); time < change.time)
            return time;
        begin = change.time;
        offset = change.offset;
    }
    return std::max(begin, local - offset);
}

} // namespace kavlix
