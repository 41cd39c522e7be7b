// SPDX-License-Identifier: MIT
// The map between the values of a linear or logarithmic axis and positions on the screen.
#pragma once

#include <cmath>
#include <optional>

#include "plot/LinearMap.h"

namespace kavlix {

/// A LinearMap of the values, or of their decimal logarithms. On a logarithmic axis, values of 0 and below have
/// no position.
class AxisMap {
public:
    /// A linear axis.
    AxisMap(const LinearMap& map) : m_map(map) {} // NOLINT: every LinearMap is an AxisMap
    /// An axis from `min` to `max`, see LinearMap. On a logarithmic axis both are positive.
    AxisMap(bool isLogarithmic, double min, double max, int edge, int extent)
        : m_map(isLogarithmic ? std::log10(min) : min, isLogarithmic ? std::log10(max) : max, edge, extent),
          m_isLogarithmic(isLogarithmic) {}

    bool IsLogarithmic() const { return m_isLogarithmic; }
    /// As LinearMap::Position; empty for values without a position.
    std::optional<int> Position(double value) const {
        const double position = ExactPosition(value);
        if (std::isnan(position))
            return std::nullopt;
        return ToCoordinate(position);
    }
    /// As LinearMap::ExactPosition; NaN for values without a position.
    double ExactPosition(double value) const {
        if (!m_isLogarithmic)
            return m_map.ExactPosition(value);
        return value > 0 ? m_map.ExactPosition(std::log10(value)) : std::nan("");
    }
    /// As LinearMap::Value. On a logarithmic axis positive or infinite.
    double Value(double position) const {
        const double value = m_map.Value(position);
        return m_isLogarithmic ? std::pow(10.0, value) : value;
    }
    /// Whether positions never change direction as values with a position grow.
    bool IsMonotonic() const { return m_map.IsMonotonic(); }
    /// Whether positions grow with values.
    bool IsAscending() const { return m_map.IsAscending(); }
    /// The map of the values of a linear axis, or of the logarithms.
    const LinearMap& Linear() const { return m_map; }

private:
    LinearMap m_map;
    bool m_isLogarithmic = false;
};

/// Whether both maps give every value the same position.
inline bool operator==(const AxisMap& a, const AxisMap& b) {
    return a.IsLogarithmic() == b.IsLogarithmic() && a.Linear().Min() == b.Linear().Min() &&
           a.Linear().Range() == b.Linear().Range() && a.Linear().Edge() == b.Linear().Edge() &&
           a.Linear().Slope() == b.Linear().Slope();
}

} // namespace kavlix
