// SPDX-License-Identifier: MIT
// The division of the plot's width among bars.
#include "graphctrl/core/BarSlots.h"

#include <algorithm>

namespace kavlix {

Rect BarSlots::Band(int slot, const Rect& plot) const {
    const int left = SlotLeft(slot, plot.left);
    return {left - barWidth / 2, plot.top, left + GroupWidth() + barWidth / 2, plot.bottom};
}

bool ComputeBarSlots(const int* sizes, int sizeCount, double min, double max, int plotWidth,
                     BarSlots& slots) {
    int datasets = 0;
    IndexRange visible;
    for (int i = 0; i < sizeCount; ++i) {
        if (sizes[i] <= 0)
            continue;
        ++datasets;
        if (visible.IsEmpty())
            visible = IndicesBetween(min, max, sizes[i]);
    }
    if (visible.IsEmpty())
        return false;

    const double range = max - min;
    const int span = range <= 0 ? 0 : ToCoordinate((visible.last - min) * plotWidth / range);
    slots.visible = visible.Count();
    slots.datasets = datasets;
    slots.barWidth = span / slots.visible / (datasets + 1);
    return true;
}

IndexRange IndicesInSlots(int size, double min, const BarSlots& slots) {
    const int first = FirstIndexFrom(min, size);
    return {first, first + std::min(size - first, slots.visible) - 1};
}

} // namespace kavlix
