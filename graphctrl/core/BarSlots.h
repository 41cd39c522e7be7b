// SPDX-License-Identifier: MIT
// The division of the plot's width among bars.
#pragma once

#include "plot/IndexRange.h"
#include "plot/Shapes.h"

namespace kavlix {

/// The places of bars: one slot per visible sample index. A slot holds one bar per dataset with samples, side
/// by side, and then a gap of one bar's width.
struct BarSlots {
    int barWidth = 0; ///< width of a bar, logical units
    int datasets = 0; ///< number of datasets with samples, hidden ones included
    int visible = 0;  ///< number of slots

    int GroupWidth() const { return barWidth * datasets; }
    int Stride() const { return GroupWidth() + barWidth; }
    /// Left edge of the first bar of slot `slot`.
    int SlotLeft(int slot, int plotLeft) const { return plotLeft + Stride() * slot; }
    /// Position of the tick under slot `slot`: the middle of its bars.
    int SlotMiddle(int slot, int plotLeft) const { return SlotLeft(slot, plotLeft) + GroupWidth() / 2; }
    /// The selection mark of slot `slot`: a band behind its bars, half a bar wider on either side.
    Rect Band(int slot, const Rect& plot) const;
};

/// Makes one slot for each visible sample (`min` <= X <= `max`) of the first dataset that has one. The slots
/// share the part of the plot from its left edge to the last visible sample's X. `plotWidth` in logical units
/// is the distance from `min` to `max`. `sizes` holds the number of samples of each of `sizeCount` datasets.
/// False, with `slots` unchanged, when no sample is visible.
bool ComputeBarSlots(const int* sizes, int sizeCount, double min, double max, int plotWidth, BarSlots& slots);

/// Those samples of a dataset with `size` samples that have a slot. Slot 0 belongs to the first sample with
/// X >= `min`, slot 1 to the sample after it, and so on.
IndexRange IndicesInSlots(int size, double min, const BarSlots& slots);

} // namespace kavlix
