#pragma once

#include "monitor/MachineCounters.h"
#include "monitor/recording/Recording.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The readings of the machine: the last minutes as a recording, and one by one as far back as they are kept.
/// In the recording, processor and memory are in percent, network in and out in a unit in which they, too,
/// lie between 0 and 100, so that one axis serves all. A reading that is not to be had is a gap.
class LiveReadings {
public:
    /// Series: processor, memory, network in, network out.
    static constexpr std::size_t kSeries = 4;
    /// Readings in the recording; older ones leave it.
    static constexpr std::size_t kHistory = 300;
    /// Readings that are kept in all, unless a person asks for another number: a week's.
    static constexpr std::size_t kKept = 604'800;
    /// Readings the time axis has room for from the start.
    static constexpr std::size_t kShownAtLeast = 10;

    /// Values the axis covers whatever the readings are: all percents.
    static recording::ValueSpan AxisSpan();

    LiveReadings();

    /// What Add or RemoveHead did to the recording.
    struct Change {
        std::size_t removed = 0;  ///< samples that went at the recording's head
        bool unitChanged = false; ///< values of the network series are in another unit now
    };

    /// Takes a reading that was made at `now` (local time). `rates` are those since the reading before it.
    Change Add(recording::Time now, const MachineRates& rates);

    /// Takes away the oldest readings that are kept; the latest always stays.
    Change RemoveHead(std::size_t count);

    /// Keeps at most so many from now on, at least one.
    Change KeepAtMost(std::size_t count);
    std::size_t MostKept() const { return m_most; }

    // ---- One by one. Readings are counted from the first that was ever taken. ----

    /// The oldest reading that is kept, and one behind the latest.
    std::uint64_t First() const { return m_first; }
    std::uint64_t End() const { return m_first + m_times.size(); }

    recording::Time TimeOf(std::uint64_t reading) const { return m_times[Index(reading)]; }
    /// In percent, or bytes a second; NaN when it was not to be had.
    double ValueOf(std::uint64_t reading, std::size_t series) const;

    static const char* NameOf(std::size_t series);
    /// Whether a series is a rate in bytes a second; else it is in percent.
    static bool IsRate(std::size_t series);
    /// Readings in words; NaN is not available.
    static std::string TextOf(const std::vector<double>& values);

    // ---- The last minutes ----

    /// Readings that are kept and stand before those of the history.
    std::size_t CountBeforeHistory() const { return Index(m_historyFirst); }

    /// The history; a new object after every change, made when it is first asked for.
    std::shared_ptr<const recording::Recording> History() const;

    /// Names of the series, with the units they are drawn in, and `(not available)` behind those that were
    /// never to be had.
    std::vector<std::string> SeriesNames() const;

    /// The latest readings in words.
    std::string LatestText() const;

    /// What one of the axis stands for.
    std::string AxisText() const;

private:
    using Values = std::array<double, kSeries>;

    Change Trim(std::size_t removed);
    std::shared_ptr<const recording::Recording> MakeHistory() const;
    std::size_t Index(std::uint64_t reading) const { return static_cast<std::size_t>(reading - m_first); }

    std::deque<recording::Time> m_times;
    std::deque<Values> m_values;
    std::array<bool, kSeries> m_had{}; ///< the series was to be had, once
    std::uint64_t m_first = 0;
    std::size_t m_most = kKept;
    std::uint64_t m_historyFirst = 0; ///< the oldest reading of the history
    RateUnit m_unit;
    mutable std::shared_ptr<const recording::Recording> m_recording; ///< null: not asked for since the change
};

/// The machine's local time, as recordings tell theirs.
recording::Time LocalTimeNow();

} // namespace kavlix::monitor
