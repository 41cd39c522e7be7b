// Turns numbers into whole numbers for the multi-type graph, which draws integers only.
#pragma once

#include <string>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// A factor from values to whole units, and a value axis in these units.
struct WholeScale {
    double factor = 1; ///< a power of ten
    int min = 0;       ///< ends of the axis: multiples of the step around all values
    int max = 10;
    int step = 2; ///< distance of the ticks

    /// A value in whole units, saturated. The value must not be NaN.
    int ToWhole(double value) const;

    /// What one unit stands for: empty for 1, ` (x 0.01)` for a hundredth.
    std::string UnitText() const;
};

/// Chooses the power of ten nearest to 1 for which the values span enough units to differ, and have few
/// digits. With `fromZero` the axis includes 0.
WholeScale ChooseWholeScale(const ValueSpan& values, bool fromZero);

} // namespace kavlix::recording
