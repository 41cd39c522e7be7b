// SPDX-License-Identifier: MIT
// Divides the machine's memory into parts, and writes numbers of bytes.

#include "monitor/recording/MemoryParts.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kavlix::recording {

std::vector<MemoryPart> PartsOf(const MachineMemory& memory) {
    std::uint64_t left = memory.total;
    const auto take = [&left](std::uint64_t bytes) {
        const std::uint64_t taken = std::min(bytes, left);
        left -= taken;
        return taken;
    };
    const std::uint64_t available = take(memory.available);
    const std::uint64_t own = take(memory.own.value_or(0));
    const std::uint64_t kernel = take(memory.kernel.value_or(0));
    std::vector<MemoryPart> parts;
    if (memory.own)
        parts.push_back({MemoryPart::Own, own});
    parts.push_back({MemoryPart::Others, left});
    if (memory.kernel)
        parts.push_back({MemoryPart::Kernel, kernel});
    parts.push_back({MemoryPart::Available, available});
    if (memory.pageFile > 0) {
        const std::uint64_t used = std::min(memory.pageFileUsed, memory.pageFile);
        parts.push_back({MemoryPart::PageFileUsed, used});
        parts.push_back({MemoryPart::PageFileFree, memory.pageFile - used});
    }
    return parts;
}

const char* NameOf(MemoryPart::Kind kind) {
    constexpr std::array<const char*, 6> names = {"Other programs and the system",
                                                  "Kavlix Monitor",
                                                  "Kernel",
                                                  "Available",
                                                  "Page file, used",
                                                  "Page file, free"};
    return names[kind];
}

std::string FormatBytes(double bytes) {
    constexpr std::array<const char*, 7> units = {"bytes", "KB", "MB", "GB", "TB", "PB", "EB"};
    constexpr double step = 1024;
    std::size_t unit = 0;
    // From 1023.5 on, rounding would print 1024: take the next unit.
    while (bytes >= step - 0.5 && unit + 1 < units.size()) {
        bytes /= step;
        ++unit;
    }
    char text[48];
    std::snprintf(text, sizeof text, unit > 0 && bytes < 99.95 ? "%.1f %s" : "%.0f %s", bytes, units[unit]);
    return text;
}

} // namespace kavlix::recording
