// SPDX-License-Identifier: MIT
// The lowest and highest value of a range of samples.
#pragma once

namespace kavlix {

/// Lowest and highest of some values. Both are NaN when one of the values is NaN; the caller must then read
/// the values one by one.
struct Extremes {
    double low;
    double high;

    bool HasGap() const { return low != low; }
};

} // namespace kavlix
