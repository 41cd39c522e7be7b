// The lowest and the highest of a run of samples.
#pragma once

namespace kavlix {

/// Lowest and highest of some values. Both are NaN when one of the values is: such values must be looked at
/// one by one.
struct Extremes {
    double low;
    double high;

    bool HasGap() const { return low != low; }
};

} // namespace kavlix
