// SPDX-License-Identifier: MIT
// CChartDraw: draws the datasets in their styles, see DatasetPainter.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetPainter.h"

using namespace kavlix;

namespace {

/// The colour of an area whose colour is not set: three parts of the background, two parts of the line.
COLORREF AreaColor(COLORREF line, COLORREF background) {
    constexpr int kLineParts = 2;
    constexpr int kBackgroundParts = 3;
    const auto mix = [](int a, int b) {
        return (a * kLineParts + b * kBackgroundParts) / (kLineParts + kBackgroundParts);
    };
    return RGB(mix(GetRValue(line), GetRValue(background)), mix(GetGValue(line), GetGValue(background)),
               mix(GetBValue(line), GetBValue(background)));
}

} // namespace

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
        const COLORREF color =
            dataset->fillColor == CLR_NONE ? AreaColor(dataset->color, m_BkColor) : dataset->fillColor;
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
                painter.DrawBars(drawn, dataset.baseline, dataset.barWidth,
                                 dataset.fillColor == CLR_NONE ? dataset.color : dataset.fillColor);
            else if (dataset.showLine && dataset.style == StyleImpulses)
                painter.DrawImpulses(drawn, dataset.baseline);
            else if (dataset.showLine)
                painter.DrawLine(drawn);
            if (dataset.markerType != CDataset::MarkerNone)
                painter.DrawMarkers(drawn);
        }
}
