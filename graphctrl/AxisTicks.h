#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "graphctrl/IndexRange.h"

namespace kavlix {

/// Smallest distance of two ticks that can be told apart: a pixel, in logical units.
constexpr int kPixel = 30;

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

/// Chooses which of many points along the X axis get a labelled tick.
///
/// The first point does; the second is the first one at least `minGap` right of `left`; the number of points
/// between these two is kept as the interval of all others. Points are skipped by arithmetic, not visited,
/// and of ticks that would fall on one pixel only the first is made.
///
/// `count` points have positions `xOf(0)`, `xOf(1)`, ... that never decrease; `emit(k, x)` is called for each
/// tick.
template <class Position, class Emit>
void ThinTicks(int count, int left, int minGap, Position xOf, Emit emit) {
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

    std::int64_t nextX = left;
    std::int64_t interval = 0; // not known yet
    std::int64_t k = firstFrom(0, nextX);
    while (k < count) {
        const std::int64_t x = xOf(static_cast<int>(k));
        if (interval == 0 && nextX != left)
            interval = std::max<std::int64_t>(k, 1);
        emit(static_cast<int>(k), static_cast<int>(x));
        if (interval != 0) {
            const std::int64_t steps = (firstFrom(k + 1, x + kPixel) - k + interval - 1) / interval;
            k += std::max<std::int64_t>(steps, 1) * interval;
        } else {
            nextX += minGap;
            k = firstFrom(k + 1, minGap > 0 ? nextX : x + kPixel);
        }
    }
}

/// Calls `emit(index, x)` for each labelled tick of an axis whose points are the samples 0 to `count` - 1
/// within min <= X <= max. None on a range that is 0, turned round or infinite.
template <class Emit>
void LineTicks(const LinearMap& xMap, double min, double max, int count, int minGap, Emit emit) {
    if (!xMap.IsMonotonic() || !xMap.IsAscending())
        return;
    const IndexRange visible = IndicesBetween(min, max, count);
    ThinTicks(
        visible.Count(), xMap.Edge(), minGap,
        [&](int k) { return xMap.Position(static_cast<double>(visible.first) + k).value_or(xMap.Edge()); },
        [&](int k, int x) { emit(visible.first + k, x); });
}

} // namespace kavlix
