// SPDX-License-Identifier: MIT
// Paints one dataset as bars, and the selection mark of the bar style.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include "graphctrl/core/BarSlots.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The selection mark of the bar style: a band behind a whole group of bars.
struct BarSelectionMark {
    int index = -1; ///< index of the marked sample, -1 for none
    CBrush& brush;
};

/// Draws the samples `range` of a dataset as bars in the slots 0, 1, 2, ..., each `offset` logical units
/// right of the left edge of its slot. Also draws the selection mark if `selectionMark` is not null and the
/// marked sample lies in `range` and is no gap; of a hidden dataset only the selection mark is drawn. The
/// caller has selected the null pen; `brush`, which fills the bars, is selected afterwards.
void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap,
                    const BarSelectionMark* selectionMark);

} // namespace kavlix
