// SPDX-License-Identifier: MIT
// Sectors, rims and the arrangement of pies. The rim is the side wall of a tilted pie.
#pragma once

#include <functional>
#include <vector>

#include "graph/core/KeyedValue.h"
#include "graph/core/PlanePoint.h"

namespace kavlix {

/// The sector of one group. Angles are in degrees clockwise; 0 is twelve o'clock.
struct Sector {
    int group = 0;
    double start = 0;
    double sweep = 0;
    double percent = 0;

    double Middle() const { return start + sweep / 2; }
    /// Whether `angle` lies in the sector. Full turns make no difference.
    bool Holds(double angle) const;
};

/// A sector for each positive value, in the same order. Together the sectors, if any, have 360 degrees.
std::vector<Sector> MakeSectors(const std::vector<KeyedValue>& values);

/// The outline of a pie: an ellipse. `radiusX` is half its width, `radiusY` half its height. Angles are those
/// of the circle before it is tilted.
struct PieOutline {
    PlanePoint centre;
    double radiusX = 0;
    double radiusY = 0;

    /// The place at `angle`. `reach` is the distance from the centre as a multiple of the radius.
    PlanePoint At(double angle, double reach = 1) const;
    /// The length of a sector's arc on a circle of radius `radiusX`: as if the pie were not tilted.
    double ArcLength(const Sector& sector) const;
    /// Whether `box` lies in the sector and keeps a small distance from the outline. Checks the corners only:
    /// the caller makes sure that the middle of the box lies in the sector.
    bool Holds(const Sector& sector, const PlaneRect& box) const;
};

/// The corners of a sector as a polygon: points of its arc, then the centre. A whole circle has
/// no centre point.
std::vector<PlanePoint> SectorCorners(const PieOutline& pie, double start, double sweep);

/// A part of a pie's rim, in degrees clockwise from twelve o'clock.
struct RimArc {
    double start = 0;
    double sweep = 0;
};

/// The parts of a sector's rim that the viewer of a tilted pie sees: the parts between three and nine
/// o'clock. None, one or two.
std::vector<RimArc> VisibleRim(double start, double sweep);

/// The corners of a part of the rim as a polygon. The rim is `height` high, and hangs down from the arc.
std::vector<PlanePoint> RimCorners(const PieOutline& pie, const RimArc& arc, double height);

/// An arrangement of equal boxes in columns and rows.
struct PieGrid {
    int columns = 1;
    int rows = 1;
};

/// Arranges `count` boxes in an area of `width` x `height` so that the pies become as large as possible.
/// `radius(w, h)` is the radius of a pie in a box of width w and height h. A box is at least `smallest` wide
/// and high, unless the area is smaller. If fewer than `count` boxes fit, the grid has as many as fit.
PieGrid ArrangePies(int count, double width, double height, double smallest,
                    const std::function<double(double, double)>& radius);

} // namespace kavlix
