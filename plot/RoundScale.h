// Round axis scales: range, ticks and tick labels of one axis.
#pragma once

#include <string>

#include "plot/ValueBounds.h"

namespace kavlix {

/// The range of an axis and its ticks. The ticks are all multiples of the step in the range. Steps that this
/// class chooses are 1, 2, 2.5 or 5 times a power of ten. All results are finite for all arguments.
class RoundScale {
public:
    /// 0 to 1 in steps of 0.2.
    RoundScale() = default;

    /// A scale for `values`: the finest round step that divides the range into at most `mostSteps` parts, at
    /// least 2, and the range widened to multiples of the step. Without values the range is 0 to 1. A single
    /// value, or a range too narrow for ticks in between, gets space on both sides.
    static RoundScale Around(const ValueBounds& values, int mostSteps);
    /// A scale with the range that the host sets: `min` < `max`, both finite. A `step` of 0 is replaced by a
    /// round step as above. Any other `step`, which must not be negative, is kept; when it divides the range
    /// into more than `mostSteps` parts, a multiple of it is taken. A step far too small for the range counts
    /// as 0. A range too narrow for ticks in between gets space on both sides.
    static RoundScale Fixed(double min, double max, double step, int mostSteps);

    double Min() const { return m_min; }
    double Max() const { return m_max; }
    double Step() const;
    int TickCount() const { return m_count; }
    /// Value of tick `i`, 0 to TickCount() - 1, ascending.
    double Tick(int i) const;
    /// Decimal places at which all tick labels differ.
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
    bool m_found = true; ///< whether this class chose the step; false for a multiple of the host's
};

} // namespace kavlix
