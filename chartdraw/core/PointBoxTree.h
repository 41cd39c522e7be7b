// SPDX-License-Identifier: MIT
// Bounding boxes of consecutive points, in several levels.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "kavlix/ChunkedArray.h"
#include "plot/Prefetch.h"

namespace kavlix {

/// A point of a dataset.
struct ChartPoint {
    double x;
    double y;

    bool IsGap() const { return x != x || y != y; } // NaN
};

constexpr std::size_t kPointsPerChunk = 256; ///< number of points in a chunk, contiguous in memory
using ChartPoints = ChunkedArray<ChartPoint, kPointsPerChunk>;

/// The bounding box of some points. All values are NaN when one of the points is a gap.
struct PointBox {
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool HasGap() const { return left != left; }
    void Add(const ChartPoint& point);
    void Add(const PointBox& box);
};

/// The bounding boxes of every 32 points of a series, of every 32 of those boxes, and so on. A painter uses
/// them to skip points that cannot change a pixel. The points inside one box form a block. The points after
/// the last complete block have no box. The boxes take about one byte for each point.
class PointBoxTree {
public:
    /// Call this after each point that is added to `points`. Throws std::bad_alloc, with nothing changed,
    /// when memory runs out.
    void Update(const ChartPoints& points);
    /// Call this after the last point of `points` has changed.
    void UpdateLast(const ChartPoints& points);

    /// Prefetches the points of the lowest block that contains point `i`, if that point exists.
    static void Prefetch(const ChartPoints& points, std::int64_t i) {
        if (i < 0 || static_cast<std::size_t>(i) >= points.Size())
            return;
        const ChartPoint* const block = &points[static_cast<std::size_t>(i) / kFanOut * kFanOut];
        PrefetchMemory(block, block + kFanOut);
    }

    /// Visits the points from `begin` to before `end` in order. `takeBox(box, first, last)` is called for the
    /// largest blocks first. The result true means that the whole block is dealt with; otherwise the blocks
    /// inside it are tried. All points outside the blocks that are dealt with are passed to
    /// `takePoints(first, behind)`, at most 32 at a time, from `first` to before `behind`; these points are
    /// contiguous in memory.
    template <class TakeBox, class TakePoints>
    void Visit(int begin, int end, TakeBox takeBox, TakePoints takePoints) const {
        std::size_t next = static_cast<std::size_t>(begin);
        const auto stop = static_cast<std::size_t>(end);
        while (next < stop) {
            const std::size_t start = next;
            for (std::size_t level = LevelAt(start); level > 0 && next == start; --level) {
                const std::size_t behind = start + Size(level);
                const Boxes& boxes = m_levels[level - 1];
                const std::size_t place = start / Size(level);
                if (behind <= stop && place < boxes.Size() &&
                    takeBox(boxes[place], static_cast<int>(start), static_cast<int>(behind - 1)))
                    next = behind;
            }
            if (next != start)
                continue;
            next = std::min(start - start % kFanOut + kFanOut, stop);
            takePoints(static_cast<int>(start), static_cast<int>(next));
        }
    }

    /// The last point from `begin` to before `end` for which `isWanted(i)` is true; `begin` - 1 when there is
    /// none. `isUnwanted(box)` returns true to skip a block without wanted points.
    template <class IsUnwanted, class IsWanted>
    int FindLast(int begin, int end, IsUnwanted isUnwanted, IsWanted isWanted) const {
        std::size_t behind = static_cast<std::size_t>(end);
        const auto stop = static_cast<std::size_t>(begin);
        while (behind > stop) {
            const std::size_t start = behind;
            for (std::size_t level = LevelAt(start); level > 0 && behind == start; --level) {
                const Boxes& boxes = m_levels[level - 1];
                const std::size_t place = start / Size(level) - 1;
                if (start - stop >= Size(level) && place < boxes.Size() && isUnwanted(boxes[place]))
                    behind = start - Size(level);
            }
            if (behind != start)
                continue;
            const std::size_t low = std::max((start - 1) / kFanOut * kFanOut, stop);
            for (; behind > low; --behind)
                if (isWanted(static_cast<int>(behind - 1)))
                    return static_cast<int>(behind - 1);
        }
        return begin - 1;
    }

private:
    using Boxes = ChunkedArray<PointBox, 64>;

    static constexpr std::size_t kShift = 5;
    static constexpr std::size_t kFanOut = std::size_t{1} << kShift; ///< points or boxes in a block
    static_assert(kPointsPerChunk % kFanOut == 0, "the points of a lowest block lie in one chunk");
    static constexpr std::size_t kLevels = 6; ///< enough for as many points as an int counts

    /// Number of points in a block of a level; level 1 is the lowest.
    static std::size_t Size(std::size_t level) { return std::size_t{1} << (kShift * level); }
    /// The highest level of which a block begins at point `i`; 0 when no block begins there.
    static std::size_t LevelAt(std::size_t i) {
        std::size_t level = 0;
        while (level < kLevels && i % Size(level + 1) == 0)
            ++level;
        return level;
    }

    PointBox NewestBox(const ChartPoints& points, std::size_t level) const;

    std::array<Boxes, kLevels> m_levels; ///< element 0 is level 1
};

} // namespace kavlix
