// SPDX-License-Identifier: MIT
// CChartDraw: draws the datasets in their styles, see DatasetPainter.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetPainter.h"
#include "gdi/Colors.h"

using namespace kavlix;

COLORREF ChartDrawState::FillColor(const CChartDraw::Dataset& dataset) const {
    constexpr int kPale = 60; // percent of the background in an area whose colour is not set
    if (dataset.fillColor != CLR_NONE)
        return dataset.fillColor;
    return dataset.style == CChartDraw::StyleFill ? MixColors(dataset.color, chart.m_BkColor, kPale)
                                                  : dataset.color;
}

DrawnDataset ChartDrawState::Drawn(const CChartDraw::Dataset& dataset) const {
    return {dataset.points,
            XMap(dataset),
            YMap(dataset),
            dataset.color,
            dataset.lineSize,
            dataset.markerType,
            dataset.style == CChartDraw::StyleStep};
}

void CChartDraw::DrawDatasets(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    constexpr int kHighlight = 2; // pixels that the line of the highlighted dataset is wider
    DatasetPainter painter(dc, m_rectPlot);
    // All areas lie behind all lines.
    for (const auto& dataset : m_Datasets) {
        if (!dataset->visible || dataset->style != StyleFill)
            continue;
        const DrawnDataset drawn = m_State->Drawn(*dataset);
        const COLORREF color = m_State->FillColor(*dataset);
        if (dataset->fillTo != nullptr)
            painter.DrawArea(drawn, m_State->Drawn(*dataset->fillTo), color);
        else
            painter.DrawArea(drawn, dataset->baseline, color);
    }
    // The highlighted dataset comes last, in front of the others.
    for (const bool isHighlighted : {false, true})
        for (int i = 0; i < GetDatasetCount(); ++i) {
            const Dataset& dataset = m_State->Dataset(i);
            if (!dataset.visible || m_State->IsHighlighted(i) != isHighlighted)
                continue;
            DrawnDataset drawn = m_State->Drawn(dataset);
            if (isHighlighted)
                drawn.lineSize = std::max(drawn.lineSize, 1) + kHighlight;
            if (dataset.style == StyleBars)
                painter.DrawBars(drawn, dataset.baseline, dataset.barWidth, m_State->FillColor(dataset));
            else if (dataset.showLine && dataset.style == StyleImpulses)
                painter.DrawImpulses(drawn, dataset.baseline);
            else if (dataset.showLine)
                painter.DrawLine(drawn);
            if (dataset.markerType != CDataset::MarkerNone)
                painter.DrawMarkers(drawn);
        }
}
