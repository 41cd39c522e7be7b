#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::recording {

/// What the machine's memory holds, in bytes.
struct MachineMemory {
    std::uint64_t total = 0;             ///< physical memory
    std::uint64_t available = 0;         ///< of it, for any program that asks: free, or a copy of something
    std::optional<std::uint64_t> own;    ///< of it, in use by this program
    std::optional<std::uint64_t> kernel; ///< of it, always held by the system's kernel
    std::uint64_t pageFile = 0;          ///< size of all page files
    std::uint64_t pageFileUsed = 0;
};

/// A part of the memory.
struct MemoryPart {
    enum Kind { Others, Own, Kernel, Available, PageFileUsed, PageFileFree };
    Kind kind = Others;
    std::uint64_t bytes = 0;
};

/// The parts that memory and page files consist of; together they are the whole. What the system does not
/// tell is part of what is in use by others. Counts that contradict one another are cut to what is left.
std::vector<MemoryPart> PartsOf(const MachineMemory& memory);

const char* NameOf(MemoryPart::Kind kind);

/// A number of bytes for people, 1 KB being 1024 bytes: `512 bytes`, `22.7 GB`.
std::string FormatBytes(double bytes);

} // namespace kavlix::recording
