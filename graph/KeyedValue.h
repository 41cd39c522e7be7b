#pragma once

#include <algorithm>
#include <optional>
#include <vector>

namespace kavlix {

/// A value of a series under its key: a group's index, or an X value.
struct KeyedValue {
    int key = 0;
    int value = 0;
};

/// The value under `key` in a list that ascends by key; none when there is no such key.
inline std::optional<int> ValueAt(const std::vector<KeyedValue>& values, int key) {
    const auto found = std::lower_bound(values.begin(), values.end(), key,
                                        [](const KeyedValue& item, int wanted) { return item.key < wanted; });
    return found != values.end() && found->key == key ? std::optional<int>(found->value) : std::nullopt;
}

/// The values of the groups 0 to `groups` - 1 in a list that ascends by key; of equal keys the first.
inline std::vector<KeyedValue> GroupValues(const std::vector<KeyedValue>& values, int groups) {
    std::vector<KeyedValue> result;
    for (const KeyedValue& item : values)
        if (item.key >= 0 && item.key < groups && (result.empty() || result.back().key != item.key))
            result.push_back(item);
    return result;
}

} // namespace kavlix
