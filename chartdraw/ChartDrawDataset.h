// SPDX-License-Identifier: MIT
// CChartDraw::Dataset, which the sources of CChartDraw share.
#pragma once

#include <kavlix/ChartDraw.h>

#include "chartdraw/core/ChartSeries.h"

/// One dataset of a chart: its points, and the attributes that decide how they are drawn.
struct CChartDraw::Dataset {
    kavlix::ChartSeries points;
    COLORREF color = RGB(0, 0, 0);
    int lineSize = 1; ///< width of the line, pixels; 0 and 1 both draw one pixel
    CDataset::MarkerType markerType = CDataset::MarkerNone;
    bool showLine = true;
    bool visible = true;
};
