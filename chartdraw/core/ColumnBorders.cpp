// SPDX-License-Identifier: MIT
// ColumnBorders: the table, with a margin for rounding errors.
#include "chartdraw/core/ColumnBorders.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavlix {

ColumnBorders::ColumnBorders(const AxisMap& map, int left, int right)
    : m_pixels(map), m_left(left), m_isAscending(map.IsAscending()) {
    constexpr double kNearEdge = 1e-6; // pixels
    constexpr double kRounding = 4 * std::numeric_limits<double>::epsilon();
    m_borders.reserve(static_cast<std::size_t>(std::max(right - left, 0)) + 1);
    for (int column = left; column <= std::max(right, left); ++column) {
        // Positions truncate toward zero, so column 0 begins behind position -1.
        const double position = column > 0 ? column : column - 1.0;
        const double a = map.Value(position - kNearEdge);
        const double b = map.Value(position + kNearEdge);
        const double rounding = kRounding * std::max(std::abs(a), std::abs(b));
        m_borders.push_back({std::min(a, b) - rounding, std::max(a, b) + rounding});
    }
}

} // namespace kavlix
