#pragma once

#include "mfc/base/FileTime.h"

// Local time of the system's zone, with the daylight-saving rules of the year in question. The C library's
// own zone is not asked: it reads the TZ variable in a form of its own and answers nothing before 1970.

/// The zone's rules of a year. FALSE if the system has none.
inline bool ZoneOfYear(WORD year, TIME_ZONE_INFORMATION& zone) {
    return ::GetTimeZoneInformationForYear(year, nullptr, &zone) != 0 ||
           ::GetTimeZoneInformation(&zone) != TIME_ZONE_ID_INVALID;
}

inline bool LocalFromUtc(const SYSTEMTIME& utc, SYSTEMTIME& local) {
    TIME_ZONE_INFORMATION zone;
    if (!ZoneOfYear(utc.wYear, zone) || !::SystemTimeToTzSpecificLocalTime(&zone, &utc, &local))
        return false;
    // Around New Year the local date may lie in another year, which may have other rules.
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
