#include "graphctrl/StrokeCut.h"

#include <algorithm>

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
    const Slope wanted{line.Moves(), line.Steps()};
    Slope below{0, 1};
    Slope above{1, 1};
    Slope way = wanted.moves == 0 ? below : above;
    if (wanted.moves != 0 && wanted.moves != wanted.steps) {
        // Down the tree of fractions, past all whose lines meet a place within the steps.
        for (way = {1, 2}; way.steps <= steps; way = {below.moves + above.moves, below.steps + above.steps}) {
            if (way < wanted)
                below = way;
            else if (wanted < way)
                above = way;
            else
                break;
        }
    }
    const std::int64_t times = steps / way.steps + 1;
    return way.steps * times < line.Steps() ? line.At(way.steps * times, way.moves * times) : to;
}

} // namespace kavlix
