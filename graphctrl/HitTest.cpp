#include "graphctrl/HitTest.h"

#include <cstdint>
#include <cstdlib>

namespace kavlix {

namespace {

constexpr long long kTooFar = 1000000;

// The first sample that is not before `x` on the way on which positions run, `count` if all are.
int FirstNotBefore(const LinearMap& xMap, int count, std::int64_t x) {
    const bool ascending = xMap.IsAscending();
    int begin = 0;
    int end = count;
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        const std::int64_t position = xMap.Position(middle).value_or(xMap.Edge());
        if (ascending ? position < x : position > x)
            begin = middle + 1;
        else
            end = middle;
    }
    return begin;
}

} // namespace

int NearestIndex(const LinearMap& xMap, int count, int x, long long& distance) {
    if (count <= 0 || !xMap.IsMonotonic())
        return -1;
    const auto distanceOf = [&](int index) {
        return std::llabs(static_cast<long long>(xMap.Position(index).value_or(xMap.Edge())) - x);
    };
    const int after = FirstNotBefore(xMap, count, x);
    if (after == 0) {
        distance = distanceOf(0);
        return 0;
    }
    // Several samples may share the position before x; the first of them counts.
    const int before = FirstNotBefore(xMap, count, xMap.Position(after - 1).value_or(xMap.Edge()));
    if (after == count || distanceOf(before) <= distanceOf(after)) {
        distance = distanceOf(before);
        return before;
    }
    distance = distanceOf(after);
    return after;
}

int NearestIndex(const LinearMap& xMap, const int* sizes, int sizeCount, int x) {
    for (int i = 0; i < sizeCount; ++i) {
        long long distance = kTooFar;
        const int index = NearestIndex(xMap, sizes[i], x, distance);
        if (distance < kTooFar)
            return index;
    }
    return -1;
}

int BarGroupAt(const int* sizes, int sizeCount, double min, double max, const Rect& plot, Point point) {
    BarSlots slots;
    if (!ComputeBarSlots(sizes, sizeCount, min, max, plot.Width(), slots) || slots.barWidth == 0)
        return -1;
    int dataset = 0;
    while (sizes[dataset] <= 0) // slots were found, so one has samples
        ++dataset;
    const IndexRange indices = IndicesInSlots(sizes[dataset], min, slots);

    const std::int64_t fromFirst = std::int64_t{point.x} - slots.Band(0, plot).left;
    if (fromFirst < 0)
        return -1;
    const std::int64_t slot = fromFirst / slots.Stride();
    if (slot >= indices.Count() || !slots.Band(static_cast<int>(slot), plot).Contains(point))
        return -1;
    return indices.first + static_cast<int>(slot);
}

} // namespace kavlix
