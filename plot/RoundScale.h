// SPDX-License-Identifier: MIT
// Round axis scales: range, ticks and tick labels of one axis.
#pragma once

#include <string>

#include "plot/ValueBounds.h"

namespace kavlix {

/// The range of an axis and its ticks. The ticks stand at all multiples of the step in the range. Steps that
/// this class chooses are 1, 2, 2.5 or 5 times a power of ten. All results are finite for all arguments.
class RoundScale {
public:
    /// 0 to 1 in steps of 0.2.
    RoundScale() = default;

    /// A scale for `values`. Its range is widened to multiples of the step. The step is the finest round step
    /// that divides the widened range into at most `mostSteps` parts. A `mostSteps` below 2 counts as 2.
    /// Without values the range is 0 to 1. A single value, or a range too narrow for ticks in between, gets
    /// space on both sides.
    static RoundScale Around(const ValueBounds& values, int mostSteps);
    /// A scale with the range that the host sets: `min` < `max`, both finite. A positive `step` is kept if it
    /// divides the range into at most `mostSteps` parts; otherwise a multiple of `step` is used. A `step` of
    /// 0, or one that is far too small for the range, is replaced by a round step as in Around. `step` must
    /// not be negative. A range too narrow for ticks in between is replaced by a wider one as in Around.
    static RoundScale Fixed(double min, double max, double step, int mostSteps);

    double Min() const { return m_min; }
    double Max() const { return m_max; }
    double Step() const;
    int TickCount() const { return m_count; }
    /// Value of tick `i`, 0 to TickCount() - 1, ascending.
    double Tick(int i) const;
    /// Number of decimal places that the step needs; for the host's step, or a multiple of it, at most 12.
    int Decimals() const { return m_decimals; }
    /// The label of tick `i`: a number with Decimals() places. When such labels are long, a number with a
    /// power of ten such as "2.5e9" is used if it is shorter.
    std::string Label(int i) const;

private:
    void FindTicks();
    std::string PowerLabel(double value) const;

    double m_min = 0;
    double m_max = 1;
    /// The step is m_mantissa * 10^m_exponent. The mantissa of a round step is 10, 20, 25 or 50.
    double m_mantissa = 20;
    int m_exponent = -2;
    double m_first = 0; ///< the first tick divided by the step
    int m_count = 6;
    int m_decimals = 1;
    bool m_found = true; ///< whether this class chose the step; false for the host's step or a multiple of it
};

} // namespace kavlix
