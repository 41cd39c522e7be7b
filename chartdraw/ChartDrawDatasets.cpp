#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartLine.h"
#include "chartdraw/ChartWalk.h"
#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Markers.h"
#include "graphctrl/GraphCtrlConvert.h"
#include "graphctrl/LinearMap.h"
#include "graphctrl/ThinLine.h"

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
    const std::optional<std::uint32_t> colour = DirectColour(dataset.color);
    std::optional<PixelRaster> raster;
    if (dataset.lineSize <= kPixelSize && colour && dc.GetMapMode() == MM_TEXT)
        raster = DirectRaster(dc);
    CPoint origin(0, 0);
    dc.LPtoDP(&origin);
    std::vector<POINT> stroke;
    SeriesReduction reduction(ToRect(view), [&](const Point* points, int count) {
        if (raster) {
            ThinLine direct(*raster, *colour);
            for (int i = 0; i < count; ++i)
                direct.To(points[i].x + static_cast<int>(origin.x), points[i].y + static_cast<int>(origin.y));
            direct.End();
            return;
        }
        stroke.clear();
        for (int i = 0; i < count; ++i)
            stroke.push_back({points[i].x, points[i].y});
        dc.Polyline(stroke.data(), count);
    });
    ChartLine line(reduction);
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    ChartWalk(dataset.points, xMap, yMap, ToRect(view), line).Run();
}

void CChartDraw::DrawMarkers(CDC& dc, const Dataset& dataset) const {
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, dataset.color);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    dc.SelectStockObject(NULL_BRUSH);

    // A marker on a place that has one changes nothing. Places go column by column.
    const auto height = static_cast<std::size_t>(m_rectPlot.Height());
    std::vector<bool> marked(static_cast<std::size_t>(m_rectPlot.Width()) * height);
    const auto placeOf = [&](int x, int y) {
        return static_cast<std::size_t>(x - m_rectPlot.left) * height +
               static_cast<std::size_t>(y - m_rectPlot.top);
    };
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    const auto isDone = [&](const PointBox& box, int first, int last) {
        const auto left = xMap.Position(box.left);
        const auto right = xMap.Position(box.right);
        const auto top = yMap.Position(box.high);
        const auto bottom = yMap.Position(box.low);
        if (!left || !right || !top || !bottom)
            return false;
        if (*right < m_rectPlot.left || *left >= m_rectPlot.right || *bottom < m_rectPlot.top ||
            *top >= m_rectPlot.bottom)
            return true;
        if (*left != *right || *top < m_rectPlot.top || *bottom >= m_rectPlot.bottom ||
            *bottom - *top > last - first)
            return false;
        const auto begin = marked.begin() + static_cast<std::ptrdiff_t>(placeOf(*left, *top));
        const auto end = begin + (*bottom - *top + 1);
        return std::find(begin, end, false) == end;
    };
    dataset.points.Boxes().Visit(0, dataset.points.Size(), isDone, [&](int i) {
        const auto x = xMap.Position(dataset.points[i].x);
        const auto y = yMap.Position(dataset.points[i].y);
        if (!x || !y || !m_rectPlot.PtInRect(CPoint(*x, *y)) || marked[placeOf(*x, *y)])
            return;
        marked[placeOf(*x, *y)] = true;
        DrawMarker(dc, dataset.markerType, *x, *y, kMarkerHalf, kPixelSize);
    });
}
