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

    CString name;
    CChartDraw::DrawStyle style = CChartDraw::StyleLine;
    double barWidth = 0;             ///< units of x; 0: a pixel
    double baseline = 0;             ///< y at which bars, impulses and areas begin
    const Dataset* fillTo = nullptr; ///< the dataset to whose line the area reaches; null: the baseline
    COLORREF fillColor = CLR_NONE;   ///< CLR_NONE: derived from `color`
    bool usesY2 = false;
    double origin = 0; ///< value of the X axis at which x is 0
};
