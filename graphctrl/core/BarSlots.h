// The division of the plot's width among bars.
#pragma once

#include "plot/IndexRange.h"
#include "plot/Shapes.h"

namespace kavlix {

/// The places of bars: one slot per visible sample index. A slot holds one bar per dataset with samples, side
/// by side, and then a gap of one bar's width.
struct BarSlots {
    int barWidth = 0; ///< logical units
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

/// Divides `plotWidth` (logical units) among the samples with `min` <= X <= `max`. The number of slots is the
/// number of visible samples of the first dataset that has one. `sizes` holds the number of samples of each
/// of `sizeCount` datasets. False, with `slots` unchanged, when no sample is visible.
bool ComputeBarSlots(const int* sizes, int sizeCount, double min, double max, int plotWidth, BarSlots& slots);

/// Those samples of a dataset with `size` samples that have a slot. Slot 0 belongs to the first sample with
/// X >= `min`, slot 1 to the sample after it, and so on.
IndexRange IndicesInSlots(int size, double min, const BarSlots& slots);

} // namespace kavlix
