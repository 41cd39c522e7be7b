// SPDX-License-Identifier: MIT
// Draws the lines of a paint in time that grows with the number of pixels, not of samples.
#pragma once

#include <afxwin.h>

#include <optional>
#include <vector>

#include "gdi/DirectPaint.h"
#include "graphctrl/LinePainter.h"
#include "plot/PixelColumns.h"

namespace kavlix {

/// Draws the lines of one paint. On screen and memory DCs the result equals that of DrawSeriesLine in every
/// pixel: of the samples in one pixel column only the first, lowest, highest and last, and the beginning of a
/// line's last stroke, can change a pixel. For metafiles and printers RecordedLine chooses the samples. Where
/// neither is possible, Draw does nothing, and the caller draws the line with DrawSeriesLine.
class ReducedLines {
public:
    /// Groups the samples of all lines by pixel column. `plot` is the part of the plot inside the clip region
    /// of `dc`, in logical units. `reach` is the largest LineReach of the lines. `ranges` holds the range of
    /// samples of each of `count` lines; empty ranges are ignored. All references must outlive this object.
    ReducedLines(CDC& dc, const CRect& plot, int reach, const XPositions& xPositions,
                 const IndexRange* ranges, int count);

    /// Draws one line and the selection mark as DrawSeriesLine does. False, with nothing drawn, when only
    /// DrawSeriesLine can draw the line.
    bool Draw(const CDataset& dataset, CPen& pen, const LinearMap& yMap, IndexRange range,
              const LineSelectionMark& selectionMark) const;

private:
    class Line;

    CDC& m_dc;
    const XPositions& m_xPositions;
    CRect m_plot;          ///< device units, edges included
    CRect m_plotWithReach; ///< device units: the plot, enlarged by the reach of lines and markers
    StrokeKind m_kind;
    std::optional<PixelRaster> m_raster; ///< the pixels of the DC, if they can be written directly
    PixelEdges m_columnEdges;            ///< edges of the pixel table's columns; see LineTarget
    PixelEdges m_rowEdges;               ///< edges of the pixel table's rows
    // The columns and rows that samples are grouped by: pixels, or logical units for metafiles and printers.
    PixelEdges m_groupColumns;
    PixelEdges m_groupRows;
    std::vector<PixelColumn> m_columns; ///< the samples by column; empty if XPositions::RunEnd fails
};

} // namespace kavlix
