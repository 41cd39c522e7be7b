// SPDX-License-Identifier: MIT
// Lets the controls live in a time zone that a test chooses.
#pragma once

#include "tests/support/ImportHook.h"

#include <cwchar>

/// While it lives, the controls take the zone `key` ("UTC", "Eastern Standard Time"), with the rules that the
/// system knows for it, for the machine's zone. One at a time.
class FixedZone {
public:
    explicit FixedZone(const wchar_t* key = L"UTC")
        : m_zone("Kavlix.dll", "GetDynamicTimeZoneInformation", reinterpret_cast<void*>(&FixedZone::Zone)),
          m_rules("Kavlix.dll", "GetTimeZoneInformationForYear", reinterpret_cast<void*>(&FixedZone::Rules)) {
        s_system = reinterpret_cast<decltype(s_system)>(m_rules.Original());
        s_asked = 0;
        Change(key);
    }
    /// Moves the machine elsewhere.
    void Change(const wchar_t* key) { s_key = key; }
    /// Whether the system knows the zone and the control is made to use it.
    bool Works() const {
        DYNAMIC_TIME_ZONE_INFORMATION zone;
        TIME_ZONE_INFORMATION rules;
        return m_zone.Installed() && m_rules.Installed() && Zone(&zone) != TIME_ZONE_ID_INVALID &&
               s_system(2026, &zone, &rules);
    }
    /// How often the rules of a year were asked for.
    int Asked() const { return s_asked; }

private:
    /// All that is told of a zone beside its key is the same here.
    static DWORD WINAPI Zone(PDYNAMIC_TIME_ZONE_INFORMATION zone) {
        *zone = {};
        std::wcsncpy(zone->TimeZoneKeyName, s_key, std::size(zone->TimeZoneKeyName) - 1);
        return TIME_ZONE_ID_UNKNOWN;
    }
    static BOOL WINAPI Rules(USHORT year, PDYNAMIC_TIME_ZONE_INFORMATION named,
                             LPTIME_ZONE_INFORMATION zone) {
        ++s_asked;
        return s_system(year, named, zone);
    }

    static inline decltype(&::GetTimeZoneInformationForYear) s_system = nullptr;
    static inline const wchar_t* s_key = nullptr;
    static inline int s_asked = 0;
    testkit::ImportHook m_zone;
    testkit::ImportHook m_rules;
};
