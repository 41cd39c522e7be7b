#pragma once

#include "plot/LinearMap.h"

namespace kavlix {

/// Samples `first` to `last`; none when `last` lies below `first`.
struct IndexRange {
    int first = 0;
    int last = -1;

    bool IsEmpty() const { return last < first; }
    int Count() const { return IsEmpty() ? 0 : last - first + 1; }
};

/// The first of `count` samples whose X, which is its index, is not below `min`; `count` if there is none.
int FirstIndexFrom(double min, int count);

/// The samples of `count` with min <= X <= max. None when either bound is NaN.
IndexRange IndicesBetween(double min, double max, int count);

/// The samples of `count` that a line through all of them must visit to look the same between the positions
/// `from` and `to`: those whose position lies there, and a neighbour on either side, so that the line enters
/// and leaves where it should. `from` and `to` must include the reach of pens and markers. All samples where
/// positions follow no order.
IndexRange IndicesToDraw(const LinearMap& xMap, int from, int to, int count);

} // namespace kavlix
