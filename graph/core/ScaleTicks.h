// SPDX-License-Identifier: MIT
// Ticks and round limits of an axis of whole numbers.
#pragma once

#include <cstdint>

namespace kavlix {

/// The ticks of an axis of whole numbers. Tick i has the value anchor + i * step. The axis has the ticks
/// `first` to `last` in strides of `every`. Ticks whose i is a multiple of `labelEvery` have a label, so the
/// tick at the anchor (i = 0) has one however few labels there are.
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

/// Chooses the ticks of an axis from `min` to `max`, in either order, in steps of `step`. The sign of `step`
/// is ignored; 0 stands for a tenth of the range, rounded down, at least 1.
///
/// `extent` is the length of the axis. Ticks are at least `tickGap` apart and labels at least `labelGap`, in
/// the unit of `extent`. Where ticks would be closer, only every 2nd, 5th, 10th, 20th ... tick remains. Where
/// labels would be closer, only every 2nd, 5th, 10th, 20th ... remaining tick has a label. The anchor is 0
/// when `fromZero` is true, or when a tick counted from `min` falls on 0 and 0 is neither limit; otherwise
/// the anchor is `min`. The running time does not depend on the range.
ScaleTicks ChooseTicks(std::int64_t min, std::int64_t max, std::int64_t step, double extent, double tickGap,
                       double labelGap, bool fromZero = false);

/// Limits and step of an axis whose limits follow from the data.
struct RoundLimits {
    std::int64_t min = 0;
    std::int64_t max = 1;
    std::int64_t step = 1;
};

/// Limits that enclose the numbers from `low` to `high` and are multiples of the step. The step is the
/// smallest of 1, 2, 5, 10, 20 ... that fits at most `steps` times into the range from `low` to `high`. If
/// `low` equals `high`, the range is first widened by 1 at each end.
RoundLimits ChooseLimits(std::int64_t low, std::int64_t high, int steps);

} // namespace kavlix
