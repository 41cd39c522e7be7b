// SPDX-License-Identifier: MIT
// A value of a series with its key.
#pragma once

#include <vector>

namespace kavlix {

/// A value of a series. The key is a group, or an X value.
struct KeyedValue {
    int key = 0;
    int value = 0;
};

/// The values of the groups 0 to `groups` - 1. `values` ascends by key; of several values with the same key
/// the first one counts.
inline std::vector<KeyedValue> GroupValues(const std::vector<KeyedValue>& values, int groups) {
    std::vector<KeyedValue> result;
    for (const KeyedValue& item : values)
        if (item.key >= 0 && item.key < groups && (result.empty() || result.back().key != item.key))
            result.push_back(item);
    return result;
}

} // namespace kavlix
