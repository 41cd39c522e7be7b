// SPDX-License-Identifier: MIT
// Point and rectangle of the platform-free code.
#pragma once

namespace kavlix {

/// A point, in logical units or in device pixels.
struct Point {
    int x = 0;
    int y = 0;
};

/// A rectangle, in logical units or in device pixels. Its right and bottom edges do not belong to it.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool Contains(Point point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
};

inline bool operator==(const Point& a, const Point& b) {
    return a.x == b.x && a.y == b.y;
}

inline bool operator==(const Rect& a, const Rect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

} // namespace kavlix
