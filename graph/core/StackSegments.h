// SPDX-License-Identifier: MIT
// Stacks of positive and negative values.
#pragma once

#include <cstdint>
#include <vector>

#include "graph/core/KeyedValue.h"

namespace kavlix {

/// The part of a stack that one group has, from value `low` to value `high`.
struct StackSegment {
    int group = 0;
    std::int64_t low = 0;
    std::int64_t high = 0;
};

/// Stacks the values of groups in the order given: positive values upwards from 0, negative values downwards
/// from 0. A value of 0 has no segment. The result runs from the lowest segment to the highest.
std::vector<StackSegment> StackValues(const std::vector<KeyedValue>& values);

} // namespace kavlix
