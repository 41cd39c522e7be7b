#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace kavlix::recording {

/// Ends of an axis; the minimum may lie above the maximum.
struct AxisRange {
    double min = 0;
    double max = 1;
};

/// How far a value lies from a place on its axis, as a share of the axis' length.
/// @param place 0 at the axis' minimum, 1 at its maximum
/// @return NaN when the value has no place on the axis: it is no finite number, or the axis has no length
double AxisDistance(double value, AxisRange axis, double place);

/// Index of the least distance, the first of equal ones. NaN never counts; none when nothing else is there.
std::optional<std::size_t> Nearest(const std::vector<double>& distances);

/// Index of the value that stands nearest to `index` and is not NaN, at most `reach` away; the earlier of two
/// that are equally near. None when there is none, or `index` is outside.
std::optional<std::size_t> NearestValue(const double* values, std::size_t count, std::size_t index,
                                        std::size_t reach);

} // namespace kavlix::recording
