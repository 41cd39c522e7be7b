// SPDX-License-Identifier: MIT
// Distances on axes, and the search for the nearest sample or value.

#include "monitor/recording/NearestPoint.h"

#include <cmath>
#include <limits>

namespace kavlix::recording {

double AxisDistance(double value, AxisRange axis, double place) {
    const double share = (value - axis.min) / (axis.max - axis.min);
    return std::isfinite(share) ? std::abs(share - place) : std::numeric_limits<double>::quiet_NaN();
}

std::optional<std::size_t> Nearest(const std::vector<double>& distances) {
    std::optional<std::size_t> nearest;
    for (std::size_t i = 0; i < distances.size(); ++i)
        if (!std::isnan(distances[i]) && (!nearest || distances[i] < distances[*nearest]))
            nearest = i;
    return nearest;
}

std::optional<std::size_t> NearestValue(const double* values, std::size_t count, std::size_t index,
                                        std::size_t reach) {
    if (index >= count)
        return std::nullopt;
    for (std::size_t away = 0; away <= reach; ++away) {
        if (away <= index && !std::isnan(values[index - away]))
            return index - away;
        if (away < count - index && !std::isnan(values[index + away]))
            return index + away;
    }
    return std::nullopt;
}

} // namespace kavlix::recording
