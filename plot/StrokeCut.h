// Strokes that end near what can be seen, with the same pixels there.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "plot/PixelLine.h"

namespace kavlix {

/// Cuts a stroke whose ends may lie far away. `points` receives strokes that follow one another, of which a
/// pen one pixel wide paints the same pixels of `window` as of the whole stroke; none when it paints no pixel
/// there. An end that lies within `margin` pixels of the window stays, all other points are pixels of the
/// line no farther away than that, 1 pixel at least.
///
/// One stroke to a nearer point on the line seldom serves: pixels are whole numbers, so the shorter stroke
/// has another direction, and where it is nearer to another pixel it moves across at another step.
void CutStroke(const PixelLine& line, const Rect& window, int margin, std::vector<Point>& points);

/// Where a stroke of any width may end in place of `to`, so that its edges pass the same pixels for `steps`
/// pixels from `from` on: the nearest such pixel behind these steps, or `to` itself. Between the two
/// directions lies none whose line meets a pixel's place within the steps.
Point NearerEnd(const Point& from, const Point& to, std::int64_t steps);

/// Brings both ends of a stroke of any width nearer to `window`, which holds what can be seen and the pen's
/// width round it: the edges of the new stroke pass the same pixels of the window. The ends lie outside it.
/// False when the stroke passes by. A stroke whose ends are not far away stays as it is.
///
/// A pixel right of an edge, or on it, belongs to the right. So the stroke may move to the nearest place on
/// its right, and turn round that as far as it meets no other.
bool BringEndsNearer(Point& from, Point& to, const Rect& window);

/// The steps that no stroke from `from` on exceeds before it has left `window`.
inline std::int64_t StepsAcross(const Rect& window, const Point& from) {
    return std::max({std::abs(from.x - window.left), std::abs(from.x - window.right),
                     std::abs(from.y - window.top), std::abs(from.y - window.bottom)});
}

} // namespace kavlix
