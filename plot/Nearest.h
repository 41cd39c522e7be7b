#pragma once

#include <cstdint>
#include <cstdlib>

namespace kavlix {

/// The item of `first` to `last`, at least one, whose position lies nearest to `x`; of equally near ones the
/// first. `at(i)` is the position of item `i`; the positions run one way, up when `ascending`. Visits no more
/// items than a binary search does.
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
    // Several items may share the position before x; the first of them counts.
    const int before = firstNotBefore(at(after - 1));
    return after > last || distance(before) <= distance(after) ? before : after;
}

} // namespace kavlix
