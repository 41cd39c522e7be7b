// Paints one dataset as a line with markers, stroke by stroke, with the selection mark of the line styles.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include "graphctrl/XPositions.h"
#include "graphctrl/core/IndexRange.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// The selection mark of the line styles: a dotted line across the plot with a triangle on top.
struct LineSelectionMark {
    int index = -1; ///< marked sample, -1 for none
    const CRect& plot;
    CPen& cursorPen;
    CBrush& triangleBrush;
};

/// Width of the pen that draws a dataset's line, in logical units: its line size, within what SetLineSize
/// takes.
int PenWidth(const CDataset& dataset);

/// Width in pixels of a pen `width` logical units wide, as the DC rounds; 1 for a cosmetic one.
int PenPixels(const CDC& dc, int width);

/// How far a line with its markers and the mark reaches beyond the positions of its samples, in logical
/// units.
int LineReach(const CDataset& dataset);

/// Draws the marker `type` of a sample with the pen and brush that are selected, and moves the current
/// position to the sample if there is such a marker.
void DrawSampleMarker(CDC& dc, CDataset::MarkerType type, int x, int y);

/// Draws the mark at `x`, where it can be seen in the plot; leaves `seriesPen` selected and the current
/// position as it was.
void DrawSelectionMark(CDC& dc, const LineSelectionMark& mark, CPen& seriesPen, int x);

/// Draws the samples `range` of a dataset as a line with markers and, at the marked sample, the mark. Samples
/// without position leave a gap. Uses the NULL_BRUSH that the caller has selected; leaves `pen` selected.
/// Every sample of the range is drawn: see ReducedLines.
void DrawSeriesLine(CDC& dc, const CDataset& dataset, CPen& pen, const XPositions& xPositions,
                    const LinearMap& yMap, IndexRange range, const LineSelectionMark& mark);

} // namespace kavlix
