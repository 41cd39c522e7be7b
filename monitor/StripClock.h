#pragma once

#include "monitor/recording/TimeText.h"

namespace kavlix::monitor {

/// Time stamps for the scrolling graph, which shows them in the machine's local time: made so that the labels
/// show what the recording says. An hour that local time leaves out shows as the one beside it; stamps never
/// go back.
class StripClock {
public:
    /// Seconds since 1970 whose local time reads as `time` does. Ask for ascending times, from
    /// recording::kFirstStripTime to kLastStripTime.
    long Stamp(recording::Time time);

    /// Forgets the stamps that were made.
    void Reset() { *this = StripClock(); }

private:
    void FindSpan(recording::Time time);

    recording::Time m_begin = 0; ///< of the span of time in which m_offset holds
    recording::Time m_end = 0;
    recording::Time m_offset = 0; ///< seconds
    bool m_any = false;
    long m_last = 0;
};

} // namespace kavlix::monitor
