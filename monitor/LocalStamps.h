// SPDX-License-Identifier: MIT
// Time stamps for the scrolling graph.
#pragma once

#include "monitor/recording/TimeText.h"

namespace kavlix::monitor {

/// Converts the times of a recording into time stamps for the scrolling graph. The graph's labels show stamps
/// in the machine's local time. This class chooses each stamp so that the label shows the recording's own
/// time. Exceptions: a time in an hour that local time skips appears as a time of an hour beside it; because
/// stamps never decrease, times soon after it may repeat its stamp; a time that CTime cannot convert is taken
/// as UTC.
class LocalStamps {
public:
    /// Seconds since 1970 whose local time is `time`. The times must ascend, and lie between kFirstStampTime
    /// and kLastStampTime.
    long Stamp(recording::Time time);

    /// Forgets the last stamp, so that the next one may be less.
    void Reset() { *this = LocalStamps(); }

private:
    void FindSpan(recording::Time time);

    recording::Time m_begin = 0;  ///< first time to which m_offset applies
    recording::Time m_end = 0;    ///< end of the times to which m_offset applies, excluded
    recording::Time m_offset = 0; ///< seconds to add to local time to get UTC
    bool m_any = false;           ///< m_last is valid
    long m_last = 0;              ///< the last stamp
};

} // namespace kavlix::monitor
