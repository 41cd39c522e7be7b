// SPDX-License-Identifier: MIT
// Keeps the live readings of the machine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "monitor/recording/MachineRates.h"
#include "monitor/recording/Recording.h"

namespace kavlix::monitor {

/// The readings of the machine: all kept readings one by one, and the last minutes as a recording. In the
/// recording, processor and memory are in percent. The network rates are in a unit in which they lie between
/// 0 and 100 too, so that all series share one axis. A value that is not available is a gap.
class LiveReadings {
public:
    /// Series: processor, memory, network in, network out.
    static constexpr std::size_t kSeries = 4;
    /// Largest number of readings in History().
    static constexpr std::size_t kHistory = 300;
    /// Number of readings that are kept by default: those of a week.
    static constexpr std::size_t kKept = 604'800;
    /// The time axis always has room for at least this many readings.
    static constexpr std::size_t kShownAtLeast = 10;

    /// The values that the axis always covers: 0 to 100.
    static recording::ValueSpan AxisSpan();

    LiveReadings();

    /// The effect of a change on the recording that History() returns.
    struct Change {
        std::size_t removed = 0;  ///< number of samples removed at the recording's head
        bool unitChanged = false; ///< the network series now have another unit, as `10 kB/s` after `kB/s`
    };

    /// Adds the reading taken at local time `now`. `rates` are those since the previous reading.
    Change Add(recording::Time now, const recording::MachineRates& rates);

    /// Removes the oldest `count` readings; the latest reading always stays.
    Change RemoveHead(std::size_t count);

    /// Sets the number of readings to keep, at least 1, and removes older ones.
    Change KeepAtMost(std::size_t count);
    std::size_t MostKept() const { return m_most; }

    // ---- Single readings. Their numbers count from the first reading that was ever added. ----

    /// Number of the oldest kept reading.
    std::uint64_t First() const { return m_first; }

    /// Number of the latest reading plus one.
    std::uint64_t End() const { return m_first + m_times.size(); }

    recording::Time TimeOf(std::uint64_t reading) const { return m_times[Index(reading)]; }

    /// The value in percent or in bytes a second; NaN when it was not available.
    double ValueOf(std::uint64_t reading, std::size_t series) const;

    static const char* NameOf(std::size_t series);

    /// Whether a series is in bytes a second; otherwise it is in percent.
    static bool IsRate(std::size_t series);

    /// The values of a reading as text, NaN as `not available`.
    static std::string TextOf(const std::vector<double>& values);

    // ---- The last minutes ----

    /// Number of kept readings that are older than the first sample of History().
    std::size_t CountBeforeHistory() const { return Index(m_historyFirst); }

    /// The latest readings, at most kHistory, as a recording. Calls return the same object until a change.
    std::shared_ptr<const recording::Recording> History() const;

    /// Names of the series with their units. After the first reading, a series that never had a value has
    /// `(not available)` instead of the unit.
    std::vector<std::string> SeriesNames() const;

    /// The latest reading as text.
    std::string LatestText() const;

    /// The units of the axis.
    std::string AxisText() const;

private:
    using Values = std::array<double, kSeries>;

    Change Trim(std::size_t removed);
    std::shared_ptr<const recording::Recording> MakeHistory() const;
    std::size_t Index(std::uint64_t reading) const { return static_cast<std::size_t>(reading - m_first); }

    std::deque<recording::Time> m_times;
    std::deque<Values> m_values;
    std::array<bool, kSeries> m_had{}; ///< whether the series has ever had a value
    std::uint64_t m_first = 0;
    std::size_t m_most = kKept;
    std::uint64_t m_historyFirst = 0; ///< number of the history's oldest reading
    recording::RateUnit m_unit;
    mutable std::shared_ptr<const recording::Recording> m_recording; ///< null: not made since the last change
};

/// The machine's local time in whole seconds, in the form of a recording's times.
recording::Time LocalTimeNow();

} // namespace kavlix::monitor
