// Paints one dataset as bars, with the selection mark of the bar style.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include "graphctrl/core/BarSlots.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The selection mark of the bar style: a band behind a whole group of bars.
struct BarSelectionMark {
    int index = -1; ///< marked sample, -1 for none
    CBrush& brush;
};

/// Draws the samples `range` of a dataset as bars in the slots 0, 1, 2, ..., `offset` right of each slot's
/// left edge, with `brush` and the null pen that the caller has selected. `mark` is null for all but the
/// dataset that draws it. Of a hidden dataset only the mark is drawn. Leaves `brush` selected.
void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap, const BarSelectionMark* mark);

} // namespace kavlix
