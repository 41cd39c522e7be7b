#pragma once

#include <functional>
#include <vector>

#include "graph/core/KeyedValue.h"
#include "graph/core/PlanePoint.h"

namespace kavlix {

/// One group's sector of a pie. Angles in degrees, 0 at twelve o'clock, clockwise.
struct Sector {
    int group = 0;
    double start = 0;
    double sweep = 0;
    double percent = 0;

    double Middle() const { return start + sweep / 2; }
    /// Whether the angle, whatever its round, lies within.
    bool Holds(double angle) const;
};

/// Sectors in the order given, together 360 degrees. Values of 0 and below have none; the result is empty
/// when no group has one.
std::vector<Sector> MakeSectors(const std::vector<KeyedValue>& values);

/// A pie's outline: an ellipse, wide as `radiusX`, high as `radiusY`.
struct PieOutline {
    PlanePoint centre;
    double radiusX = 0;
    double radiusY = 0;

    /// The place at `angle`, `reach` outlines away from the centre.
    PlanePoint At(double angle, double reach = 1) const;
    /// The length of a sector's rim, as if the pie were not tilted.
    double ArcLength(const Sector& sector) const;
    /// Whether the corners of `box` all lie in the sector, and clear of the outline. A box round a point of
    /// the sector then lies in it whole.
    bool Holds(const Sector& sector, const PlaneRect& box) const;
};

/// The corners of a sector: its arc, then the centre; of a whole circle the arc alone.
std::vector<PlanePoint> SectorCorners(const PieOutline& pie, double start, double sweep);

/// A stretch of a pie's rim.
struct RimArc {
    double start = 0;
    double sweep = 0;
};

/// The parts of a sector's rim that face the viewer of a pie tilted towards him: those between three and nine
/// o'clock. None, one or two.
std::vector<RimArc> VisibleRim(double start, double sweep);

/// The corners of a stretch of rim that hangs down by `height`.
std::vector<PlanePoint> RimCorners(const PieOutline& pie, const RimArc& arc, double height);

/// How many equal boxes fit side by side and below each other.
struct PieGrid {
    int columns = 1;
    int rows = 1;
};

/// The grid of `count` boxes in a room of `width` x `height` in which `radius`, the size of a pie in a box of
/// a width and a height, is largest. Fewer boxes than asked for when each would be smaller than `smallest`
/// wide or high.
PieGrid ArrangePies(int count, double width, double height, double smallest,
                    const std::function<double(double, double)>& radius);

} // namespace kavlix
