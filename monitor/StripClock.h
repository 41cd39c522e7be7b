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
    recording::Time m_day = 0; ///< begin of the day that m_offset belongs to
    recording::Time m_offset = 0;
    bool m_known = false;  ///< m_day and m_offset are set
    bool m_steady = false; ///< the offset is the same all that day
    bool m_any = false;
    long m_last = 0;
};

} // namespace kavlix::monitor
