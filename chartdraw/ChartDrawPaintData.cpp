// SPDX-License-Identifier: MIT
// CChartDraw: draws the datasets in their styles, see DatasetPainter.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetPainter.h"
#include "chartdraw/KeptDatasets.h"
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

void ChartDrawState::PaintDatasets(CDC& dc, const CRect& part, ColumnEnds* ends) const {
    DatasetPainter painter(dc, part, ends);
    // All areas lie behind all lines.
    for (const auto& dataset : chart.m_Datasets) {
        if (!dataset->visible || dataset->style != CChartDraw::StyleFill)
            continue;
        const DrawnDataset drawn = Drawn(*dataset);
        const COLORREF color = FillColor(*dataset);
        if (dataset->fillTo != nullptr)
            painter.DrawArea(drawn, Drawn(*dataset->fillTo), color);
        else
            painter.DrawArea(drawn, dataset->baseline, color);
    }
    // The highlighted dataset comes last, in front of the others.
    for (const bool isHighlighted : {false, true})
        for (int i = 0; i < DatasetCount(); ++i) {
            const ChartDataset& dataset = Dataset(i);
            if (!dataset.visible || IsHighlighted(i) != isHighlighted)
                continue;
            DrawnDataset drawn = Drawn(dataset);
            if (isHighlighted)
                drawn.lineSize = std::max(drawn.lineSize, 1) + kHighlightWider;
            if (dataset.style == CChartDraw::StyleBars)
                painter.DrawBars(drawn, dataset.baseline, dataset.barWidth, FillColor(dataset));
            else if (dataset.showLine && dataset.style == CChartDraw::StyleImpulses)
                painter.DrawImpulses(drawn, dataset.baseline);
            else if (dataset.showLine)
                painter.DrawLine(drawn);
            if (dataset.markerType != CDataset::MarkerNone)
                painter.DrawMarkers(drawn);
        }
}

void CChartDraw::DrawDatasets(CDC& dc) {
    if (!m_rectPlot.IsRectEmpty())
        m_State->kept->Draw(dc, *m_State);
}
