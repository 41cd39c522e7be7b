// SPDX-License-Identifier: MIT
// Texts of local times.
#include "scrollgraph/core/LocalClock.h"

#include <cstdio>

namespace kavlix {

std::string FullTimeText(const CalendarTime& time) {
    char text[80];
    std::snprintf(text, sizeof text, "%04d/%02d/%02d %02d:%02d:%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return text;
}

} // namespace kavlix
