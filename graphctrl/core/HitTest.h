#pragma once

#include "graphctrl/core/BarSlots.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The sample, of `count`, whose position lies nearest to `x`, the first of equally near ones; `distance`
/// receives how far away it is. -1, `distance` untouched, when samples have no position. Visits no more
/// samples than a binary search does.
int NearestIndex(const LinearMap& xMap, int count, int x, long long& distance);

/// As above over several datasets: the first whose nearest sample is less than 1,000,000 logical units away
/// decides. -1 when there is none.
int NearestIndex(const LinearMap& xMap, const int* sizes, int sizeCount, int x);

/// The sample whose group of bars, widened by half a bar on either side, holds `point`; -1 for none. The
/// first dataset with samples decides.
int BarGroupAt(const int* sizes, int sizeCount, double min, double max, const Rect& plot, Point point);

/// The middle of the group of bars of sample `index`, in logical units; none when it has no visible group.
std::optional<int> BarGroupMiddle(const int* sizes, int sizeCount, double min, double max, const Rect& plot,
                                  int index);

} // namespace kavlix
