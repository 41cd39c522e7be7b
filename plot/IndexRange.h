// SPDX-License-Identifier: MIT
// Index ranges of samples whose X is their index.
#pragma once

#include "plot/LinearMap.h"

namespace kavlix {

/// The samples from `first` to `last`, both included; empty when `last` is less than `first`.
struct IndexRange {
    int first = 0;
    int last = -1;

    bool IsEmpty() const { return last < first; }
    int Count() const { return IsEmpty() ? 0 : last - first + 1; }
};

/// The first of `count` samples whose index is not below `min`; `count` when there is none.
int FirstIndexFrom(double min, int count);

/// Those of `count` samples with `min` <= index <= `max`. Empty when a bound is NaN.
IndexRange IndicesBetween(double min, double max, int count);

/// Those of `count` samples that a line needs to look complete between the positions `from` and `to`, in
/// logical units: the samples with a position in this range and at least one neighbour on either side, so
/// that the line enters and leaves the range in the right direction. The caller widens the range by the reach
/// of pens and markers. All samples when `xMap` is not monotonic, and when it gives `from` or `to` no finite
/// value.
IndexRange IndicesToDraw(const LinearMap& xMap, int from, int to, int count);

} // namespace kavlix
