// SPDX-License-Identifier: MIT
// The parts of the machine's memory on the pie page. MachineCounters reads the counters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::recording {

/// The counters of the machine's memory, in bytes.
struct MachineMemory {
    std::uint64_t total = 0;             ///< bytes of physical memory
    std::uint64_t available = 0;         ///< bytes of physical memory that a program can get at once
    std::optional<std::uint64_t> own;    ///< bytes of physical memory that this program uses
    std::optional<std::uint64_t> kernel; ///< bytes of physical memory that the kernel never pages out
    std::uint64_t pageFile = 0;          ///< bytes of all page files together
    std::uint64_t pageFileUsed = 0;
};

/// One part of the memory.
struct MemoryPart {
    enum Kind { Others, Own, Kernel, Available, PageFileUsed, PageFileFree };
    Kind kind = Others;
    std::uint64_t bytes = 0;
};

/// Divides memory and page files into parts that add up to `total` + `pageFile`. When the system does not
/// give `own` or `kernel`, there is no part for it: its bytes count as Others. Without page files, their two
/// parts are absent. If Available, Own and Kernel together exceed `total`, Kernel is cut first, then Own,
/// then Available. PageFileUsed is cut to `pageFile`.
std::vector<MemoryPart> PartsOf(const MachineMemory& memory);

/// The name that the pie shows for a part.
const char* NameOf(MemoryPart::Kind kind);

/// A number of bytes as text, 1 KB being 1024 bytes: `512 bytes`, `22.7 GB`.
std::string FormatBytes(double bytes);

} // namespace kavlix::recording
