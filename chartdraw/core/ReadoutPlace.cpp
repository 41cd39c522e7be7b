// SPDX-License-Identifier: MIT
// The choice among the places beside a point and in the corners of an area.
#include "chartdraw/core/ReadoutPlace.h"

#include <algorithm>

namespace kavlix {

Rect PlaceReadout(const Rect& area, int width, int height, const std::vector<Point>& points) {
    constexpr int kDistance = 10; // pixels between the first point and the box
    const Point at = points.front();
    const int right = area.right - width;
    const int bottom = area.bottom - height;
    const int lefts[] = {at.x + kDistance, at.x - kDistance - width + 1, right, area.left};
    const int tops[] = {at.y + kDistance, at.y - kDistance - height + 1, area.top, bottom};
    // A box that hides a point at each corner of the area hides the point wherever it stands.
    Rect best;
    std::size_t fewest = points.size() * 2 + 1;
    for (const int x : lefts)
        for (const int y : tops) {
            const int left = std::clamp(x, area.left, right);
            const int top = std::clamp(y, area.top, bottom);
            const Rect place = {left, top, left + width, top + height};
            std::size_t hidden = place.Contains(at) ? points.size() : 0;
            for (const Point& point : points)
                hidden += place.Contains(point) ? 1 : 0;
            if (hidden >= fewest)
                continue;
            best = place;
            fewest = hidden;
        }
    return best;
}

} // namespace kavlix
