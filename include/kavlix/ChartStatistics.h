// SPDX-License-Identifier: MIT
// ChartStatistics: what a span of samples comes to.
#pragma once

#include <cstdint>

/// Figures of the samples of a dataset in a span of x. NaN values are left out. Without samples `count` is 0 and
/// the others are NaN.
struct ChartStatistics {
    std::int64_t count; ///< number of values
    double min;         ///< smallest value
    double max;         ///< largest value
    double mean;        ///< arithmetic mean
    double first;       ///< value of the first sample
    double last;        ///< value of the last sample
};
