// SPDX-License-Identifier: MIT
// Turns numbers into whole numbers for the multi-type graph, which draws integers only.
#pragma once

#include <string>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// A factor that turns values into whole units, and a value axis in these units.
struct WholeScale {
    double factor = 1; ///< a power of ten
    int min = 0;       ///< lower end of the axis, a multiple of `step`; no value is below it
    int max = 10;      ///< upper end of the axis, a multiple of `step`; no value is above it
    int step = 2;      ///< distance of neighbouring ticks, in whole units

    /// A value in whole units, cut to -1e9 to 1e9. The value must not be NaN.
    int ToWhole(double value) const;

    /// What one unit stands for: empty for 1, ` (x 0.01)` for a hundredth.
    std::string UnitText() const;
};

/// Chooses the power of ten nearest to 1 for which the values span at least 100 units, so that they differ,
/// and, if possible, have at most four digits. They have at most eight digits in any case, even if they then
/// span fewer units. With `fromZero` the axis includes 0. Without values, or with zeros only, the factor is 1
/// and the axis reaches from 0 to 10.
WholeScale ChooseWholeScale(const ValueSpan& values, bool fromZero);

} // namespace kavlix::recording
