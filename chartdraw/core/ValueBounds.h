// The range of values that a scale is chosen for.
#pragma once

#include <limits>

namespace kavlix {

/// The smallest and the largest of some numbers; empty (`min` above `max`) when there are none.
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
