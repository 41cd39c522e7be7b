#pragma once

#include "monitor/recording/Recording.h"

#include <string>
#include <vector>

namespace kavlix::recording {

/// The range of a value axis and how its ticks are labelled. The graph control puts `ticks` labels at equal
/// distances from min to max, so the range is chosen to make these values round.
struct ValueScale {
    double min = 0;
    double max = 1;
    double step = 1;      ///< distance of neighbouring ticks
    int ticks = 2;        ///< number of ticks the range was chosen for
    int unitExponent = 0; ///< power of ten the labels are divided by: a multiple of 3
    int decimals = 0;     ///< decimals the labels need
    std::string unit;     ///< `k`, `M`, `m`, `10^27`, ...; empty for exponent 0
};

/// Values beyond this are cut off by the range, so that no arithmetic with it overflows.
inline constexpr double kScaleLimit = 1e300;

/// Chooses the range for the values and the given number of ticks (taken as 2 when less, 1000 when more). It
/// covers the values; it begins (or ends) at 0 when they come near it; values that are all the same get room
/// on both sides; no values give 0 to 1 or a little more.
ValueScale ChooseValueScale(const ValueSpan& span, int ticks);

/// For values that keep coming: keeps the scale while the values fit into it, the tick count is the same and
/// a newly chosen range would not be finer by far; else chooses anew, so that the axis does not jump at every
/// sample.
/// @return whether the scale changed.
bool FollowValues(ValueScale& scale, const ValueSpan& span, int ticks);

/// The labels as the graph control prints them, from the bottom up.
std::vector<std::string> ValueLabels(const ValueScale& scale);

/// Length of the longest of them in characters.
int LongestLabel(const ValueScale& scale);

} // namespace kavlix::recording
