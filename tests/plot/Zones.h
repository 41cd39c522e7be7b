// SPDX-License-Identifier: MIT
// Zones for tests, given as rules.
#pragma once

#include "plot/ZoneOffsets.h"

namespace kavlix::zones {

constexpr int kHour = 3600;

/// A zone with the same rules every year.
inline ZoneOffsets Yearly(const ZoneYear& rules) {
    return ZoneOffsets([rules](int) { return rules; });
}

/// From the last Sunday of March to the last one of October.
inline ZoneYear BerlinRules() {
    return {kHour, 2 * kHour, {10, 0, 5, 0, 3 * kHour}, {3, 0, 5, 0, 2 * kHour}};
}
inline ZoneOffsets Berlin() {
    return Yearly(BerlinRules());
}
/// From the second Sunday of March to the first one of November.
inline ZoneOffsets NewYork() {
    return Yearly({-5 * kHour, -4 * kHour, {11, 0, 1, 0, 2 * kHour}, {3, 0, 2, 0, 2 * kHour}});
}
/// Half an hour, in the south.
inline ZoneOffsets LordHowe() {
    return Yearly({21 * kHour / 2, 11 * kHour, {4, 0, 1, 0, 2 * kHour}, {10, 0, 1, 0, 2 * kHour}});
}
/// The clock changes at midnight: one day a year has none, and one has an hour before it twice.
inline ZoneOffsets SaoPaulo() {
    return Yearly({-3 * kHour, -2 * kHour, {2, 0, 3, 0, 0}, {10, 0, 3, 0, 0}});
}
/// In 2011 the clock goes from the end of 29 December to the start of 31 December.
inline ZoneOffsets Samoa() {
    return ZoneOffsets([](int year) {
        const int before = -10 * kHour, after = 14 * kHour;
        return year < 2011    ? ZoneYear{before, before, {}, {}}
               : year == 2011 ? ZoneYear{before, after, {1, 0, 0, 1, 0}, {12, 0, 0, 29, 86400}}
                              : ZoneYear{after, after, {}, {}};
    });
}
/// A year of daylight saving time from its first to its last instant, and another standard time afterwards.
inline ZoneOffsets Borders() {
    return ZoneOffsets([](int year) {
        return year == 2014 ? ZoneYear{3 * kHour, 4 * kHour, {12, 0, 0, 31, 86400}, {1, 0, 0, 1, 0}}
                            : ZoneYear{year < 2014 ? 4 * kHour : 2 * kHour, 0, {}, {}};
    });
}

} // namespace kavlix::zones
