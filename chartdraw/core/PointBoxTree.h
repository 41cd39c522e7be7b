#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "kavlix/ChunkedArray.h"

namespace kavlix {

/// A point of a chart.
struct ChartPoint {
    double x;
    double y;

    bool IsGap() const { return x != x || y != y; }
};

constexpr std::size_t kPointPiece = 256;
using Points = ChunkedArray<ChartPoint, kPointPiece>;

/// What some points lie within; NaN when one of them is a gap.
struct PointBox {
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    bool HasGap() const { return left != left; }
    void Add(const ChartPoint& point);
    void Add(const PointBox& box);
};

/// The boxes round every 32 points of a series, round every 32 of those boxes and so on, so that a painter
/// passes over points that can change no pixel. A byte a point. Points that follow the last whole block have
/// no box yet.
class PointBoxes {
public:
    /// `points` holds one point more than at the last call. Throws what `new` throws, changing
    /// nothing.
    void Update(const Points& points);

    /// Has the lowest block round point `i` of `points` brought into the cache, where there is one.
    static void Prefetch(const Points& points, std::int64_t i) {
#if defined(__GNUC__)
        constexpr std::size_t kLine = 64; // bytes
        if (i < 0 || static_cast<std::size_t>(i) >= points.Size())
            return;
        const auto* block = reinterpret_cast<const char*>(&points[static_cast<std::size_t>(i) / kFan * kFan]);
        for (std::size_t at = 0; at < kFan * sizeof(ChartPoint); at += kLine)
            __builtin_prefetch(block + at);
#else
        (void)points;
        (void)i;
#endif
    }

    /// Goes through the points `begin` to before `end` in order. `takeBox(box, first, last)` tells whether
    /// the whole block is dealt with; where it is not, the blocks in it are tried and in the end
    /// `takePoints(first, behind)` called for the points of a lowest block, which lie one behind another.
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
            next = std::min(start - start % kFan + kFan, stop);
            takePoints(static_cast<int>(start), static_cast<int>(next));
        }
    }

    /// The last of the points `begin` to before `end` for which `isWanted(i)`; `begin` - 1 when there is
    /// none. Blocks are passed over when `isUnwanted(box)` knows that none of their points is wanted.
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
            const std::size_t low = std::max((start - 1) / kFan * kFan, stop);
            for (; behind > low; --behind)
                if (isWanted(static_cast<int>(behind - 1)))
                    return static_cast<int>(behind - 1);
        }
        return begin - 1;
    }

private:
    using Boxes = ChunkedArray<PointBox, 64>;

    static constexpr std::size_t kFan = 32;
    static_assert(kPointPiece % kFan == 0, "the points of a lowest block lie in one piece");
    static constexpr std::size_t kShift = 5;
    static constexpr std::size_t kLevels = 6; // more points than an int counts

    /// Points in a block; level 1 is the lowest.
    static std::size_t Size(std::size_t level) {
        return std::size_t{1} << (kShift * level);
    }
    /// The highest level whose blocks have a border at point `i`.
    static std::size_t LevelAt(std::size_t i) {
        std::size_t level = 0;
        while (level < kLevels && i % Size(level + 1) == 0)
            ++level;
        return level;
    }

    std::array<Boxes, kLevels> m_levels;
};

} // namespace kavlix
