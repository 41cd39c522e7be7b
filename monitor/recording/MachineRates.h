// SPDX-License-Identifier: MIT
// Rates of processor, memory and network, computed from two readings of the machine's counters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::recording {

/// Bytes that went through one network interface since it was started.
struct InterfaceCounters {
    std::uint64_t id = 0;
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;
};

/// The operating system's counters at one moment. A counter that the system does not give is absent.
struct MachineCounters {
    /// Time of all processors since the machine was started, in units of 100 ns.
    struct Processor {
        std::uint64_t idle = 0;
        std::uint64_t total = 0;
    };

    double seconds = 0; ///< when the counters were read, by a clock that never goes back
    std::optional<Processor> processor;
    std::optional<double> memoryPercent; ///< percentage of the physical memory that is in use
    std::optional<std::vector<InterfaceCounters>> interfaces; ///< hardware only: no loopback, no filters
};

/// The rates between two moments. An absent rate is not available.
struct MachineRates {
    std::optional<double> processorPercent;
    std::optional<double> memoryPercent;
    std::optional<double> bytesInPerSecond;
    std::optional<double> bytesOutPerSecond;
};

/// Computes the rates between two readings; the memory's percentage is that of `now`. An interface that
/// exists in only one reading adds nothing to the network rates, nor does a byte counter that went backwards
/// because its interface was reset.
MachineRates RatesBetween(const MachineCounters& before, const MachineCounters& now);

/// The unit of network rates on the axis that they share with percents.
struct RateUnit {
    double bytesPerSecond = 1000; ///< the value of one unit: 1, 10 or 100 times a power of 1000
    std::string text;             ///< `kB/s`, `10 kB/s`, ...

    bool operator==(const RateUnit& other) const { return bytesPerSecond == other.bytesPerSecond; }
};

/// The smallest unit, from kB/s to 100 TB/s, in which the highest rate is at most 100; 100 TB/s for still
/// higher rates. NaN counts as 0.
RateUnit ChooseRateUnit(double highestBytesPerSecond);

/// A rate as text: `812 B/s`, `3.4 kB/s`, `120 MB/s`.
std::string FormatRate(double bytesPerSecond);

} // namespace kavlix::recording
