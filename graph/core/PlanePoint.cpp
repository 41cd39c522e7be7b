// SPDX-License-Identifier: MIT
// Cutting strokes at a rectangle.
#include "graph/core/PlanePoint.h"

#include <algorithm>

namespace kavlix {
namespace {

/// Narrows the range [enter, leave] of t to the part where start + t * delta lies within [low, high]. False
/// when no part remains.
bool Narrow(double start, double delta, double low, double high, double& enter, double& leave) {
    if (delta == 0)
        return start >= low && start <= high;
    const double first = ((delta > 0 ? low : high) - start) / delta;
    const double last = ((delta > 0 ? high : low) - start) / delta;
    enter = std::max(enter, first);
    leave = std::min(leave, last);
    return enter <= leave;
}

} // namespace

bool ClipStroke(const PlaneRect& area, PlanePoint& a, PlanePoint& b) {
    const PlanePoint delta{b.x - a.x, b.y - a.y};
    double enter = 0;
    double leave = 1;
    if (!Narrow(a.x, delta.x, area.left, area.right, enter, leave) ||
        !Narrow(a.y, delta.y, area.top, area.bottom, enter, leave))
        return false;
    const PlanePoint from = a;
    if (leave < 1)
        b = {from.x + leave * delta.x, from.y + leave * delta.y};
    if (enter > 0)
        a = {from.x + enter * delta.x, from.y + enter * delta.y};
    return true;
}

} // namespace kavlix
