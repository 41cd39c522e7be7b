// Counts the system objects of this process, to find leaks.
#pragma once

#include <iosfwd>
#include <string>

namespace testkit {

/// The numbers of system objects that this process holds. A test compares the counts before and after an
/// operation. GetGuiResources cannot serve for that: it returns 0 under Wine.
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

/// Whether the GDI table of the process can be read (64-bit only). Otherwise all GDI counts are 0, and tests
/// of them skip themselves.
bool CanCountGdiObjects();

} // namespace testkit
