// SPDX-License-Identifier: MIT
// Distances between leader lines, and between a leader line and a point.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Whether the stroke from `from` to `to` passes (`x`, `y`) at less than `distance` pixels.
bool IsCloserThan(Point from, Point to, double x, double y, double distance);

/// Whether two polylines cross or lie side by side so long that a reader would confuse them.
bool RunTogether(const std::vector<Point>& line, const std::vector<Point>& other);

} // namespace kavlix
