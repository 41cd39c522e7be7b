// SPDX-License-Identifier: MIT
// Computes the shares of values in their sum.

#include "monitor/recording/PieShares.h"

#include <algorithm>
#include <cmath>

namespace kavlix::recording {
namespace {

std::string Listed(const std::vector<std::size_t>& indices, const std::vector<std::string>& names,
                   const char* reason) {
    std::string text;
    for (const std::size_t index : indices)
        text += (text.empty() ? "" : ", ") + names[index];
    return text.empty() ? text : text + " (" + reason + ")";
}

} // namespace

PieShares SharesOf(const std::vector<double>& values) {
    PieShares shares;
    double highest = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!std::isfinite(values[i]))
            shares.missing.push_back(i);
        else if (values[i] < 0)
            shares.negative.push_back(i);
        else
            shares.parts.push_back({i, values[i], 0});
        if (std::isfinite(values[i]))
            highest = std::max(highest, values[i]);
    }
    if (highest == 0)
        return shares;
    // Divided by the highest value first: the sum of the values themselves may exceed the range of a double.
    double sum = 0;
    for (const PieShares::Part& part : shares.parts)
        sum += part.value / highest;
    for (PieShares::Part& part : shares.parts) {
        part.share = part.value / highest / sum;
        shares.total += part.value;
    }
    return shares;
}

std::string LeftOutText(const PieShares& shares, const std::vector<std::string>& names) {
    const std::string negative = Listed(shares.negative, names, "negative");
    const std::string missing = Listed(shares.missing, names, "no value");
    if (negative.empty() && missing.empty())
        return {};
    return "Left out: " + negative + (negative.empty() || missing.empty() ? "" : ", ") + missing;
}

} // namespace kavlix::recording
