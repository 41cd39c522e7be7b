#pragma once

#include <string>

#include "chartdraw/core/ValueBounds.h"

namespace kavlix {

/// An axis' range and its ticks: all multiples of a step that lie in the range. Steps that are found are 1,
/// 2, 2.5 or 5 times a power of ten. All numbers are finite, whatever went in.
class RoundScale {
public:
    /// 0 to 1 in steps of 0.2.
    RoundScale() = default;

    /// A range found from values: the finest round step that divides it into at most `mostSteps` (at least 2)
    /// parts, the range widened to multiples of the step. No values give 0 to 1; a single value, or values
    /// too close to be told apart, get some room on both sides.
    static RoundScale Around(const ValueBounds& values, int mostSteps);
    /// A range as it is given. `step` 0 is found as above; any other is kept, times a whole number when that
    /// takes more than `mostSteps` parts; one far too small for the range counts as 0. A
    /// range too narrow for its values' digits gets some room as above. `min` below `max`,
    /// both finite, `step` not negative.
    static RoundScale Fixed(double min, double max, double step, int mostSteps);

    double Min() const { return m_min; }
    double Max() const { return m_max; }
    double Step() const;
    int TickCount() const { return m_count; }
    /// Value of tick `i`, 0 to TickCount() - 1, ascending.
    double Tick(int i) const;
    /// Decimal places that tell all ticks apart.
    int Decimals() const { return m_decimals; }
    /// The label of tick `i`: a plain number with Decimals() places, or, where that is long, the shorter of
    /// it and a number with a power of ten such as "2.5e9".
    std::string Label(int i) const;

private:
    void FindTicks();
    std::string PowerLabel(double value) const;

    double m_min = 0;
    double m_max = 1;
    /// The step is m_mantissa * 10^m_exponent, the mantissa 10, 20, 25 or 50 when it was found.
    double m_mantissa = 20;
    int m_exponent = -2;
    double m_first = 0; ///< number of the first tick, counted in steps from 0
    int m_count = 6;
    int m_decimals = 1;
    bool m_found = true; ///< the step is round, not the host's
};

} // namespace kavlix
