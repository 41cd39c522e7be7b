// SPDX-License-Identifier: MIT
// The search for the item nearest to a position, as hit tests need.
#pragma once

#include <cstdint>
#include <cstdlib>

namespace kavlix {

/// The item among `first` to `last` whose position is nearest to `x`; the first one of equally near items.
/// There is at least one item. `at(i)` is the position of item `i`. The positions never decrease when
/// `ascending`, and never increase otherwise. Takes at most two binary searches.
template <class Position>
int NearestInOrder(int first, int last, bool ascending, std::int64_t x, Position at) {
    const auto firstNotBefore = [&](std::int64_t wanted) {
        int begin = first;
        int end = last + 1;
        while (begin < end) {
            const int middle = begin + (end - begin) / 2;
            const std::int64_t position = at(middle);
            if (ascending ? position < wanted : position > wanted)
                begin = middle + 1;
            else
                end = middle;
        }
        return begin;
    };
    const auto distance = [&](int index) { return std::llabs(static_cast<long long>(at(index)) - x); };

    const int after = firstNotBefore(x);
    if (after == first)
        return first;
    // Several items may share the position of the item before `after`: take the first of them.
    const int before = firstNotBefore(at(after - 1));
    return after > last || distance(before) <= distance(after) ? before : after;
}

} // namespace kavlix
