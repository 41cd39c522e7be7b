// SPDX-License-Identifier: MIT
// The six shapes of markers.
#include "graph/GraphMarker.h"

#include <vector>

#include "graph/core/Solid.h"

namespace kavlix {

void DrawMarker(GraphCanvas& canvas, PlanePoint centre, int index, COLORREF colour) {
    constexpr int kShapes = 6;
    constexpr double kRadius = 4; // pixels
    constexpr double kArm = 1.5;  // pixels; half the width of the cross's arms; the diamond's extra radius
    const double r = kRadius * canvas.Pixel();
    const double a = kArm * canvas.Pixel();
    const double x = centre.x;
    const double y = centre.y;
    canvas.SetFill(colour);
    canvas.SetLine(OutlineOf(colour));
    std::vector<PlanePoint> corners;
    switch (index % kShapes) {
    case 0:
        canvas.Circle(centre, r);
        return;
    case 1: // square
        corners = {{x - r, y - r}, {x + r, y - r}, {x + r, y + r}, {x - r, y + r}};
        break;
    case 2: // triangle, point up
        corners = {{x, y - r}, {x + r, y + r}, {x - r, y + r}};
        break;
    case 3: // diamond
        corners = {{x, y - r - a}, {x + r + a, y}, {x, y + r + a}, {x - r - a, y}};
        break;
    case 4: // triangle, point down
        corners = {{x - r, y - r}, {x + r, y - r}, {x, y + r}};
        break;
    default: // cross
        corners = {{x - a, y - r}, {x + a, y - r}, {x + a, y - a}, {x + r, y - a},
                   {x + r, y + a}, {x + a, y + a}, {x + a, y + r}, {x - a, y + r},
                   {x - a, y + a}, {x - r, y + a}, {x - r, y - a}, {x - a, y - a}};
        break;
    }
    canvas.Polygon(corners);
}

} // namespace kavlix
