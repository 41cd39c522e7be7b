// SPDX-License-Identifier: MIT
// Points and rectangles of a picture, with fractional coordinates.
#pragma once

namespace kavlix {

/// A place in a picture, in logical units of the canvas: x to the right, y downwards.
struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// A rectangle in a picture, in logical units of the canvas.
struct PlaneRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

/// Cuts the stroke from `a` to `b` to its part inside `area`. The edges of `area` count as inside. False when
/// no part is inside.
bool ClipStroke(const PlaneRect& area, PlanePoint& a, PlanePoint& b);

} // namespace kavlix
