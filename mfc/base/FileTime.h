// SPDX-License-Identifier: MIT
// Conversions between FILETIME and seconds since 1970.
#pragma once

#include <windows.h>

/// A FILETIME counts units of 100 ns since 1601-01-01; __time64_t counts seconds since 1970-01-01.

constexpr __time64_t kFileTicksPerSecond = 10000000;
constexpr __time64_t kFileTimeTo1970 = 11644473600; // seconds from 1601 to 1970

inline ULONGLONG TicksOf(const FILETIME& fileTime) {
    return static_cast<ULONGLONG>(fileTime.dwHighDateTime) << 32 | fileTime.dwLowDateTime;
}

/// Whole seconds; fractions are truncated.
inline __time64_t SecondsOf(const FILETIME& fileTime) {
    return static_cast<__time64_t>(TicksOf(fileTime) / kFileTicksPerSecond) - kFileTimeTo1970;
}

inline FILETIME FileTimeOf(__time64_t seconds) {
    const ULONGLONG ticks = (static_cast<ULONGLONG>(seconds) + kFileTimeTo1970) * kFileTicksPerSecond;
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}
