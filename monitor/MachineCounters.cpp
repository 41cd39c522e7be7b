// SPDX-License-Identifier: MIT
// Reads the counters. Compiled without the precompiled header: winsock2.h must come before windows.h.

#include <winsock2.h>

#include "monitor/MachineCounters.h"

#include <ws2ipdef.h>

#include <iphlpapi.h>
#include <psapi.h>

namespace kavlix::monitor {
namespace {

std::uint64_t ToNumber(const FILETIME& time) {
    return (static_cast<std::uint64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
}

double NowInSeconds() {
    LARGE_INTEGER ticks;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::optional<recording::MachineCounters::Processor> ReadProcessor() {
    FILETIME idle;
    FILETIME kernel;
    FILETIME user;
    if (!GetSystemTimes(&idle, &kernel, &user))
        return std::nullopt;
    // The kernel's time includes the idle time.
    return recording::MachineCounters::Processor{ToNumber(idle), ToNumber(kernel) + ToNumber(user)};
}

std::optional<double> ReadMemoryPercent() {
    MEMORYSTATUSEX status;
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status) || status.ullTotalPhys == 0)
        return std::nullopt;
    return 100 * (1 - static_cast<double>(status.ullAvailPhys) / static_cast<double>(status.ullTotalPhys));
}

#ifdef _WIN64
// A callback of EnumPageFiles, for 64-bit builds only: headers disagree on its calling convention, of which
// 64-bit Windows has only one.
BOOL AddPageFile(LPVOID memory, PENUM_PAGE_FILE_INFORMATION file, LPCTSTR) {
    // Both counts are in pages.
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    auto& sum = *static_cast<recording::MachineMemory*>(memory);
    sum.pageFile += std::uint64_t{file->TotalSize} * system.dwPageSize;
    sum.pageFileUsed += std::uint64_t{file->TotalInUse} * system.dwPageSize;
    return TRUE;
}
#endif

std::optional<std::vector<recording::InterfaceCounters>> ReadInterfaces() {
    MIB_IF_TABLE2* table = nullptr;
    if (GetIfTable2(&table) != NO_ERROR)
        return std::nullopt;
    std::vector<recording::InterfaceCounters> interfaces;
    for (ULONG i = 0; i < table->NumEntries; ++i) {
        const MIB_IF_ROW2& row = table->Table[i];
        // Filters and virtual interfaces would count the bytes of their hardware a second time.
        if (row.Type != IF_TYPE_SOFTWARE_LOOPBACK && row.InterfaceAndOperStatusFlags.HardwareInterface &&
            !row.InterfaceAndOperStatusFlags.FilterInterface)
            interfaces.push_back({row.InterfaceLuid.Value, row.InOctets, row.OutOctets});
    }
    FreeMibTable(table);
    return interfaces;
}

} // namespace

recording::MachineCounters ReadMachineCounters() {
    recording::MachineCounters counters;
    counters.seconds = NowInSeconds();
    counters.processor = ReadProcessor();
    counters.memoryPercent = ReadMemoryPercent();
    counters.interfaces = ReadInterfaces();
    return counters;
}

std::optional<recording::MachineMemory> ReadMachineMemory() {
    MEMORYSTATUSEX status;
    status.dwLength = sizeof status;
    if (!GlobalMemoryStatusEx(&status) || status.ullTotalPhys == 0)
        return std::nullopt;
    recording::MachineMemory memory;
    memory.total = status.ullTotalPhys;
    memory.available = status.ullAvailPhys;
    PROCESS_MEMORY_COUNTERS own;
    if (GetProcessMemoryInfo(GetCurrentProcess(), &own, sizeof own))
        memory.own = own.WorkingSetSize;
    // A system that does not count its kernel's memory returns 0.
    PERFORMANCE_INFORMATION system;
    if (GetPerformanceInfo(&system, sizeof system) && system.KernelNonpaged > 0)
        memory.kernel = std::uint64_t{system.KernelNonpaged} * system.PageSize;
#ifdef _WIN64
    EnumPageFiles(AddPageFile, &memory);
#endif
    return memory;
}

} // namespace kavlix::monitor
