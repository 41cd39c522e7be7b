// SPDX-License-Identifier: MIT
// The smallest and largest value of a series, from which a scale is chosen.
#pragma once

#include <limits>

namespace kavlix {

/// The smallest and the largest of some numbers. Without numbers `min` is greater than `max`.
struct ValueBounds {
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const { return min > max; }
    void Add(double value) {
        if (value < min)
            min = value;
        if (value > max)
            max = value;
    }
    void Add(const ValueBounds& other) {
        if (!other.IsEmpty()) {
            Add(other.min);
            Add(other.max);
        }
    }
};

} // namespace kavlix
