// SPDX-License-Identifier: MIT
// Which sample a point belongs to.
#include "graphctrl/core/HitTest.h"

#include <cstdint>
#include <cstdlib>

#include "plot/Nearest.h"

namespace kavlix {
namespace {

constexpr long long kTooFar = 1000000; // logical units

/// Stores the slots in `slots`, and in `indices` those samples of the first dataset with samples that have a
/// slot. False when no sample is visible, and when bars have the width 0.
bool FindGroups(const int* sizes, int sizeCount, double min, double max, const Rect& plot, BarSlots& slots,
                IndexRange& indices) {
    if (!ComputeBarSlots(sizes, sizeCount, min, max, plot.Width(), slots) || slots.barWidth == 0)
        return false;
    int dataset = 0;
    while (sizes[dataset] <= 0) // ends, because slots exist only if a dataset has samples
        ++dataset;
    indices = IndicesInSlots(sizes[dataset], min, slots);
    return true;
}

} // namespace

int NearestIndex(const LinearMap& xMap, int count, int x, long long& distance) {
    if (count <= 0 || !xMap.Position(0)) // either all samples have positions or none
        return -1;
    const auto at = [&](int index) { return xMap.Position(index).value_or(xMap.Edge()); };
    const int nearest = NearestInOrder(0, count - 1, xMap.IsAscending(), x, at);
    distance = std::llabs(static_cast<long long>(at(nearest)) - x);
    return nearest;
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
    IndexRange indices;
    if (!FindGroups(sizes, sizeCount, min, max, plot, slots, indices))
        return -1;
    const std::int64_t fromFirst = std::int64_t{point.x} - slots.Band(0, plot).left;
    if (fromFirst < 0)
        return -1;
    const std::int64_t slot = fromFirst / slots.Stride();
    if (slot >= indices.Count() || !slots.Band(static_cast<int>(slot), plot).Contains(point))
        return -1;
    return indices.first + static_cast<int>(slot);
}

std::optional<int> BarGroupMiddle(const int* sizes, int sizeCount, double min, double max, const Rect& plot,
                                  int index) {
    BarSlots slots;
    IndexRange indices;
    if (!FindGroups(sizes, sizeCount, min, max, plot, slots, indices) || index < indices.first ||
        index > indices.last)
        return std::nullopt;
    return slots.SlotMiddle(index - indices.first, plot.left);
}

} // namespace kavlix
