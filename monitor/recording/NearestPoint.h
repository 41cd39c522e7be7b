// SPDX-License-Identifier: MIT
// Finds the sample nearest to the mouse pointer, and the value nearest to a gap.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace kavlix::recording {

/// The ends of an axis. The minimum may be greater than the maximum: then the axis is upside down.
struct AxisRange {
    double min = 0;
    double max = 1;
};

/// Distance between a value and a place on its axis, as a share of the axis' length. `place` is 0 at the
/// axis' minimum and 1 at its maximum. NaN when the value is not finite or the axis has no length.
double AxisDistance(double value, AxisRange axis, double place);

/// Index of the least distance, the first of equal ones. NaN entries do not count. None when every entry is
/// NaN.
std::optional<std::size_t> Nearest(const std::vector<double>& distances);

/// Index of the value nearest to `index` that is not NaN, at most `reach` places away; of two equally near
/// ones the earlier. None when there is no value within reach, or when `index` is not below `count`.
std::optional<std::size_t> NearestValue(const double* values, std::size_t count, std::size_t index,
                                        std::size_t reach);

} // namespace kavlix::recording
