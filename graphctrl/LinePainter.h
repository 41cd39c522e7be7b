// SPDX-License-Identifier: MIT
// Paints one dataset as a line with markers, sample by sample, and the selection mark of the line styles.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include "graphctrl/XPositions.h"
#include "plot/IndexRange.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The selection mark of the line styles: a dotted line across the plot with a triangle on top.
struct LineSelectionMark {
    int index = -1;    ///< index of the marked sample, -1 for none
    const CRect& plot; ///< the plot, logical units
    CPen& linePen;
    CBrush& triangleBrush;
};

/// Width of the pen that draws a dataset's line, in logical units: the line size,
/// clamped to 0..CDataset::MaxLineSize.
int PenWidth(const CDataset& dataset);

/// Width in pixels of a pen of `width` logical units, rounded as `dc` rounds; at least 1.
int PenPixels(const CDC& dc, int width);

/// Greatest distance, in logical units, that a dataset's line and markers extend beyond the positions of its
/// samples, and that the selection mark extends to the left and right of its sample.
int LineReach(const CDataset& dataset);

/// Draws the marker of a sample at `x`, `y` (logical units) with the selected pen and brush. If `type` has a
/// shape, the current position of `dc` moves to the sample.
void DrawSampleMarker(CDC& dc, CDataset::MarkerType type, int x, int y);

/// Draws the selection mark at `x` (logical units), unless the mark lies outside the plot. The caller has
/// selected `seriesPen`; afterwards `seriesPen` is selected and the current position is as before.
void DrawSelectionMark(CDC& dc, const LineSelectionMark& selectionMark, CPen& seriesPen, int x);

/// Draws the samples `range` of a dataset as a line with markers, and the selection mark at the marked
/// sample. Samples without a position leave a gap. The caller has selected NULL_BRUSH; `pen` is selected
/// afterwards. The cost grows with the number of samples: ReducedLines draws the same pixels faster
/// where it can.
void DrawSeriesLine(CDC& dc, const CDataset& dataset, CPen& pen, const XPositions& xPositions,
                    const LinearMap& yMap, IndexRange range, const LineSelectionMark& selectionMark);

} // namespace kavlix
