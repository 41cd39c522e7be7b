// SPDX-License-Identifier: MIT
// Conversions between the platform-free points and rectangles and those of the class library.
#pragma once

#include <afxwin.h>

#include "plot/Shapes.h"

namespace kavlix {

inline CRect ToCRect(const Rect& rect) {
    return CRect(rect.left, rect.top, rect.right, rect.bottom);
}

inline Rect ToRect(const CRect& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

inline Point ToPoint(const CPoint& point) {
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

} // namespace kavlix
