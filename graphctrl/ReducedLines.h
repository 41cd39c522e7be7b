#pragma once

#include <afxwin.h>

#include <optional>
#include <vector>

#include "gdi/DirectPaint.h"
#include "graphctrl/LinePainter.h"
#include "graphctrl/core/PixelColumns.h"

namespace kavlix {

/// Draws the lines of a paint at the cost of the pixels, not of the samples. On screen and in pictures in
/// memory the result is that of DrawSeriesLine, pixel for pixel: of the samples in one pixel column only the
/// first, lowest, highest and last can change a pixel. A metafile or printer gets the same strokes as from
/// DrawSeriesLine by way of RecordedLine. Where that does not hold, Draw leaves the line to the caller.
class ReducedLines {
public:
    /// @param plot in logical units; the DC is clipped to it
    /// @param reach the largest LineReach of the lines
    /// @param ranges the samples of each of `count` lines; empty ones are passed over
    /// All references must outlive this object.
    ReducedLines(CDC& dc, const CRect& plot, int reach, const XPositions& xPositions,
                 const IndexRange* ranges, int count);

    /// Draws one line as DrawSeriesLine does. False, nothing drawn, when every sample must be drawn.
    bool Draw(const CDataset& dataset, CPen& pen, const LinearMap& yMap, IndexRange range,
              const LineSelectionMark& mark) const;

private:
    class Line;

    CDC& m_dc;
    const XPositions& m_xPositions;
    CRect m_plot;          ///< device units, edges included
    CRect m_plotWithReach; ///< device units: the plot, and as far beyond it as lines and markers reach
    StrokeKind m_kind;
    std::optional<PixelRaster> m_raster;
    PixelEdges m_columnEdges;
    PixelEdges m_rowEdges;
    // The grid that points are grouped by: pixels, or logical units for metafiles and printers.
    PixelEdges m_groupColumns;
    PixelEdges m_groupRows;
    std::vector<PixelColumn> m_columns; ///< of places; empty when positions must be walked
};

} // namespace kavlix
