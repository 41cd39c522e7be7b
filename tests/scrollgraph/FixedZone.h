#pragma once

#include "tests/support/ImportHook.h"

#include <cwchar>

/// While it lives, local time in this process follows the rules that the system knows for the zone `key`
/// ("UTC", "Eastern Standard Time"), whatever zone the machine keeps. One at a time.
class FixedZone {
public:
    explicit FixedZone(const wchar_t* key = L"UTC")
        : m_hook("KavlixMfc.dll", "GetTimeZoneInformationForYear",
                 reinterpret_cast<void*>(&FixedZone::Rules)) {
        s_system = reinterpret_cast<decltype(s_system)>(m_hook.Original());
        s_key = key;
    }
    /// Whether the system knows the zone and the control is made to use it.
    bool Works() const {
        TIME_ZONE_INFORMATION zone;
        return m_hook.Installed() && Rules(2026, nullptr, &zone);
    }

private:
    static BOOL WINAPI Rules(USHORT year, PDYNAMIC_TIME_ZONE_INFORMATION, LPTIME_ZONE_INFORMATION zone) {
        DYNAMIC_TIME_ZONE_INFORMATION named = {};
        std::wcsncpy(named.TimeZoneKeyName, s_key, std::size(named.TimeZoneKeyName) - 1);
        return s_system(year, &named, zone);
    }

    static inline decltype(&::GetTimeZoneInformationForYear) s_system = nullptr;
    static inline const wchar_t* s_key = nullptr;
    testkit::ImportHook m_hook;
};
