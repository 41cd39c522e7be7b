#pragma once

#include <afxwin.h>

#include "scrollgraph/TimeTicks.h"

namespace kavlix {

/// The local time of this system.
class SystemClock : public LocalClock {
public:
    CalendarTime ToLocal(std::int64_t time) const override {
        constexpr int tmYears = 1900;
        struct tm local = {};
        CTime(static_cast<time_t>(time)).GetLocalTm(&local);
        return {local.tm_year + tmYears, local.tm_mon + 1, local.tm_mday,
                local.tm_hour,           local.tm_min,     local.tm_sec};
    }
};

} // namespace kavlix
