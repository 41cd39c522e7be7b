#pragma once

#include <cstdint>

namespace kavlix {

/// The ticks of an axis with whole numbers: anchor + i * step, for i from `first` to `last` in strides of
/// `every`; those at strides of `labelEvery` carry a label. Both strides count from the anchor, so that a 0
/// on the axis keeps its label however much is thinned out.
struct ScaleTicks {
    std::int64_t anchor = 0;
    std::int64_t step = 1;
    std::int64_t first = 0;
    std::int64_t last = -1;
    std::int64_t every = 1;
    std::int64_t labelEvery = 1;

    std::int64_t Value(std::int64_t i) const { return anchor + i * step; }
    bool HasLabel(std::int64_t i) const { return i % labelEvery == 0; }
};

/// Chooses the ticks of an axis from `min` to `max` (in either order) in steps of `step`, whose sign is of no
/// account; 0 stands for a tenth of the range.
///
/// `extent` is the axis' length; ticks stand at least `tickGap` apart and labels `labelGap`, in the same
/// unit: where they would be closer, only every 2nd, 5th, 10th, 20th ... stays. Costs the same for any range.
/// Ticks count from `min`; with `fromZero` from 0.
ScaleTicks ChooseTicks(std::int64_t min, std::int64_t max, std::int64_t step, double extent, double tickGap,
                       double labelGap, bool fromZero = false);

/// Limits and step of an axis that nobody has chosen limits for.
struct RoundLimits {
    std::int64_t min = 0;
    std::int64_t max = 1;
    std::int64_t step = 1;
};

/// Round limits around the whole numbers from `low` to `high`, with about `steps` steps of 1, 2 or 5 times a
/// power of ten.
RoundLimits ChooseLimits(std::int64_t low, std::int64_t high, int steps);

} // namespace kavlix
