#pragma once

#include <vector>

namespace kavlix {

/// What a box-and-whisker drawing shows of a sample.
struct BoxStatistics {
    double lowerQuartile = 0;
    double median = 0;
    double upperQuartile = 0;
    int lowerWhisker = 0; ///< the lowest value within 1.5 interquartile ranges below the lower quartile
    int upperWhisker = 0; ///< the highest value within 1.5 interquartile ranges above the upper quartile

    /// Whether a value of the sample lies beyond the whiskers.
    bool IsOutlier(int value) const { return value < lowerWhisker || value > upperWhisker; }
};

/// Quartiles by linear interpolation between the neighbours in rank: with the n values in order and counted
/// from 0, the quartile p lies at rank p * (n - 1), its fraction between the two values on either side. One
/// value is all five numbers; of two values the box spans the middle half. False when there is no value.
bool ComputeBoxStatistics(std::vector<int> values, BoxStatistics& statistics);

} // namespace kavlix
