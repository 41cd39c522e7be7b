#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "graphctrl/core/IndexRange.h"

namespace kavlix {

/// The values of a value axis' ticks, bottom to top: the range in equal steps, divided by a power of ten.
/// Values are made by repeated addition, so that the last one carries the rounding of all steps.
class ValueTicks {
public:
    /// `ticks` at least 2. A power that is too small for a double leaves the values undivided.
    ValueTicks(double min, double max, int ticks, int exponent);
    double Value() const { return m_value; }
    void Next() { m_value += m_step; }

private:
    double m_value;
    double m_step;
};

/// `value` as a tick label with that many decimal places, below 1 none. Decimals beyond what can be drawn are
/// cut.
std::string FormatTick(double value, int decimals);

/// The most characters that FormatTick makes with that many decimal places.
int LongestTick(int decimals);

/// Where labelled ticks may stand along the X axis, in logical units.
struct TickRoom {
    int left = 0;   ///< where the axis begins
    int minGap = 0; ///< between the first two ticks
    int from = 0;   ///< ticks left of here show nothing
    int to = 0;     ///< nor do ticks right of here
};

/// Chooses which of many points along the X axis get a labelled tick.
///
/// The first point does; the second is the first one at least `minGap` right of `left`; the number of points
/// between these two is kept as the interval of all others. Of ticks in one device column only the first is
/// made. Points are skipped by arithmetic, not visited.
///
/// `count` points have positions `xOf(0)`, `xOf(1)`, ... that never decrease; `nextColumn(x)` is the first
/// position right of `x` in another device column; `emit(k, x)` is called for each tick that shows.
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
    std::int64_t free = nextX; // right of the column of the last tick made
    std::int64_t interval = 0; // not known yet
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
            // Without a gap the interval stays unknown: every point gets a tick, if its column is free.
            k = firstFrom(k + 1, room.minGap == 0 ? std::max<std::int64_t>(free, room.from) : nextX);
        }
    }
}

/// Calls `emit(index, x)` for each labelled tick of an axis whose points are the samples 0 to `count` - 1
/// within min <= X <= max. None where samples have no position.
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
