// SPDX-License-Identifier: MIT
// ChartLegendState: what a host has set for the legend of a chart, and its last layout.
#pragma once

#include <kavlix/ChartDraw.h>

#include <vector>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/MeasuredTexts.h"
#include "chartdraw/core/LegendLayout.h"

namespace kavlix {

struct ChartLegendState {
    explicit ChartLegendState(CChartDraw& chart) : chart(chart) {}

    CChartDraw& chart;
    CChartLegend::Place place = CChartLegend::Hidden;
    bool isInteractive = true;
    COLORREF textColor = RGB(64, 64, 64);
    COLORREF background = RGB(255, 255, 255);
    COLORREF border = RGB(208, 208, 208);
    int highlighted = -1; ///< the dataset whose row is under the mouse

    // Results of the last layout.
    struct Row {
        int dataset;
        CString text; ///< shortened
    };
    CRect rect{0, 0, 0, 0}; ///< client pixels; empty when the legend is not drawn
    int swatchWidth = 0;    ///< pixels
    LegendLayout layout;
    std::vector<Row> rows; ///< in the order of `layout`

    MeasuredTexts names;

    /// Dataset `dataset` is removed; the later ones get the index before theirs.
    void DatasetRemoved(int dataset);
    /// Lays out the rows of the datasets that have a name, in at most `most` pixels. The texts' font is selected
    /// into `dc`. Sets all results but the place of `rect`.
    void LayOut(CDC& dc, ChartDrawState& chartState, CSize most, LegendLayout::Order order);
    /// Draws the sample of a dataset's line, marker or area into `box`. `fill` is the colour of bars and areas.
    static void DrawSwatch(CDC& dc, const CRect& box, const ChartDrawState::ChartDataset& dataset,
                           COLORREF fill);
};

} // namespace kavlix
