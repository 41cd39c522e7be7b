// SPDX-License-Identifier: MIT
// The map between the values of an axis and positions on the screen.
#pragma once

#include <cmath>
#include <optional>

#include "plot/Numeric.h"

namespace kavlix {

/// Converts the values of a visible range into positions along a plot edge, in logical units; in CChartDraw
/// in pixels.
///
/// `min` lies at the position `edge`, `max` at `edge` + `extent`. An axis that grows upwards has its edge at
/// the plot's bottom and a negative extent. Values outside the range get positions outside the plot.
class LinearMap {
public:
    LinearMap(double min, double max, int edge, int extent)
        : m_min(min), m_range(max - min), m_edge(edge), m_extent(extent) {}

    /// Position of `value`, truncated toward zero and limited to kCoordinateLimit. Empty when ExactPosition
    /// is NaN.
    std::optional<int> Position(double value) const {
        const double position = ExactPosition(value);
        if (std::isnan(position))
            return std::nullopt;
        return ToCoordinate(position);
    }

    /// Position of `value`, neither truncated nor limited. NaN for NaN, for a range of 0, and where infinite
    /// numbers leave the position undefined.
    double ExactPosition(double value) const {
        return m_range == 0 ? std::nan("") : (value - m_min) * m_extent / m_range + m_edge;
    }

    /// The value at `position`; NaN when the range or the extent is 0.
    double Value(double position) const {
        return m_range == 0 || m_extent == 0 ? std::nan("")
                                             : m_min + (position - m_edge) * m_range / m_extent;
    }

    /// Whether every finite value has a position and positions never change direction as values grow.
    bool IsMonotonic() const { return m_range != 0 && std::isfinite(m_range) && std::isfinite(m_min); }

    /// Whether positions grow with values.
    bool IsAscending() const { return (m_range > 0) == (m_extent > 0); }

    int Edge() const { return m_edge; }
    double Min() const { return m_min; }
    double Range() const { return m_range; }
    /// Change of the position per unit of value.
    double Slope() const { return m_extent / m_range; }

private:
    double m_min;
    double m_range;
    int m_edge;
    int m_extent;
};

} // namespace kavlix
