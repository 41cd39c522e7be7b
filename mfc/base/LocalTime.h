// SPDX-License-Identifier: MIT
// Local time of the system's zone, with the daylight-saving rules of the year.
#pragma once

#include "mfc/base/FileTime.h"

// The C library's conversions are not used: if the TZ variable is set, they read it in a format of their own,
// and they fail for times before 1970.

/// Gets the zone's daylight-saving rules for a year, else its present rules. Returns false on failure.
inline bool ZoneOfYear(WORD year, TIME_ZONE_INFORMATION& zone) {
    return ::GetTimeZoneInformationForYear(year, nullptr, &zone) != 0 ||
           ::GetTimeZoneInformation(&zone) != TIME_ZONE_ID_INVALID;
}

inline bool LocalFromUtc(const SYSTEMTIME& utc, SYSTEMTIME& local) {
    TIME_ZONE_INFORMATION zone;
    if (!ZoneOfYear(utc.wYear, zone) || !::SystemTimeToTzSpecificLocalTime(&zone, &utc, &local))
        return false;
    // Around New Year the local date can be in another year than the UTC date, with other rules.
    return local.wYear == utc.wYear || !ZoneOfYear(local.wYear, zone) ||
           ::SystemTimeToTzSpecificLocalTime(&zone, &utc, &local) != 0;
}

inline bool UtcFromLocal(const SYSTEMTIME& local, SYSTEMTIME& utc) {
    TIME_ZONE_INFORMATION zone;
    return ZoneOfYear(local.wYear, zone) && ::TzSpecificLocalTimeToSystemTime(&zone, &local, &utc) != 0;
}

/// Whether `local`, the local time of `utc`, is daylight-saving time.
inline bool IsDaylight(const SYSTEMTIME& utc, const SYSTEMTIME& local) {
    TIME_ZONE_INFORMATION zone;
    FILETIME a;
    FILETIME b;
    if (!ZoneOfYear(local.wYear, zone) || zone.StandardDate.wMonth == 0 ||
        !::SystemTimeToFileTime(&utc, &a) || !::SystemTimeToFileTime(&local, &b))
        return false;
    constexpr LONGLONG ticksPerMinute = 60 * kFileTicksPerSecond;
    const LONGLONG west = static_cast<LONGLONG>(TicksOf(a) - TicksOf(b)) / ticksPerMinute;
    return zone.DaylightBias != zone.StandardBias && west == zone.Bias + zone.DaylightBias;
}
