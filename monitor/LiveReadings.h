#pragma once

#include "monitor/MachineCounters.h"
#include "monitor/recording/Recording.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The readings of the last minutes as a recording: processor and memory in percent, network in and out in a
/// unit in which they, too, lie between 0 and 100, so that one axis serves all. A reading that is not to be
/// had is a gap.
class LiveReadings {
public:
    /// Readings kept; older ones go.
    static constexpr std::size_t kHistory = 300;
    /// Readings the time axis has room for from the start.
    static constexpr std::size_t kShownAtLeast = 10;

    /// Values the axis covers whatever the readings are: all percents.
    static recording::ValueSpan AxisSpan();

    LiveReadings();

    /// What Add or RemoveHead did to the recording.
    struct Change {
        std::size_t removed = 0;  ///< samples that went at the head
        bool unitChanged = false; ///< values of the network series are in another unit now
    };

    /// Takes a reading that was made at `now` (local time). `rates` are those since the reading before it.
    Change Add(recording::Time now, const MachineRates& rates);

    /// Takes away the oldest readings; the latest always stays.
    Change RemoveHead(std::size_t count);

    /// The history; a new object after every Add and RemoveHead.
    std::shared_ptr<const recording::Recording> History() const { return m_recording; }

    /// Names of the series, with the units they are drawn in, and `(not available)` behind those that were
    /// never to be had.
    std::vector<std::string> SeriesNames() const;

    /// The latest readings in words.
    std::string LatestText() const;

    /// What one of the axis stands for.
    std::string AxisText() const;

private:
    Change Trim(std::size_t removed);
    void Rebuild();

    std::vector<recording::Time> m_times;
    std::vector<MachineRates> m_rates;
    RateUnit m_unit;
    std::shared_ptr<const recording::Recording> m_recording;
};

/// The machine's local time, as recordings tell theirs.
recording::Time LocalTimeNow();

} // namespace kavlix::monitor
