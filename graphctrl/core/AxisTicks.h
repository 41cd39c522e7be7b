// SPDX-License-Identifier: MIT
// The ticks of value axes, and the choice of labelled ticks along the X axis.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "plot/IndexRange.h"

namespace kavlix {

/// The values of the ticks of a value axis from bottom to top: the range in equal steps, divided by a power
/// of ten. Each value is the previous value plus the step. So rounding errors add up, and labels with many
/// decimal places show them.
class ValueTicks {
public:
    /// `ticks` is the number of ticks, at least 2. The values are divided by 10 to the power of `exponent`,
    /// unless that power is too small for a double.
    ValueTicks(double min, double max, int ticks, int exponent);
    double Value() const { return m_value; }
    void Next() { m_value += m_step; }

private:
    double m_value;
    double m_step;
};

/// `value` as a tick label with `decimals` decimal places. Negative numbers of places count as 0, numbers
/// above 8192 as 8192.
std::string FormatTick(double value, int decimals);

/// A number of characters that no result of FormatTick for `decimals` decimal places exceeds.
int LongestTick(int decimals);

/// Where labelled ticks may stand along the X axis.
struct TickRoom {
    int left = 0;   ///< where the axis begins, logical units
    int minGap = 0; ///< least distance from `left` to the second tick, logical units
    int from = 0;   ///< left end of the part where ticks or labels can be visible, logical units
    int to = 0;     ///< right end of the part where ticks or labels can be visible, logical units
};

/// Chooses which of many points along the X axis get a labelled tick.
///
/// The first tick stands at the first point at or right of `room.left`, the second at the first point at
/// least `room.minGap` right of `room.left`. If the second tick stands at point k, each further tick stands k
/// points after the tick before it. Of several ticks in one device column only the first is made. The points
/// of ticks are found by binary search, so the cost grows with the number of ticks and not of points.
///
/// The positions `xOf(0)`, `xOf(1)`, ... of the `count` points never decrease. `nextColumn(x)` is the first
/// position right of `x` in another device column. `emit(k, x)` is called for each tick from `room.from` to
/// `room.to`.
template <class Position, class NextColumn, class Emit>
void ThinTicks(int count, const TickRoom& room, Position xOf, NextColumn nextColumn, Emit emit) {
    const auto firstFrom = [&](std::int64_t begin, std::int64_t x) {
        std::int64_t end = count;
        while (begin < end) {
            const std::int64_t middle = begin + (end - begin) / 2;
            if (xOf(static_cast<int>(middle)) < x)
                begin = middle + 1;
            else
                end = middle;
        }
        return begin;
    };

    std::int64_t nextX = room.left;
    std::int64_t free = nextX; // the first position right of the last tick's device column
    std::int64_t interval = 0; // 0: still unknown
    std::int64_t k = firstFrom(0, nextX);
    while (k < count) {
        const int x = xOf(static_cast<int>(k));
        if (x > room.to)
            return;
        if (interval == 0 && nextX != room.left)
            interval = std::max<std::int64_t>(k, 1);
        if (x >= free) {
            free = nextColumn(x);
            if (x >= room.from)
                emit(static_cast<int>(k), x);
        }
        if (interval != 0) {
            const std::int64_t next = firstFrom(k + 1, std::max<std::int64_t>(free, room.from));
            k += std::max<std::int64_t>((next - k + interval - 1) / interval, 1) * interval;
        } else {
            nextX += room.minGap;
            // With a gap of 0 the interval stays unknown: every point in a new device column gets a tick.
            k = firstFrom(k + 1, room.minGap == 0 ? std::max<std::int64_t>(free, room.from) : nextX);
        }
    }
}

/// Calls `emit(index, x)` for each labelled tick of an axis whose points are those of the samples 0
/// to `count` - 1 with `min` <= X <= `max`. Makes no ticks when the samples have no positions, and
/// when positions decrease.
template <class NextColumn, class Emit> void LineTicks(const LinearMap& xMap, double min, double max,
                                                       int count, const TickRoom& room, NextColumn nextColumn,
                                                       Emit emit) {
    const IndexRange visible = IndicesBetween(min, max, count);
    if (!xMap.IsAscending() || !xMap.Position(visible.first))
        return;
    ThinTicks(
        visible.Count(), room,
        [&](int k) { return xMap.Position(static_cast<double>(visible.first) + k).value_or(room.left); },
        nextColumn, [&](int k, int x) { emit(visible.first + k, x); });
}

} // namespace kavlix
