#pragma once

#include <cstdint>
#include <vector>

#include "graph/core/KeyedValue.h"

namespace kavlix {

/// One group's part of a stack: from the lower to the upper end, in values.
struct StackSegment {
    int group = 0;
    std::int64_t low = 0;
    std::int64_t high = 0;
};

/// Stacks the values of groups: positive ones upwards from 0, negative ones downwards from 0, each side in
/// the order given; values of 0 take no part. The result runs from the lowest segment to the highest.
std::vector<StackSegment> StackValues(const std::vector<KeyedValue>& values);

} // namespace kavlix
