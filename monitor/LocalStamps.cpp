// SPDX-License-Identifier: MIT
// Finds the offset from local time to UTC.

#include "monitor/LocalStamps.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kavlix::monitor {
namespace {

using recording::FloorTo;
using recording::kMicrosPerDay;
using recording::kMicrosPerSecond;
using recording::Time;

/// Seconds to add to the local time `time` to get UTC.
Time OffsetAt(Time time) {
    const recording::CivilTime civil = recording::ToCivil(time);
    const CTime stamp(civil.year, civil.month, civil.day, civil.hour, civil.minute, civil.second);
    const Time offset = stamp.GetTime() - FloorTo(time, kMicrosPerSecond) / kMicrosPerSecond;
    // CTime holds a fixed invalid value for a time that it cannot convert: the offset then exceeds a day.
    return std::abs(offset) * kMicrosPerSecond > kMicrosPerDay ? 0 : offset;
}

} // namespace

void LocalStamps::FindSpan(Time time) {
    // Asking CTime is slow, so find a long span in which the offset is the same. A zone changes its offset at
    // most once in a week, so the offset is the same in the whole span if it is the same at both ends. A span
    // of one second needs no such test.
    constexpr Time units[] = {7 * kMicrosPerDay, kMicrosPerDay, recording::kMicrosPerHour,
                              recording::kMicrosPerMinute, kMicrosPerSecond};
    for (const Time unit : units) {
        m_begin = FloorTo(time, unit);
        m_end = m_begin + unit;
        m_offset = OffsetAt(m_begin);
        if (unit == kMicrosPerSecond || OffsetAt(m_end) == m_offset)
            return;
    }
}

long LocalStamps::Stamp(Time time) {
    if (time < m_begin || time >= m_end)
        FindSpan(time);
    const Time seconds = FloorTo(time, kMicrosPerSecond) / kMicrosPerSecond + m_offset;
    constexpr Time limit = std::numeric_limits<std::int32_t>::max();
    const long stamp = static_cast<long>(std::clamp(seconds, -limit, limit));
    m_last = m_any ? std::max(m_last, stamp) : stamp;
    m_any = true;
    return m_last;
}

} // namespace kavlix::monitor
