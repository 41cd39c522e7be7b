// SPDX-License-Identifier: MIT
// Median, quartiles and whiskers of a set of values.
#pragma once

#include <vector>

namespace kavlix {

/// The figures of a set of values that a box-and-whisker drawing shows.
struct BoxStatistics {
    double lowerQuartile = 0;
    double median = 0;
    double upperQuartile = 0;
    int lowerWhisker = 0; ///< lowest value >= lowerQuartile - 1.5 * (upperQuartile - lowerQuartile)
    int upperWhisker = 0; ///< highest value <= upperQuartile + 1.5 * (upperQuartile - lowerQuartile)

    /// Whether a value lies beyond the whiskers.
    bool IsOutlier(int value) const { return value < lowerWhisker || value > upperWhisker; }
};

/// Computes `statistics` of `values`. With n values in ascending order, counted from 0, quartile p (0.25, 0.5
/// or 0.75) lies at rank p * (n - 1). At a fractional rank the quartile is interpolated between the two
/// neighbouring values. All five figures of a single value are equal to the value. False, and `statistics`
/// unchanged, when there are no values.
bool ComputeBoxStatistics(std::vector<int> values, BoxStatistics& statistics);

} // namespace kavlix
