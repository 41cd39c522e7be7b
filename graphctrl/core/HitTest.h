// SPDX-License-Identifier: MIT
// Which sample a point belongs to, and where a group of bars stands.
#pragma once

#include "graphctrl/core/BarSlots.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The index, 0 to `count` - 1, of the sample whose position is nearest to `x`; of equally near samples the
/// first. Stores the distance from `x` in `distance`, in logical units. -1, with `distance` unchanged, when
/// there is no sample or the samples have no positions. A binary search.
int NearestIndex(const LinearMap& xMap, int count, int x, long long& distance);

/// Takes the first dataset with a sample less than 1,000,000 logical units away from `x`. The result is the
/// sample of this dataset that is nearest to `x`; -1 if there is no such dataset. `sizes` holds the number of
/// samples of each of `sizeCount` datasets.
int NearestIndex(const LinearMap& xMap, const int* sizes, int sizeCount, int x);

/// The sample whose group of bars, widened by half a bar on either side, holds `point` (logical units);
/// -1 for none. The groups are those of the first dataset with samples. `sizes`, `min` and `max` are
/// those of ComputeBarSlots.
int BarGroupAt(const int* sizes, int sizeCount, double min, double max, const Rect& plot, Point point);

/// The X position of the middle of the group of bars of sample `index`, in logical units; none if the sample
/// has no visible group.
std::optional<int> BarGroupMiddle(const int* sizes, int sizeCount, double min, double max, const Rect& plot,
                                  int index);

} // namespace kavlix
