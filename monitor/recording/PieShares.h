// SPDX-License-Identifier: MIT
// The shares of a pie: how values divide into a whole, and which values cannot be part of one.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kavlix::recording {

/// The values that are parts of a pie, with their shares of the sum, and the values that cannot be parts.
struct PieShares {
    struct Part {
        std::size_t index = 0; ///< index of the value
        double value = 0;      ///< 0 or more
        double share = 0;      ///< share of the total, 0 to 1; 0 for all parts when the total is 0
    };
    std::vector<Part> parts;           ///< in the order of the values
    double total = 0;                  ///< sum of the parts' values; infinite beyond the range of a double
    std::vector<std::size_t> negative; ///< indices of values below 0, which have no share
    std::vector<std::size_t> missing;  ///< indices of NaN and infinities
};

/// Computes the share of each value in the sum of all values that are finite and not negative.
PieShares SharesOf(const std::vector<double>& values);

/// Names the values without a share and says why: `Left out: a, b (negative), c (no value)`. `names` has one
/// entry for each value. Empty when every value has a share.
std::string LeftOutText(const PieShares& shares, const std::vector<std::string>& names);

} // namespace kavlix::recording
