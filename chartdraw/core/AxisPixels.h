// SPDX-License-Identifier: MIT
// The pixels of values on an axis, computed faster than by AxisMap, with the same result.
#pragma once

#include <cmath>

#include "plot/AxisMap.h"
#include "plot/Numeric.h"

namespace kavlix {

/// The pixel of a value: the position of AxisMap, truncated toward zero and limited.
///
/// AxisMap divides. On a linear axis, one multiplication gives the pixel of most values; next to the border of
/// two pixels rounding errors decide, so there the position is computed as AxisMap does.
class AxisPixels {
public:
    explicit AxisPixels(const AxisMap& map) : m_map(map) {
        // For axis ranges between these limits neither way of computing overflows or loses digits.
        constexpr double kSmallestRange = 1e-280;
        constexpr double kLargestRange = 1e280;
        const double range = std::abs(map.Linear().Range());
        if (map.IsLogarithmic() || !(range > kSmallestRange && range < kLargestRange))
            return;
        m_min = map.Linear().Min();
        m_slope = map.Linear().Slope();
        m_edge = map.Linear().Edge();
        m_end = kLargestFast;
    }

    const AxisMap& Map() const { return m_map; }
    /// The pixel of `value`, which has a position.
    int Of(double value) const {
        const double position = (value - m_min) * m_slope + m_edge;
        // Positions truncate toward zero, so those below 0 have other borders.
        if (position > 0 && position < m_end) {
            const int whole = static_cast<int>(position);
            const double part = position - whole;
            if (part > kNearEdge && part < 1 - kNearEdge)
                return whole;
        }
        return ToCoordinate(m_map.ExactPosition(value));
    }
    /// Whether `value` has a position on an axis that is monotonic.
    bool HasPosition(double value) const { return m_map.IsLogarithmic() ? value > 0 : value == value; }

private:
    static constexpr double kNearEdge = 1e-6; ///< pixels
    static constexpr double kLargestFast = 1 << 20;

    AxisMap m_map;
    double m_min = 0;
    double m_slope = 0;
    double m_edge = 0;
    double m_end = 0; ///< the multiplication is used below this position
};

} // namespace kavlix
