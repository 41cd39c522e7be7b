#include <kavlix/ChartDraw.h>

#include <vector>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartLine.h"
#include "gdi/Guards.h"
#include "gdi/Markers.h"
#include "graphctrl/GraphCtrlConvert.h"
#include "graphctrl/LinearMap.h"

using namespace kavlix;

namespace {

constexpr int kMarkerHalf = 3;
constexpr int kPixelSize = 1;

} // namespace

void CChartDraw::DrawDatasets(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    for (const auto& dataset : m_Datasets) {
        if (!dataset->visible)
            continue;
        if (dataset->showLine)
            DrawLine(dc, *dataset);
        if (dataset->markerType != CDataset::MarkerNone)
            DrawMarkers(dc, *dataset);
    }
}

void CChartDraw::DrawLine(CDC& dc, const Dataset& dataset) const {
    CPen pen;
    pen.CreatePen(PS_SOLID, dataset.lineSize, dataset.color);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    dc.IntersectClipRect(&m_rectPlot);

    CRect view = m_rectPlot;
    const int reach = SeriesReduction::Reach(dataset.lineSize);
    view.InflateRect(reach, reach);
    std::vector<POINT> stroke;
    SeriesReduction reduction(ToRect(view), [&](const Point* points, int count) {
        stroke.clear();
        for (int i = 0; i < count; ++i)
            stroke.push_back({points[i].x, points[i].y});
        dc.Polyline(stroke.data(), count);
    });
    ChartLine line(reduction);
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    for (const ChartSeries::Value& value : dataset.points.Values())
        line.Add(xMap.ExactPosition(value.x), yMap.ExactPosition(value.y));
    line.End();
}

void CChartDraw::DrawMarkers(CDC& dc, const Dataset& dataset) const {
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, dataset.color);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    dc.SelectStockObject(NULL_BRUSH);

    // A marker on a place that has one changes nothing.
    std::vector<bool> marked(static_cast<std::size_t>(m_rectPlot.Width()) *
                             static_cast<std::size_t>(m_rectPlot.Height()));
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    for (const ChartSeries::Value& value : dataset.points.Values()) {
        const auto x = xMap.Position(value.x);
        const auto y = yMap.Position(value.y);
        if (!x || !y || !m_rectPlot.PtInRect(CPoint(*x, *y)))
            continue;
        const auto place =
            static_cast<std::size_t>(*y - m_rectPlot.top) * static_cast<std::size_t>(m_rectPlot.Width()) +
            static_cast<std::size_t>(*x - m_rectPlot.left);
        if (marked[place])
            continue;
        marked[place] = true;
        DrawMarker(dc, dataset.markerType, *x, *y, kMarkerHalf, kPixelSize);
    }
}
