#pragma once

#include <iosfwd>
#include <string>

namespace testkit {

/// How many system objects this process holds at a moment. Two values are compared to show that an
/// operation leaks nothing; GetGuiResources cannot be used for that, as it answers 0 under Wine.
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

    /// All GDI objects together.
    int Gdi() const;
    bool operator==(const ObjectCounts& other) const;
};

/// Writes the counts by kind, so that a failed comparison names what leaked.
std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts);

/// Counts what is alive now. The system makes some objects with the first DC and the first window of a
/// process: let those come into being before the first count.
ObjectCounts CountObjects();

/// Whether the process's GDI table can be read on this system (64-bit only). Where it cannot, the GDI counts
/// are all 0 and a test of them must skip itself.
bool CanCountGdiObjects();

} // namespace testkit
