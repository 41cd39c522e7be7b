#pragma once

#include "monitor/recording/MemoryParts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// Bytes that went through one network interface since it came up.
struct InterfaceCounters {
    std::uint64_t id = 0;
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;
};

/// What the operating system counts, at one moment. What it does not tell is absent.
struct MachineCounters {
    /// Time of all processors since the machine started, in units of 100 ns.
    struct Processor {
        std::uint64_t idle = 0;
        std::uint64_t total = 0;
    };

    double seconds = 0; ///< of a clock that only goes forwards
    std::optional<Processor> processor;
    std::optional<double> memoryPercent;                      ///< physical memory in use
    std::optional<std::vector<InterfaceCounters>> interfaces; ///< hardware only: no loopback, no filters
};

/// What went on between two moments. Absent: not to be had.
struct MachineRates {
    std::optional<double> processorPercent;
    std::optional<double> memoryPercent;
    std::optional<double> bytesInPerSecond;
    std::optional<double> bytesOutPerSecond;
};

/// Asks the operating system.
MachineCounters ReadMachineCounters();

/// Asks the operating system what its memory holds now; nothing when it does not tell.
std::optional<recording::MachineMemory> ReadMachineMemory();

/// The rates between two readings. Interfaces that came or went between them, and counters that went
/// backwards (an interface was reset), count nothing.
MachineRates RatesBetween(const MachineCounters& before, const MachineCounters& now);

/// The unit in which network rates are drawn beside percents.
struct RateUnit {
    double bytesPerSecond = 1000; ///< what one stands for: 1, 10 or 100 times a power of 1000
    std::string text;             ///< `kB/s`, `10 kB/s`, ...

    bool operator==(const RateUnit& other) const { return bytesPerSecond == other.bytesPerSecond; }
};

/// The smallest unit, from kB/s on, in which the highest rate is at most 100. A rate that is no number counts
/// as 0.
RateUnit ChooseRateUnit(double highestBytesPerSecond);

/// A rate for people: `812 B/s`, `3.4 kB/s`, `120 MB/s`.
std::string FormatRate(double bytesPerSecond);

} // namespace kavlix::monitor
