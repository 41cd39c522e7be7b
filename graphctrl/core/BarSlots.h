#pragma once

#include "graphctrl/core/IndexRange.h"
#include "plot/Shapes.h"

namespace kavlix {

/// How bars share the plot: one slot per visible sample position, in each slot one bar per dataset with
/// samples, side by side, then a gap of one bar's width.
struct BarSlots {
    int barWidth = 0; ///< logical units
    int datasets = 0; ///< datasets with samples, hidden ones included
    int visible = 0;  ///< slots

    int GroupWidth() const { return barWidth * datasets; }
    int Stride() const { return GroupWidth() + barWidth; }
    /// Left edge of the first bar of slot `slot`.
    int SlotLeft(int slot, int plotLeft) const { return plotLeft + Stride() * slot; }
    /// Position of the tick under slot `slot`: the middle of its bars.
    int SlotMiddle(int slot, int plotLeft) const { return SlotLeft(slot, plotLeft) + GroupWidth() / 2; }
    /// The band that marks slot `slot`: its bars and half a bar's width on either side.
    Rect Band(int slot, const Rect& plot) const;
};

/// Divides `plotWidth` among the samples with min <= X <= max. The first dataset with a visible sample
/// decides how many slots there are. `sizes` holds the number of samples of each of `sizeCount` datasets.
/// False, `slots` left as it was, when nothing is visible.
bool ComputeBarSlots(const int* sizes, int sizeCount, double min, double max, int plotWidth, BarSlots& slots);

/// The samples of a dataset with `size` samples that get a slot: from the first with X >= min on, as many as
/// there are slots. Slot 0 is the first of them.
IndexRange IndicesInSlots(int size, double min, const BarSlots& slots);

} // namespace kavlix
