// SPDX-License-Identifier: MIT
// Divides differences of counters by the time that passed, and chooses units for the rates.

#include "monitor/recording/MachineRates.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace kavlix::recording {
namespace {

constexpr double kHighestShown = 100; // highest rate, in its unit: the axis shared with percents ends at 100
constexpr std::array<const char*, 5> kPrefixes = {"", "k", "M", "G", "T"};

std::optional<double> ProcessorPercent(const MachineCounters& before, const MachineCounters& now) {
    if (!before.processor || !now.processor || now.processor->total <= before.processor->total ||
        now.processor->idle < before.processor->idle)
        return std::nullopt;
    const double total = static_cast<double>(now.processor->total - before.processor->total);
    const double idle = static_cast<double>(now.processor->idle - before.processor->idle);
    return std::clamp(100 * (1 - idle / total), 0.0, 100.0);
}

double Passed(std::uint64_t before, std::uint64_t now) {
    return now > before ? static_cast<double>(now - before) : 0.0;
}

} // namespace

MachineRates RatesBetween(const MachineCounters& before, const MachineCounters& now) {
    MachineRates rates;
    rates.processorPercent = ProcessorPercent(before, now);
    rates.memoryPercent = now.memoryPercent;

    const double seconds = now.seconds - before.seconds;
    if (!before.interfaces || !now.interfaces || now.interfaces->empty() || !(seconds > 0))
        return rates;
    double in = 0;
    double out = 0;
    for (const InterfaceCounters& current : *now.interfaces) {
        const auto known =
            std::find_if(before.interfaces->begin(), before.interfaces->end(),
                         [&](const InterfaceCounters& other) { return other.id == current.id; });
        if (known == before.interfaces->end())
            continue;
        in += Passed(known->bytesIn, current.bytesIn);
        out += Passed(known->bytesOut, current.bytesOut);
    }
    rates.bytesInPerSecond = in / seconds;
    rates.bytesOutPerSecond = out / seconds;
    return rates;
}

RateUnit ChooseRateUnit(double highestBytesPerSecond) {
    RateUnit unit{1000, "kB/s"};
    const char* const multiples[] = {"", "10 ", "100 "};
    for (int power = 3; highestBytesPerSecond > kHighestShown * unit.bytesPerSecond && power < 14;) {
        ++power;
        unit.bytesPerSecond *= 10;
        unit.text =
            std::string(multiples[power % 3]) + kPrefixes[static_cast<std::size_t>(power / 3)] + "B/s";
    }
    return unit;
}

std::string FormatRate(double bytesPerSecond) {
    double value = std::isfinite(bytesPerSecond) ? std::max(bytesPerSecond, 0.0) : 0.0;
    std::size_t prefix = 0;
    // From 999.5 on, rounding would print 1000: take the next prefix.
    while (value >= 999.5 && prefix + 1 < kPrefixes.size()) {
        value /= 1000;
        ++prefix;
    }
    char text[48];
    std::snprintf(text, sizeof text, value < 99.95 && prefix > 0 ? "%.1f %sB/s" : "%.0f %sB/s", value,
                  kPrefixes[prefix]);
    return text;
}

} // namespace kavlix::recording
