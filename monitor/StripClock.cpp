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

long StripClock::Stamp(Time time) {
    const Time day = FloorTo(time, kMicrosPerDay);
    if (!m_known || day != m_day) {
        m_known = true;
        m_day = day;
        m_offset = OffsetAt(day);
        m_steady = OffsetAt(day + kMicrosPerDay) == m_offset;
    }
    const Time seconds =
        FloorTo(time, kMicrosPerSecond) / kMicrosPerSecond + (m_steady ? m_offset : OffsetAt(time));
    constexpr Time limit = std::numeric_limits<std::int32_t>::max();
    const long stamp = static_cast<long>(std::clamp(seconds, -limit, limit));
    m_last = m_any ? std::max(m_last, stamp) : stamp;
    m_any = true;
    return m_last;
}

} // namespace kavlix::monitor
