// SPDX-License-Identifier: MIT
// Index ranges of samples, found from bounds of X and from the visible positions.
#include "plot/IndexRange.h"

#include <algorithm>
#include <cmath>

namespace kavlix {

int FirstIndexFrom(double min, int count) {
    if (std::isnan(min))
        return count;
    return TruncateToInt(std::ceil(min), 0, std::max(count, 0));
}

IndexRange IndicesBetween(double min, double max, int count) {
    if (std::isnan(min) || std::isnan(max))
        return {};
    const int last = TruncateToInt(std::floor(max), -1, count - 1);
    return {FirstIndexFrom(min, count), last};
}

IndexRange IndicesToDraw(const LinearMap& xMap, int from, int to, int count) {
    if (count <= 0)
        return {};
    const IndexRange all{0, count - 1};
    if (!xMap.IsMonotonic())
        return all;
    double low = xMap.Value(from);
    double high = xMap.Value(to);
    if (!std::isfinite(low) || !std::isfinite(high))
        return all;
    if (low > high)
        std::swap(low, high);

    // One index for the neighbour, one for rounding in the conversion from position to value.
    constexpr double kMargin = 2;
    return {TruncateToInt(std::floor(low) - kMargin, 0, count - 1),
            TruncateToInt(std::ceil(high) + kMargin, 0, count - 1)};
}

} // namespace kavlix
