// SPDX-License-Identifier: MIT
// PlaceReadout: a place for a box of texts beside the points that it tells about.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// A place for a box of `width` x `height` pixels in `area`, which must be large enough: a little beside the first
/// point, or where it hides fewer of the points. The first point is hidden only when the box hides it everywhere.
/// There is at least one point.
Rect PlaceReadout(const Rect& area, int width, int height, const std::vector<Point>& points);

} // namespace kavlix
