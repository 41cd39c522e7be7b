#pragma once

namespace kavlix {

/// A place in a picture, in the units of its canvas: x to the right, y downwards.
struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// A rectangle in a picture, in the units of its canvas.
struct PlaneRect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
};

/// Cuts the stroke from `a` to `b` to the part inside `area`, edges included. False when none is.
bool ClipStroke(const PlaneRect& area, PlanePoint& a, PlanePoint& b);

} // namespace kavlix
