#include "monitor/StripClock.h"

#include <afxwin.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kavlix::monitor {

namespace {

using recording::kMicrosPerDay;
using recording::kMicrosPerSecond;
using recording::Time;

Time FloorTo(Time time, Time unit) {
    const Time rest = time % unit;
    return time - (rest < 0 ? rest + unit : rest);
}

/// Seconds from local time to the machine's, at a local time.
Time OffsetAt(Time time) {
    const recording::CivilTime civil = recording::ToCivil(time);
    const CTime stamp(civil.year, civil.month, civil.day, civil.hour, civil.minute, civil.second);
    const Time offset = stamp.GetTime() - FloorTo(time, kMicrosPerSecond) / kMicrosPerSecond;
    // No zone is farther away than a day: then there is no such time.
    return std::abs(offset) * kMicrosPerSecond > kMicrosPerDay ? 0 : offset;
}

} // namespace

void StripClock::FindSpan(Time time) {
    // Zones change their offset at most once in a week, and seldom: asking costs more than all else. The last
    // unit holds one offset in any case.
    constexpr Time units[] = {7 * kMicrosPerDay, kMicrosPerDay, kMicrosPerDay / 24, 60 * kMicrosPerSecond,
                              kMicrosPerSecond};
    for (const Time unit : units) {
        m_begin = FloorTo(time, unit);
        m_end = m_begin + unit;
        m_offset = OffsetAt(m_begin);
        if (unit == kMicrosPerSecond || OffsetAt(m_end) == m_offset)
            return;
    }
}

long StripClock::Stamp(Time time) {
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
