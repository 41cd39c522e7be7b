// SPDX-License-Identifier: MIT
// Shortens strokes whose ends lie far outside the view. Their pixels inside the view stay the same.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "plot/PixelLine.h"

namespace kavlix {

/// The end of a wide stroke is far when it lies more than this many pixels beyond the view.
constexpr int kFarFromView = 512;

/// Replaces the stroke `line` by shorter strokes: `points` receives the ends of strokes that follow one
/// another. A pen one pixel wide paints the same pixels of `window` with these strokes as with `line`.
/// `points` is empty when `line` has no pixel in the window. All points are pixels of `line` in the window or
/// at most `margin` pixels outside it; `margin` is at least 1. An end of `line` in the window is kept.
///
/// One shorter stroke is seldom enough: its ends are whole pixels, so its direction differs a little from the
/// direction of `line`, and the stroke would change rows or columns at other steps.
void CutStroke(const PixelLine& line, const Rect& window, int margin, std::vector<Point>& points);

/// A nearer end for the stroke of any width from `from` to `to`. Within `steps` pixels of `from`, each edge
/// of the shorter stroke has the same pixels on either side as the edge of the whole stroke. The result is
/// the first possible end more than `steps` pixels away, or `to` when there is none before `to`.
Point NearerEnd(const Point& from, const Point& to, std::int64_t steps);

/// Brings the far ends of a wide stroke nearer to `view`: GDI needs time for the whole length of a stroke,
/// also where it is clipped. A pen of `penPixels` paints the same pixels of `view` as before. All positions
/// are device pixels. `isFromFar` and `isToFar` tell which ends are far; an end that is not far stays. False,
/// with both ends unchanged, when both ends are far and the stroke misses the view by more than twice
/// `penPixels`; it then paints no pixel of the view.
bool BringFarEndsNearer(Point& from, Point& to, bool isFromFar, bool isToFar, const Rect& view,
                        int penPixels);

/// The largest number of steps that a stroke from `from` can take before it leaves `window`.
inline std::int64_t StepsAcross(const Rect& window, const Point& from) {
    return std::max({std::abs(from.x - window.left), std::abs(from.x - window.right),
                     std::abs(from.y - window.top), std::abs(from.y - window.bottom)});
}

} // namespace kavlix
