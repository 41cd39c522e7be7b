// SPDX-License-Identifier: MIT
// How far down the page a graph is printed.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace kavlix {

/// The lower edge of a graph that is printed from `top` down: four inches below `top`, or `bottom` if
/// `bottom` is higher. All in twips; y grows upwards.
inline int PrintedBottom(int top, int bottom) {
    constexpr std::int64_t kFourInches = 4 * 1440;
    return static_cast<int>(
        std::max({top - kFourInches, std::int64_t{bottom}, std::int64_t{std::numeric_limits<int>::min()}}));
}

} // namespace kavlix
