// SPDX-License-Identifier: MIT
// Translates the rules of Windows' time zones.
#include "chartdraw/TimeZones.h"

#include <algorithm>
#include <string>

#include "gdi/SystemZone.h"
#include "gdi/Text.h"

namespace kavlix {
namespace {

constexpr int kSecondsPerMinute = 60; // biases are in minutes

ClockChange ChangeOf(const SYSTEMTIME& date, int year) {
    ClockChange change;
    // A date with a year happens once; other dates are "the second Sunday of March".
    const bool isAbsolute = date.wYear != 0;
    if (isAbsolute && date.wYear != year)
        return change;
    change.month = date.wMonth;
    change.weekday = date.wDayOfWeek;
    change.nth = isAbsolute ? 0 : date.wDay;
    change.day = date.wDay;
    // 23:59:59.999 stands for the end of the day.
    change.second = date.wHour * 3600 + date.wMinute * 60 + date.wSecond + (date.wMilliseconds > 0 ? 1 : 0);
    return change;
}

ZoneYear YearOf(const DYNAMIC_TIME_ZONE_INFORMATION& zone, int year) {
    constexpr int kFirstYear = 1601; // of Windows' calendar
    constexpr int kLastYear = 30827;
    const int known = std::clamp(year, kFirstYear, kLastYear);
    const TIME_ZONE_INFORMATION rules = RulesOfYear(zone, static_cast<WORD>(known));
    ZoneYear result;
    result.toStandard = ChangeOf(rules.StandardDate, known);
    result.toDaylight = ChangeOf(rules.DaylightDate, known);
    const bool hasChanges = result.toStandard.month != 0 && result.toDaylight.month != 0;
    // The biases of standard and daylight time count only in years with changes.
    result.standardOffset =
        -static_cast<int>(rules.Bias + (hasChanges ? rules.StandardBias : 0)) * kSecondsPerMinute;
    result.daylightOffset = -static_cast<int>(rules.Bias + rules.DaylightBias) * kSecondsPerMinute;
    return result;
}

bool IsKnown(const std::wstring& name) {
    if (name.find(L'\\') != std::wstring::npos)
        return false;
    const std::wstring key = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Time Zones\\" + name;
    HKEY handle = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, KEY_QUERY_VALUE, &handle) != ERROR_SUCCESS)
        return false;
    ::RegCloseKey(handle);
    return true;
}

} // namespace

AxisZone::AxisZone() {
    Use(LocalZone());
}

void AxisZone::Use(const DYNAMIC_TIME_ZONE_INFORMATION& zone) {
    m_offsets = ZoneOffsets([zone](int year) { return YearOf(zone, year); });
    m_zone = zone;
}

bool AxisZone::Set(LPCTSTR name) {
    const std::wstring wide = ToWide(name, lstrlen(name));
    DYNAMIC_TIME_ZONE_INFORMATION zone = {};
    if (wide.empty()) {
        Use(LocalZone());
        m_kind = Kind::Local;
    } else if (::lstrcmpiW(wide.c_str(), L"UTC") == 0) {
        m_offsets = ZoneOffsets();
        m_kind = Kind::Utc;
    } else if (wide.size() < std::size(zone.TimeZoneKeyName) && IsKnown(wide)) {
        std::copy(wide.begin(), wide.end(), zone.TimeZoneKeyName);
        Use(zone);
        m_kind = Kind::Named;
    } else {
        return false;
    }
    return true;
}

const ZoneOffsets& AxisZone::Offsets() {
    if (m_kind == Kind::Local)
        if (const DYNAMIC_TIME_ZONE_INFORMATION zone = LocalZone(); !AreEqual(zone, m_zone))
            Use(zone);
    return m_offsets;
}

} // namespace kavlix
