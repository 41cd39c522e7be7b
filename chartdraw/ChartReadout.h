// SPDX-License-Identifier: MIT
// ChartReadout: the texts that tell what the cursors of a chart read.
#pragma once

#include <afxwin.h>

#include <vector>

#include "chartdraw/ChartCursorState.h"
#include "chartdraw/ChartDrawState.h"
#include "plot/Shapes.h"

namespace kavlix {

/// The content of a readout: titles, and a table.
struct ChartReadout {
    struct Row {
        COLORREF color = CLR_NONE; ///< of the swatch before the first cell; CLR_NONE: no swatch
        std::vector<CString> cells;
    };
    std::vector<CString> titles;
    bool hasHeader = false;    ///< whether the first row is the table's header
    std::vector<Row> rows;     ///< all with the same number of cells
    std::vector<Point> points; ///< client pixels of the samples, that of the cursor first

    bool IsEmpty() const { return rows.empty(); }
};

/// What the shown cursors read; empty when no cursor is shown.
ChartReadout ReadCursors(ChartDrawState& state, const ChartCursorState& cursors);

} // namespace kavlix
