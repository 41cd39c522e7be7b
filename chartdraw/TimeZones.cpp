// SPDX-License-Identifier: MIT
// Translates the rules of Windows' time zones.
#include "chartdraw/TimeZones.h"

#include <algorithm>
#include <map>
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

/// The registry key of a zone, or of its rules by year.
std::wstring KeyOf(const std::wstring& name) {
    return L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Time Zones\\" + name;
}

bool IsKnown(const std::wstring& name) {
    if (name.find(L'\\') != std::wstring::npos)
        return false;
    HKEY handle = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, KeyOf(name).c_str(), 0, KEY_QUERY_VALUE, &handle) !=
        ERROR_SUCCESS)
        return false;
    ::RegCloseKey(handle);
    return true;
}

/// The rules of a zone. Asking for those of a century, year by year, takes a tenth of a second, but they differ in a
/// few years only: all years before these have the same rules, and all years after them.
class YearlyRules {
public:
    explicit YearlyRules(const DYNAMIC_TIME_ZONE_INFORMATION& zone) : m_zone(zone) {
        const std::wstring key = KeyOf(zone.TimeZoneKeyName) + L"\\Dynamic DST";
        const auto ask = [&](const wchar_t* name, int& year) {
            DWORD value = 0;
            DWORD size = sizeof value;
            if (::RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &value,
                               &size) == ERROR_SUCCESS)
                year = static_cast<int>(std::clamp<DWORD>(value, kFirstYear, kLastYear));
        };
        int first = m_first;
        int last = m_first;
        ask(L"FirstEntry", first);
        ask(L"LastEntry", last);
        m_first = first - 1;
        m_last = std::max(first, last) + 1;
    }

    ZoneYear operator()(int year) {
        const int known = std::clamp(year, m_first, m_last);
        auto rules = m_years.find(known);
        if (rules == m_years.end())
            rules = m_years.emplace(known, RulesOfYear(m_zone, static_cast<WORD>(known))).first;
        return YearOf(rules->second, year);
    }

private:
    static constexpr DWORD kFirstYear = 1602; // Windows' calendar goes from 1601 to 30827
    static constexpr DWORD kLastYear = 30826;

    static ZoneYear YearOf(const TIME_ZONE_INFORMATION& rules, int year) {
        ZoneYear result;
        result.toStandard = ChangeOf(rules.StandardDate, year);
        result.toDaylight = ChangeOf(rules.DaylightDate, year);
        const bool hasChanges = result.toStandard.month != 0 && result.toDaylight.month != 0;
        // The biases of standard and daylight time count only in years with changes.
        result.standardOffset =
            -static_cast<int>(rules.Bias + (hasChanges ? rules.StandardBias : 0)) * kSecondsPerMinute;
        result.daylightOffset = -static_cast<int>(rules.Bias + rules.DaylightBias) * kSecondsPerMinute;
        return result;
    }

    DYNAMIC_TIME_ZONE_INFORMATION m_zone;
    int m_first =
        2000; ///< these years can have rules of their own; in a zone without rules by year any years
    int m_last = 2000;
    std::map<int, TIME_ZONE_INFORMATION> m_years;
};

} // namespace

AxisZone::AxisZone() {
    Use(LocalZone());
}

void AxisZone::Use(const DYNAMIC_TIME_ZONE_INFORMATION& zone) {
    m_offsets = ZoneOffsets(YearlyRules(zone));
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
