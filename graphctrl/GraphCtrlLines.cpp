#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/GraphCtrlPainters.h"
#include "graphctrl/GraphCtrlReducedLines.h"
#include "graphctrl/GraphCtrlStrokes.h"
#include "graphctrl/core/SampleStore.h"
#include "plot/SeriesReduction.h"

namespace kavlix {

namespace {

// Logical units.
constexpr int kMarkerHalf = 90;
constexpr int kMarkTriangleHeight = 180;
constexpr int kMarkTriangleTip = 10; // the triangle stands right of the line by this much
constexpr int kMarkTriangleRight = 90;
constexpr int kMarkTriangleLeft = -70;
constexpr int kRoundingReach = 60; // two pixels

} // namespace

void DrawSampleMarker(CDC& dc, CDataset::MarkerType type, int x, int y) {
    if (DrawMarker(dc, type, x, y, kMarkerHalf, 0))
        dc.MoveTo(x, y);
}

void DrawMark(CDC& dc, const LineMark& mark, CPen& seriesPen, int x) {
    if (x < mark.plot.left - kMarkTriangleRight - kRoundingReach ||
        x > mark.plot.right - kMarkTriangleLeft + kRoundingReach)
        return;
    const CPoint position = dc.GetCurrentPosition();
    POINT triangle[] = {{x + kMarkTriangleTip, mark.plot.top + kMarkTriangleHeight},
                        {x + kMarkTriangleRight, mark.plot.top},
                        {x + kMarkTriangleLeft, mark.plot.top}};
    CRgn region;
    if (region.CreatePolygonRgn(triangle, 3, ALTERNATE))
        dc.FillRgn(&region, &mark.triangleBrush);
    Select(dc, mark.cursorPen);
    dc.MoveTo(x, mark.plot.bottom);
    dc.LineTo(x, mark.plot.top);
    Select(dc, seriesPen);
    dc.MoveTo(position);
}

int PenWidth(const CDataset& dataset) {
    return std::clamp(dataset.GetLineSize(), 0, kWidestLine);
}

int PenPixels(const CDC& dc, int width) {
    POINT ends[2] = {{0, 0}, {width, 0}};
    dc.LPtoDP(ends, 2);
    return std::max(1, std::abs(static_cast<int>(ends[1].x - ends[0].x)));
}

int LineReach(const CDataset& dataset) {
    return kMarkerHalf + PenWidth(dataset) + kRoundingReach;
}

void DrawSeriesLine(CDC& dc, const CDataset& dataset, CPen& pen, const XPositions& xPositions,
                    const LinearMap& yMap, IndexRange range, const LineMark& mark) {
    Select(dc, pen);
    const SampleStore& samples = dataset.Samples();
    bool started = false;
    CPoint lastPixel;
    const int penPixels = PenPixels(dc, PenWidth(dataset));
    CRect view = ToDeviceWithEdges(dc, mark.plot);
    view.InflateRect(SeriesReduction::Reach(penPixels), SeriesReduction::Reach(penPixels));
    const bool isWideInPixels = penPixels > 1 && PaintsPixels(dc);
    const auto strokeTo = [&](int x, int y) {
        const CPoint from = dc.GetCurrentPosition();
        WideStroke stroke = {from, {x, y}};
        if (stroke.Shorten(dc, ToRect(view), penPixels) != WideStroke::Unseen)
            stroke.Draw(dc);
        dc.MoveTo(x, y);
    };
    for (int i = range.first; i <= range.last; ++i) {
        const double value = samples[i];
        const std::optional<int> x = xPositions.At(i);
        const std::optional<int> y = yMap.Position(value);
        if (x && i == mark.index && !std::isnan(value))
            DrawMark(dc, mark, pen, *x);
        if (!x || !y) {
            started = false;
            continue;
        }
        CPoint pixel(*x, *y);
        dc.LPtoDP(&pixel);
        if (!started)
            dc.MoveTo(*x, *y);
        else if (pixel != lastPixel && isWideInPixels)
            strokeTo(*x, *y);
        else if (pixel != lastPixel)
            dc.LineTo(*x, *y);
        lastPixel = pixel;
        started = true;
        DrawSampleMarker(dc, dataset.GetMarkerType(), *x, *y);
    }
}

} // namespace kavlix

using namespace kavlix;

void CGraphCtrl::DrawGraphData(CDC& dc) {
    switch (m_GraphStyle) {
    case GraphStyleLine:
    case GraphStyleTwoAxis: {
        const CRect& plot = m_rectPlot;
        const LinearMap xMap(m_XVisibleMin, m_XVisibleMax, plot.left, plot.Width());
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
    constexpr COLORREF kMarkColor = RGB(255, 0, 0);
    CBrush triangleBrush;
    triangleBrush.CreateSolidBrush(kMarkColor);
    CPen cursorPen;
    cursorPen.CreatePen(PS_DOT, 0, m_LineCursorColor);
    CPen pens[DatasetCount];
    for (int i = 0; i < DatasetCount; ++i)
        pens[i].CreatePen(PS_SOLID, PenWidth(m_Datasets[i]), m_Datasets[i].GetColor());
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    StockAfterGuard penAfter(dc, NULL_PEN);
    dc.SelectStockObject(NULL_BRUSH);

    const CRect& plot = m_rectPlot;
    const LinearMap yMap(m_YVisibleMin, m_YVisibleMax, plot.bottom, -plot.Height());
    const LinearMap y2Map(m_Y2VisibleMin, m_Y2VisibleMax, plot.bottom, -plot.Height());
    const LineMark mark{m_SelectionMarkPos, plot, cursorPen, triangleBrush};

    // Dataset 0 comes last and lies on top.
    const bool twoAxis = m_GraphStyle == GraphStyleTwoAxis;
    const int drawn = twoAxis ? 2 : DatasetCount;
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
        const LinearMap& map = twoAxis && i == 1 ? y2Map : yMap;
        if (!reduced.Draw(m_Datasets[i], pens[i], map, ranges[i], mark))
            DrawSeriesLine(dc, m_Datasets[i], pens[i], xPositions, map, ranges[i], mark);
    }
}
