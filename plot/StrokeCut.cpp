// SPDX-License-Identifier: MIT
// Nearer ends for long strokes, found with integer arithmetic on their slopes.
#include "plot/StrokeCut.h"

#include <algorithm>
#include <cstdlib>

namespace kavlix {
namespace {

/// The direction of a stroke: `moves` pixels across while it takes `steps` steps along its longer side.
struct Slope {
    std::int64_t moves;
    std::int64_t steps;
};

bool operator<(const Slope& a, const Slope& b) {
    return a.moves * b.steps < b.moves * a.steps;
}

/// The farthest step, at most `last`, that one stroke from step `start` can reach with the same pixels as
/// `line`. The search ends as soon as it finds a step that is not before `enough`.
std::int64_t FarthestStep(const PixelLine& line, std::int64_t start, std::int64_t enough, std::int64_t last) {
    const std::int64_t startMoves = line.MovesAt(start);
    const std::int64_t atHalf = line.AtHalf();
    // Bounds of the new stroke's slope. Each move of the line narrows them.
    Slope least{0, 1};
    Slope most{1, 0};
    std::int64_t farthest = start;
    std::int64_t runBegin = 1; // first step with `moves` moves; steps and moves count from `start`
    for (std::int64_t moves = 0;; ++moves) {
        const std::int64_t next = startMoves + moves + 1;
        const std::int64_t runLast =
            next > line.Moves() ? last - start : std::min(line.StepOf(next) - 1, last) - start;
        const std::int64_t low = std::max(runBegin, (moves * most.steps - atHalf) / most.moves + 1);
        const std::int64_t high =
            least.moves == 0 ? runLast : std::min(runLast, (moves * least.steps - atHalf) / least.moves);
        if (low <= high)
            farthest = start + high;
        if (farthest >= enough || start + runLast >= last)
            return farthest;
        runBegin = runLast + 1;
        least = std::max(least, Slope{2 * moves + 1, 2 * runBegin});
        most = std::min(most, Slope{2 * moves + 1, 2 * runLast});
        if (!(least < most))
            return farthest;
    }
}

/// A slope of small numbers near the slope of `line`. Between two lines of these slopes that begin at the
/// same pixel position, no pixel position lies within `steps` steps.
Slope SimpleSlope(const PixelLine& line, std::int64_t steps) {
    const Slope wanted{line.Moves(), line.Steps()};
    Slope below{0, 1};
    Slope above{1, 1};
    if (wanted.moves == 0 || wanted.moves == wanted.steps)
        return wanted.moves == 0 ? below : above;
    if (wanted < Slope{1, steps})
        return {1, steps + 1};
    // Descend the tree of fractions (Stern-Brocot) towards `wanted`. A line that begins at a pixel position
    // meets another pixel position within `steps` steps exactly when the denominator of its slope is at most
    // `steps`. So the search ends at the first larger denominator, or at `wanted` itself.
    Slope slope{1, 2};
    while (slope.steps <= steps) {
        if (slope < wanted)
            below = slope;
        else if (wanted < slope)
            above = slope;
        else
            break;
        slope = {below.moves + above.moves, below.steps + above.steps};
    }
    return slope;
}

/// Brings both ends of a stroke of any width nearer to `window`. The ends lie outside the window, which holds
/// the view and the pen's reach around it. Inside the window each edge of the new stroke has the same pixels
/// on either side as the edge of the old stroke. False when the stroke misses the window. Both ends stay when
/// one of them is not far enough away.
///
/// GDI treats a pixel position exactly on an edge as lying to the right of the edge. So the stroke may be
/// shifted onto the nearest pixel position on its right, and turned around this position until it meets
/// another pixel position.
bool BringEndsNearer(Point& from, Point& to, const Rect& window) {
    const PixelLine line(from, to);
    std::int64_t first = 0;
    std::int64_t end = 0;
    if (!line.FindInside(window, first, end))
        return false;
    // Find the pixel position nearest to the stroke, among those on it and to its right.
    const bool isRightAbove = !line.IsSteep() && line.StepsDown() == line.MovesDown();
    const bool isBefore = isRightAbove != line.MovesDown(); // positions on the right have fewer moves
    std::int64_t nearest = first;
    std::int64_t nearestMoves = 0;
    std::int64_t least = line.Steps();
    const auto movesAt = [&](std::int64_t step) { return step * line.Moves() / line.Steps(); };
    for (std::int64_t moves = movesAt(first); least > 0 && moves <= movesAt(end - 1) + 1; ++moves) {
        std::int64_t step = first;
        if (line.Moves() > 0)
            step = (moves * line.Steps() + (isBefore ? line.Moves() - 1 : 0)) / line.Moves();
        step = std::clamp(step, first, end - 1);
        const std::int64_t ahead = step * line.Moves() - moves * line.Steps();
        const std::int64_t gap = isBefore ? ahead : -ahead;
        if (gap >= 0 && gap < least) {
            least = gap;
            nearest = step;
            nearestMoves = moves;
        }
    }
    // A stroke that stays between two neighbouring columns in the whole window has the same edges there as a
    // vertical stroke.
    constexpr std::int64_t kUpright = 128; // steps per move; only steeper strokes can become vertical
    const auto isAtNearest = [&](std::int64_t step) {
        const std::int64_t ahead = step * line.Moves() - nearestMoves * line.Steps();
        return (isBefore ? ahead : -ahead) >= 0 && std::llabs(ahead) < line.Steps();
    };
    const bool isUpright = line.IsSteep() && kUpright * line.Moves() < line.Steps() && isAtNearest(first) &&
                           isAtNearest(end - 1);
    if (isUpright && std::min(from.y, to.y) < window.top && std::max(from.y, to.y) > window.bottom) {
        const int x = line.At(nearest, nearestMoves).x;
        from = {x, line.StepsDown() ? window.bottom : window.top - 1};
        to = {x, line.StepsDown() ? window.top - 1 : window.bottom};
        return true;
    }
    const Slope slope = SimpleSlope(line, end - first);
    const std::int64_t times = (end - first) / slope.steps + 1;
    const std::int64_t begin = nearest - times * slope.steps;
    const std::int64_t behind = nearest + times * slope.steps;
    if (begin <= 0 || behind >= line.Steps())
        return true;
    from = line.At(begin, nearestMoves - times * slope.moves);
    to = line.At(behind, nearestMoves + times * slope.moves);
    return true;
}

} // namespace

void CutStroke(const PixelLine& line, const Rect& window, int margin, std::vector<Point>& points) {
    points.clear();
    std::int64_t first = 0;
    std::int64_t end = 0;
    if (!line.FindInside(window, first, end))
        return;
    std::int64_t step = std::max<std::int64_t>(first - margin, 0);
    const std::int64_t last = std::min(end - 1 + margin, line.Steps());
    points.push_back(line.At(step, line.MovesAt(step)));
    while (step < end) {
        step = FarthestStep(line, step, end, last);
        points.push_back(line.At(step, line.MovesAt(step)));
    }
}

Point NearerEnd(const Point& from, const Point& to, std::int64_t steps) {
    const PixelLine line(from, to);
    const Slope slope = SimpleSlope(line, steps);
    const std::int64_t times = steps / slope.steps + 1;
    return slope.steps * times < line.Steps() ? line.At(slope.steps * times, slope.moves * times) : to;
}

bool BringFarEndsNearer(Point& from, Point& to, bool isFromFar, bool isToFar, const Rect& view,
                        int penPixels) {
    if (isFromFar && isToFar) {
        const int margin = 2 * penPixels + 2;
        return BringEndsNearer(
            from, to, {view.left - margin, view.top - margin, view.right + margin, view.bottom + margin});
    }
    if (isFromFar)
        from = NearerEnd(to, from, 2 * StepsAcross(view, to));
    else if (isToFar)
        to = NearerEnd(from, to, 2 * StepsAcross(view, from));
    return true;
}

} // namespace kavlix
