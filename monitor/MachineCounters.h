// SPDX-License-Identifier: MIT
// Asks the operating system for the counters of processor, memory and network.
#pragma once

#include <optional>

#include "monitor/recording/MachineRates.h"
#include "monitor/recording/MemoryParts.h"

namespace kavlix::monitor {

/// Reads the counters from which the rates of the live readings are computed.
recording::MachineCounters ReadMachineCounters();

/// Reads the counters of the memory; nothing when the system does not give them.
std::optional<recording::MachineMemory> ReadMachineMemory();

} // namespace kavlix::monitor
