// SPDX-License-Identifier: MIT
// Reads the process's table of GDI objects, and enumerates its windows and menus.
#include "tests/support/GdiCounter.h"

#include "tests/support/UnderWine.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <ostream>
#include <sstream>

namespace testkit {
namespace {

/// One entry of the table in which the system keeps the GDI objects of a process.
struct GdiEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t upper; ///< upper half of the handle; the low seven bits are the kind
    std::uint8_t type;   ///< 0 when the entry is free
    std::uint8_t flags;
    std::uint64_t user;
};
static_assert(sizeof(GdiEntry) == 24, "the table's entries are 24 bytes");

/// The kinds of GDI objects by the low bits of `upper`. The last row stands for all other kinds.
constexpr struct {
    unsigned code;
    int ObjectCounts::*count;
} kKinds[] = {{0x01, &ObjectCounts::dcs},     {0x21, &ObjectCounts::dcs},     {0x41, &ObjectCounts::dcs},
              {0x04, &ObjectCounts::regions}, {0x09, &ObjectCounts::bitmaps}, {0x0A, &ObjectCounts::fonts},
              {0x10, &ObjectCounts::brushes}, {0x30, &ObjectCounts::pens},    {0x50, &ObjectCounts::pens},
              {0, &ObjectCounts::otherGdi}};

constexpr std::size_t kMaxGdiEntries = 0x10000;
constexpr UINT_PTR kLastUserHandle = 0xFFFE;

#if defined(_WIN64) // where Wine has its table
constexpr std::size_t kPebOfThread = 0x60;
constexpr std::size_t kGdiTableOfPeb = 0xF8;

const GdiEntry* GdiTable() {
    if (!UnderWine())
        return nullptr;
    const auto* peb = reinterpret_cast<const unsigned char*>(__readgsqword(kPebOfThread));
    return *reinterpret_cast<const GdiEntry* const*>(peb + kGdiTableOfPeb);
}
#else
const GdiEntry* GdiTable() {
    return nullptr;
}
#endif

std::size_t ReadableEntries(const GdiEntry* table) {
    MEMORY_BASIC_INFORMATION info;
    if (table == nullptr || VirtualQuery(table, &info, sizeof info) == 0 || info.State != MEM_COMMIT)
        return 0;
    const auto* end = static_cast<const unsigned char*>(info.BaseAddress) + info.RegionSize;
    const std::size_t bytes = static_cast<std::size_t>(end - reinterpret_cast<const unsigned char*>(table));
    return std::min(bytes / sizeof(GdiEntry), kMaxGdiEntries);
}

void CountGdi(ObjectCounts& counts) {
    const GdiEntry* table = GdiTable();
    const std::size_t entries = ReadableEntries(table);
    for (std::size_t i = 0; i < entries; ++i) {
        if (table[i].type == 0)
            continue;
        const auto* kind = std::begin(kKinds);
        while (kind->code != 0 && kind->code != (table[i].upper & 0x7Fu))
            ++kind;
        ++(counts.*kind->count);
    }
}

bool IsOurs(HWND window) {
    DWORD owner = 0;
    return GetWindowThreadProcessId(window, &owner) != 0 && owner == GetCurrentProcessId();
}

BOOL CALLBACK CountChild(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM count) {
    if (IsOurs(window)) {
        CountChild(window, count);
        EnumChildWindows(window, &CountChild, count);
    }
    return TRUE;
}

void CountUser(ObjectCounts& counts) {
    EnumWindows(&CountTopLevel, reinterpret_cast<LPARAM>(&counts.windows));
    HWND silent = nullptr;
    while ((silent = FindWindowEx(HWND_MESSAGE, silent, nullptr, nullptr)) != nullptr)
        CountTopLevel(silent, reinterpret_cast<LPARAM>(&counts.windows));
    // Menus cannot be enumerated. Their handles lie in a small range, so each possible handle is tried.
    for (UINT_PTR value = 2; value <= kLastUserHandle; value += 2)
        counts.menus += IsMenu(reinterpret_cast<HMENU>(value)) != FALSE;
}

} // namespace

bool ObjectCounts::operator==(const ObjectCounts& other) const {
    if (pens == other.pens && brushes == other.brushes && fonts == other.fonts && bitmaps == other.bitmaps &&
        regions == other.regions && dcs == other.dcs && otherGdi == other.otherGdi &&
        windows == other.windows && menus == other.menus)
        return true;
    if (UnderWine())
        return false;
    std::ostringstream text;
    text << *this << "\n" << other;
    Note(__FILE__, __LINE__, text.str().c_str());
    return true;
}

std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts) {
    return out << "pens " << counts.pens << ", brushes " << counts.brushes << ", fonts " << counts.fonts
               << ", bitmaps " << counts.bitmaps << ", regions " << counts.regions << ", dcs " << counts.dcs
               << ", other " << counts.otherGdi << ", windows " << counts.windows << ", menus "
               << counts.menus;
}

ObjectCounts CountObjects() {
    GdiFlush();
    ObjectCounts counts;
    CountGdi(counts);
    CountUser(counts);
    if (!UnderWine()) {
        counts.otherGdi = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
        counts.menus = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    }
    return counts;
}

bool CanCountGdiObjects() {
    return ReadableEntries(GdiTable()) > 0;
}

} // namespace testkit
