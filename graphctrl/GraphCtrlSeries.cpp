// SPDX-License-Identifier: MIT
// CGraphCtrl: paints the datasets in the graph style. LinePainter and BarPainter paint one dataset.
#include <kavlix/GraphCtrl.h>

#include <algorithm>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/BarPainter.h"
#include "graphctrl/LinePainter.h"
#include "graphctrl/ReducedLines.h"

using namespace kavlix;

void CGraphCtrl::DrawGraphData(CDC& dc) {
    switch (m_GraphStyle) {
    case GraphStyleLine:
    case GraphStyleTwoAxis: {
        const CRect& plot = m_rectPlot;
        const LinearMap xMap = XMap();
        DrawLines(dc, IndexPositions(xMap), [&](const CDataset& dataset) {
            const int reach = LineReach(dataset);
            return IndicesToDraw(xMap, plot.left - reach, plot.right + reach, dataset.GetSize());
        });
        break;
    }
    case GraphStyleBar:
        DrawBars(dc);
        break;
    default:
        break;
    }
}

void CGraphCtrl::DrawLines(CDC& dc, const XPositions& xPositions,
                           const std::function<IndexRange(const CDataset&)>& rangeOf) {
    constexpr COLORREF kTriangleColor = RGB(255, 0, 0);
    CBrush triangleBrush;
    triangleBrush.CreateSolidBrush(kTriangleColor);
    CPen linePen;
    linePen.CreatePen(PS_DOT, 0, m_LineCursorColor);
    CPen pens[DatasetCount];
    for (int i = 0; i < DatasetCount; ++i)
        pens[i].CreatePen(PS_SOLID, PenWidth(m_Datasets[i]), m_Datasets[i].GetColor());
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    StockAfterGuard penAfter(dc, NULL_PEN);
    dc.SelectStockObject(NULL_BRUSH);

    const CRect& plot = m_rectPlot;
    const LineSelectionMark selectionMark{m_SelectionMarkPos, plot, linePen, triangleBrush};

    // Dataset 0 is drawn last and covers the others.
    const int drawn = m_GraphStyle == GraphStyleTwoAxis ? 2 : int{DatasetCount};
    IndexRange ranges[DatasetCount];
    int reach = 0;
    for (int i = 0; i < drawn; ++i) {
        const CDataset& dataset = m_Datasets[i];
        if (!dataset.m_Visible)
            continue;
        ranges[i] = rangeOf(dataset);
        reach = std::max(reach, LineReach(dataset));
    }
    const ReducedLines reduced(dc, ClippedPart(dc, plot), reach, xPositions, ranges, drawn);
    for (int i = drawn - 1; i >= 0; --i) {
        if (!m_Datasets[i].m_Visible)
            continue;
        const LinearMap yMap = YMapOf(i);
        if (!reduced.Draw(m_Datasets[i], pens[i], yMap, ranges[i], selectionMark))
            DrawSeriesLine(dc, m_Datasets[i], pens[i], xPositions, yMap, ranges[i], selectionMark);
    }
}

BOOL CGraphCtrl::CalcBarSize(int& nBarWidth, int& nDatasets, int& nVisiblePoints) {
    int sizes[DatasetCount];
    GetSizes(sizes);
    BarSlots slots;
    if (!ComputeBarSlots(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax, m_rectPlot.Width(), slots))
        return FALSE;
    nBarWidth = slots.barWidth;
    nDatasets = slots.datasets;
    nVisiblePoints = slots.visible;
    return TRUE;
}

void CGraphCtrl::DrawBars(CDC& dc) {
    CBrush bandBrush;
    bandBrush.CreateSolidBrush(m_BoxCursorColor);
    CBrush brushes[DatasetCount];
    for (int i = 0; i < DatasetCount; ++i)
        brushes[i].CreateSolidBrush(m_Datasets[i].GetColor());
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    StockAfterGuard penAfter(dc, NULL_PEN);
    dc.SelectStockObject(NULL_PEN);

    BarSlots slots;
    if (!CalcBarSize(slots.barWidth, slots.datasets, slots.visible))
        return;
    // Bars of width 0 paint no pixel.
    if (slots.barWidth == 0)
        return;
    const Rect plot = ToRect(m_rectPlot);
    const LinearMap yMap = YMapOf(0);
    const BarSelectionMark selectionMark{m_SelectionMarkPos, bandBrush};
    int offset = 0;
    for (int i = 0; i < DatasetCount; ++i) {
        const CDataset& dataset = m_Datasets[i];
        if (dataset.GetSize() == 0)
            continue;
        // The first dataset with samples draws the selection mark before its own bar, so that the selection
        // mark lies behind the whole group. A hidden dataset keeps its place in the group.
        const IndexRange range = IndicesInSlots(dataset.GetSize(), m_XVisibleMin, slots);
        DrawSeriesBars(dc, dataset, brushes[i], slots, offset, range, plot, yMap,
                       offset == 0 ? &selectionMark : nullptr);
        offset += slots.barWidth;
    }
}
