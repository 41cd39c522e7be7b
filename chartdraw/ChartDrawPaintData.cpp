// SPDX-License-Identifier: MIT
// CChartDraw: draws the datasets, see DatasetPainter.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetPainter.h"

using namespace kavlix;

void CChartDraw::DrawDatasets(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    constexpr int kHighlight = 2; // pixels that the line of the highlighted dataset is wider
    DatasetPainter painter(dc, m_rectPlot);
    // The highlighted dataset comes last, in front of the others.
    for (const bool isHighlighted : {false, true})
        for (int i = 0; i < GetDatasetCount(); ++i) {
            const Dataset& dataset = m_State->Dataset(i);
            if (!dataset.visible || m_State->IsHighlighted(i) != isHighlighted)
                continue;
            const int size = isHighlighted ? std::max(dataset.lineSize, 1) + kHighlight : dataset.lineSize;
            const DrawnDataset drawn{
                dataset.points, m_State->XMap(dataset), m_State->YMap(dataset), dataset.color,
                size,           dataset.markerType};
            if (dataset.showLine)
                painter.DrawLine(drawn);
            if (dataset.markerType != CDataset::MarkerNone)
                painter.DrawMarkers(drawn);
        }
}
