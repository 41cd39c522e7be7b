// SPDX-License-Identifier: MIT
// Local time by the rules of the system's time zone.
#include "scrollgraph/SystemClock.h"

#include "gdi/SystemZone.h"

namespace kavlix {
namespace {

constexpr std::int64_t kTicksPerSecond = 10000000;   // of a FILETIME
constexpr std::int64_t kSecondsTo1970 = 11644473600; // from 1601-01-01, where FILETIME begins

/// The UTC calendar time of `time`, in seconds since 1970-01-01 00:00 UTC; none before 1601, and none beyond
/// the range of a FILETIME.
std::optional<SYSTEMTIME> UtcOf(std::int64_t time) {
    constexpr std::int64_t last = INT64_MAX / kTicksPerSecond - kSecondsTo1970;
    if (time < -kSecondsTo1970 || time > last)
        return std::nullopt;
    const auto ticks = static_cast<std::uint64_t>((time + kSecondsTo1970) * kTicksPerSecond);
    const FILETIME fileTime = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME utc = {};
    if (!::FileTimeToSystemTime(&fileTime, &utc))
        return std::nullopt;
    return utc;
}

std::optional<std::int64_t> TimeOf(const SYSTEMTIME& utc) {
    FILETIME fileTime = {};
    if (!::SystemTimeToFileTime(&utc, &fileTime))
        return std::nullopt;
    const std::uint64_t ticks = std::uint64_t{fileTime.dwHighDateTime} << 32 | fileTime.dwLowDateTime;
    return static_cast<std::int64_t>(ticks) / kTicksPerSecond - kSecondsTo1970;
}

} // namespace

void ZoneRules::Refresh() {
    const DYNAMIC_TIME_ZONE_INFORMATION zone = LocalZone();
    if (AreEqual(zone, m_zone))
        return;
    m_years.clear();
    m_zone = zone;
}

const TIME_ZONE_INFORMATION& ZoneRules::OfYear(WORD year) {
    const auto known = m_years.find(year);
    if (known != m_years.end())
        return known->second;
    return m_years.emplace(year, RulesOfYear(m_zone, year)).first->second;
}

CalendarTime SystemClock::ToLocal(std::int64_t time) const {
    CalendarTime result{1970, 1, 1, 0, 0, 0};
    const std::optional<SYSTEMTIME> utc = UtcOf(time);
    SYSTEMTIME local = {};
    if (!utc || !::SystemTimeToTzSpecificLocalTime(&m_rules.OfYear(utc->wYear), &*utc, &local))
        return result;
    // Around New Year the local date can lie in another year than the UTC date, and the rules of that year
    // can differ.
    if (local.wYear != utc->wYear)
        ::SystemTimeToTzSpecificLocalTime(&m_rules.OfYear(local.wYear), &*utc, &local);
    result = {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
    return result;
}

std::optional<std::int64_t> SystemClock::FromLocal(const CalendarTime& local) const {
    SYSTEMTIME wall = {};
    wall.wYear = static_cast<WORD>(local.year);
    wall.wMonth = static_cast<WORD>(local.month);
    wall.wDay = static_cast<WORD>(local.day);
    wall.wHour = static_cast<WORD>(local.hour);
    wall.wMinute = static_cast<WORD>(local.minute);
    wall.wSecond = static_cast<WORD>(local.second);
    // Some systems accept the 30th of February and make it a day in March. So convert the date and compare
    // the day.
    const std::optional<std::int64_t> asUtc = TimeOf(wall);
    const std::optional<SYSTEMTIME> back = asUtc ? UtcOf(*asUtc) : std::nullopt;
    SYSTEMTIME utc = {};
    if (!back || back->wDay != wall.wDay ||
        !::TzSpecificLocalTimeToSystemTime(&m_rules.OfYear(wall.wYear), &wall, &utc))
        return std::nullopt;
    return TimeOf(utc);
}

} // namespace kavlix
