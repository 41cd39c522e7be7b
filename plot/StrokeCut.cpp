// Where strokes from far away may end instead.
#include "plot/StrokeCut.h"

#include <algorithm>
#include <cstdlib>

namespace kavlix {

namespace {

/// `moves` pixels across on `steps` steps.
struct Slope {
    std::int64_t moves;
    std::int64_t steps;
};

bool operator<(const Slope& a, const Slope& b) {
    return a.moves * b.steps < b.moves * a.steps;
}

/// The farthest step, not beyond `last`, to which one stroke from `start` takes the same pixels as `line`.
/// Steps beyond `enough` are not looked for.
std::int64_t FarthestStep(const PixelLine& line, std::int64_t start, std::int64_t enough, std::int64_t last) {
    const std::int64_t startMoves = line.MovesAt(start);
    const std::int64_t atHalf = line.AtHalf();
    // Each move of the line tells how steep the stroke must be at least and may be at most.
    Slope least{0, 1};
    Slope most{1, 0};
    std::int64_t farthest = start;
    std::int64_t runBegin = 1; // steps that have made `moves` moves, counted from the start
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

/// The way that a stroke may take in place of `line`, with no pixel's place between the two for `steps`
/// steps.
Slope WayOf(const PixelLine& line, std::int64_t steps) {
    const Slope wanted{line.Moves(), line.Steps()};
    Slope below{0, 1};
    Slope above{1, 1};
    if (wanted.moves == 0 || wanted.moves == wanted.steps)
        return wanted.moves == 0 ? below : above;
    if (wanted < Slope{1, steps})
        return {1, steps + 1};
    // Down the tree of fractions, past all whose lines meet a place within the steps.
    Slope way{1, 2};
    while (way.steps <= steps) {
        if (way < wanted)
            below = way;
        else if (wanted < way)
            above = way;
        else
            break;
        way = {below.moves + above.moves, below.steps + above.steps};
    }
    return way;
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
    const Slope way = WayOf(line, steps);
    const std::int64_t times = steps / way.steps + 1;
    return way.steps * times < line.Steps() ? line.At(way.steps * times, way.moves * times) : to;
}

bool BringEndsNearer(Point& from, Point& to, const Rect& window) {
    const PixelLine line(from, to);
    std::int64_t first = 0;
    std::int64_t end = 0;
    if (!line.FindInside(window, first, end))
        return false;
    // The place to the right of the stroke, or on it, that is nearest to it: moved there it passes no other.
    const bool isRightAbove = !line.IsSteep() && line.StepsDown() == line.MovesDown();
    const bool isBefore = isRightAbove != line.MovesDown(); // fewer moves than the stroke has made
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
    // Upright in all of the window: a stroke straight down has the same edges.
    constexpr std::int64_t kUpright = 128; // steps without a move, from which on no edge is rounded otherwise
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
    const Slope way = WayOf(line, end - first);
    const std::int64_t times = (end - first) / way.steps + 1;
    const std::int64_t begin = nearest - times * way.steps;
    const std::int64_t behind = nearest + times * way.steps;
    if (begin <= 0 || behind >= line.Steps())
        return true;
    from = line.At(begin, nearestMoves - times * way.moves);
    to = line.At(behind, nearestMoves + times * way.moves);
    return true;
}

} // namespace kavlix
