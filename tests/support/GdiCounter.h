// SPDX-License-Identifier: MIT
// Counts the system objects of this process, to find leaks.
#pragma once

#include <iosfwd>
#include <string>

namespace testkit {

/// The numbers of system objects that this process holds. A test compares the counts before and after an
/// operation. Under Wine, where GetGuiResources returns 0, objects are counted by kind. On Windows `otherGdi`
/// stands for all GDI objects and `menus` for all USER objects. The system keeps objects for itself there, so
/// a difference is a note and the comparison is true.
struct ObjectCounts {
    int pens = 0;
    int brushes = 0;
    int fonts = 0;
    int bitmaps = 0;
    int regions = 0;
    int dcs = 0;
    int otherGdi = 0;
    int windows = 0;
    int menus = 0;

    bool operator==(const ObjectCounts& other) const;
};

/// Writes the counts by kind, so that the message of a failed comparison names the leaked kind.
std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts);

/// Counts the existing objects. The system makes some objects with the first DC and the first window of a
/// process, so a test makes both before its first count.
ObjectCounts CountObjects();

/// Whether objects are counted by kind (64-bit Wine only). Otherwise tests of single kinds skip themselves.
bool CanCountGdiObjects();

} // namespace testkit
