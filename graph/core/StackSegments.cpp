// SPDX-License-Identifier: MIT
// Stacking upwards and downwards from 0.
#include "graph/core/StackSegments.h"

#include <algorithm>

namespace kavlix {

std::vector<StackSegment> StackValues(const std::vector<KeyedValue>& values) {
    std::vector<StackSegment> below;
    std::vector<StackSegment> above;
    std::int64_t bottom = 0;
    std::int64_t top = 0;
    for (const KeyedValue& item : values) {
        const std::int64_t value = item.value;
        if (value > 0)
            above.push_back({item.key, top, top + value});
        else if (value < 0)
            below.push_back({item.key, bottom + value, bottom});
        (value > 0 ? top : bottom) += value;
    }
    std::reverse(below.begin(), below.end());
    below.insert(below.end(), above.begin(), above.end());
    return below;
}

} // namespace kavlix
