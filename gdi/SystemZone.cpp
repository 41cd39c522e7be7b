// SPDX-License-Identifier: MIT
// Asks Windows for time zones and their rules.
#include "gdi/SystemZone.h"

#include <cstring>
#include <cwchar>

namespace kavlix {
namespace {

bool AreEqual(const SYSTEMTIME& a, const SYSTEMTIME& b) {
    return std::memcmp(&a, &b, sizeof a) == 0; // eight WORDs without padding
}

} // namespace

DYNAMIC_TIME_ZONE_INFORMATION LocalZone() {
    DYNAMIC_TIME_ZONE_INFORMATION zone = {};
    if (::GetDynamicTimeZoneInformation(&zone) == TIME_ZONE_ID_INVALID)
        zone = {};
    return zone;
}

bool AreEqual(const DYNAMIC_TIME_ZONE_INFORMATION& a, const DYNAMIC_TIME_ZONE_INFORMATION& b) {
    return a.Bias == b.Bias && a.StandardBias == b.StandardBias && a.DaylightBias == b.DaylightBias &&
           AreEqual(a.StandardDate, b.StandardDate) && AreEqual(a.DaylightDate, b.DaylightDate) &&
           !a.DynamicDaylightTimeDisabled == !b.DynamicDaylightTimeDisabled &&
           std::wcscmp(a.TimeZoneKeyName, b.TimeZoneKeyName) == 0;
}

TIME_ZONE_INFORMATION RulesOfYear(DYNAMIC_TIME_ZONE_INFORMATION zone, WORD year) {
    TIME_ZONE_INFORMATION rules = {};
    if (!::GetTimeZoneInformationForYear(year, &zone, &rules)) {
        rules = {};
        rules.Bias = zone.Bias;
        rules.StandardBias = zone.StandardBias;
        rules.DaylightBias = zone.DaylightBias;
        rules.StandardDate = zone.StandardDate;
        rules.DaylightDate = zone.DaylightDate;
    }
    return rules;
}

} // namespace kavlix
