// SPDX-License-Identifier: MIT
// The time zones that Windows knows.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// The local zone; UTC when the system does not tell.
DYNAMIC_TIME_ZONE_INFORMATION LocalZone();
/// Whether two zones have the same rules and key; the names of standard and daylight time may differ.
bool AreEqual(const DYNAMIC_TIME_ZONE_INFORMATION& a, const DYNAMIC_TIME_ZONE_INFORMATION& b);
/// The rules of a zone in a year; the zone's present rules when the system has none for that year. Takes hundreds
/// of times as long as drawing a text.
TIME_ZONE_INFORMATION RulesOfYear(DYNAMIC_TIME_ZONE_INFORMATION zone, WORD year);

} // namespace kavlix
