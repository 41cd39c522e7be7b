// SPDX-License-Identifier: MIT
// The range and the labels of a value axis.
#pragma once

#include <string>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The range of a value axis and the form of its labels. The graph control places `ticks` labels at equal
/// distances from `min` to `max`, so the range is chosen to make all of them round.
struct ValueScale {
    double min = 0;
    double max = 1;
    double step = 1;      ///< distance of neighbouring ticks
    int ticks = 2;        ///< number of ticks
    int unitExponent = 0; ///< the labels show values / 10^unitExponent; a multiple of 3
    int decimals = 0;     ///< number of decimals of the labels
    std::string unit;     ///< text for 10^unitExponent: `k`, `M`, `m`, `10^27`, ...; empty for 0
};

/// Values beyond this limit are cut to it, so that arithmetic with the range cannot overflow.
inline constexpr double kScaleLimit = 1e300;

/// Chooses the range for the values and a number of ticks (cut to 2 to 1000). The range covers the values. If
/// all values have the same sign and the value nearest to 0 is at most a third of the farthest one, the range
/// begins or ends at 0. Equal values other than 0 get room on both sides. Without values, or with zeros only,
/// the range begins at 0 and ends at 1 or a little above.
ValueScale ChooseValueScale(const ValueSpan& span, int ticks);

/// Chooses the scale anew when the values no longer fit, when the number of ticks differs, or when a new
/// range would be much shorter. Otherwise keeps the scale, so that the axis does not change with every
/// sample. Returns whether the scale changed.
bool FollowValues(ValueScale& scale, const ValueSpan& span, int ticks);

/// The labels as the graph control prints them, from the bottom up.
std::vector<std::string> ValueLabels(const ValueScale& scale);

/// Length of the longest label in characters.
int LongestLabel(const ValueScale& scale);

} // namespace kavlix::recording
