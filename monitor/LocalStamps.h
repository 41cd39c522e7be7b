// Time stamps for the scrolling graph.
#pragma once

#include "monitor/recording/TimeText.h"

namespace kavlix::monitor {

/// Converts the times of a recording into the time stamps of the scrolling graph. The graph converts its
/// stamps to the machine's local time; these stamps are the ones for which its labels show the recording's
/// own times. An hour that local time skips shows as the hour beside it. The stamps never decrease.
class LocalStamps {
public:
    /// Seconds since 1970 whose local time is `time`. The times must ascend, and lie between kFirstStampTime
    /// and kLastStampTime.
    long Stamp(recording::Time time);

    /// Lets the next stamp be less than the last one.
    void Reset() { *this = LocalStamps(); }

private:
    void FindSpan(recording::Time time);

    recording::Time m_begin = 0;  ///< m_offset applies from here
    recording::Time m_end = 0;    ///< to here
    recording::Time m_offset = 0; ///< seconds from local time to UTC
    bool m_any = false;           ///< m_last is valid
    long m_last = 0;
};

} // namespace kavlix::monitor
