// SPDX-License-Identifier: MIT
// Values to positions along an axis.
#pragma once

#include <algorithm>

namespace kavlix {

/// Turns values into positions along one edge of a plot.
///
/// The limit `first` lies at position `from`, the limit `second` at `to`; either limit may be the lower one.
/// Equal limits make a scale from `first` to `first` + 1. Limits and values are finite.
class PlotScale {
public:
    PlotScale() = default;
    PlotScale(double first, double second, double from, double to)
        : m_first(first), m_second(second != first ? second : first + 1), m_from(from), m_to(to) {}

    /// The position of a value. A value outside the limits has a position outside the plot.
    double Position(double value) const {
        return m_from + (value - m_first) / (m_second - m_first) * (m_to - m_from);
    }
    double Low() const { return std::min(m_first, m_second); }
    double High() const { return std::max(m_first, m_second); }
    double Clamp(double value) const { return std::clamp(value, Low(), High()); }
    bool Contains(double value) const { return value >= Low() && value <= High(); }
    /// The value that bars start from: 0, or the limit nearest to 0 if 0 lies outside the limits.
    double Base() const { return Clamp(0); }
    /// Whether 0 lies between the limits; a limit of 0 does not count.
    bool CrossesZero() const { return Low() < 0 && High() > 0; }
    double From() const { return m_from; }
    double To() const { return m_to; }

private:
    double m_first = 0;
    double m_second = 1;
    double m_from = 0;
    double m_to = 0;
};

} // namespace kavlix
