// SPDX-License-Identifier: MIT
// CChartDraw: draws the datasets, see DatasetPainter.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetPainter.h"

using namespace kavlix;

void CChartDraw::DrawDatasets(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    DatasetPainter painter(dc, m_rectPlot);
    for (const auto& dataset : m_Datasets) {
        if (!dataset->visible)
            continue;
        const DrawnDataset drawn{dataset->points, m_State->XMap(*dataset), m_State->YMap(*dataset),
                                 dataset->color,  dataset->lineSize,       dataset->markerType};
        if (dataset->showLine)
            painter.DrawLine(drawn);
        if (dataset->markerType != CDataset::MarkerNone)
            painter.DrawMarkers(drawn);
    }
}
