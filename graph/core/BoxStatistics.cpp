// SPDX-License-Identifier: MIT
// Quartiles by interpolation, and the whiskers that follow from them.
#include "graph/core/BoxStatistics.h"

#include <algorithm>
#include <cstddef>

namespace kavlix {
namespace {

double Quantile(const std::vector<int>& ordered, double p) {
    const double rank = p * static_cast<double>(ordered.size() - 1);
    const auto below = static_cast<std::size_t>(rank);
    const auto above = std::min(below + 1, ordered.size() - 1);
    const double fraction = rank - static_cast<double>(below);
    return ordered[below] + fraction * (static_cast<double>(ordered[above]) - ordered[below]);
}

} // namespace

bool ComputeBoxStatistics(std::vector<int> values, BoxStatistics& statistics) {
    constexpr double kWhiskerReach = 1.5; // interquartile ranges
    if (values.empty())
        return false;
    std::sort(values.begin(), values.end());
    statistics.lowerQuartile = Quantile(values, 0.25);
    statistics.median = Quantile(values, 0.5);
    statistics.upperQuartile = Quantile(values, 0.75);

    const double reach = kWhiskerReach * (statistics.upperQuartile - statistics.lowerQuartile);
    const auto first = std::lower_bound(values.begin(), values.end(), statistics.lowerQuartile - reach);
    const auto last = std::upper_bound(values.begin(), values.end(), statistics.upperQuartile + reach);
    statistics.lowerWhisker = *first;
    statistics.upperWhisker = *(last - 1);
    return true;
}

} // namespace kavlix
