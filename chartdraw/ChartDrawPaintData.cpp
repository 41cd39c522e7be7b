// SPDX-License-Identifier: MIT
// CChartDraw: draws the lines and markers of datasets.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/PixelStamps.h"
#include "chartdraw/WideStrokes.h"
#include "chartdraw/core/ChartReduction.h"
#include "chartdraw/core/RasterPath.h"
#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"
#include "plot/LinearMap.h"

using namespace kavlix;

namespace {

constexpr int kMarkerHalf = 3; // pixels from a marker's centre to its edges; 2 to a triangle's bottom edge
constexpr int kPixelSize = 1;  // logical units in a pixel

/// Paints a line whose points are in logical units of one pixel. `origin` is the device point of
/// the logical origin.
class OffsetPath : public PixelPath {
public:
    OffsetPath(const PixelRaster& raster, std::uint32_t colour, const POINT& origin)
        : m_path(raster, colour), m_origin(ToPoint(origin)) {}

    void Add(const Point& pixel) override { m_path.Add({pixel.x + m_origin.x, pixel.y + m_origin.y}); }
    void Break() override { m_path.Break(); }

private:
    RasterPath m_path;
    Point m_origin;
};

/// Draws a line with the pen that is selected into `dc`.
void DrawThin(CDC& dc, const Point* points, int count) {
    std::vector<POINT> stroke;
    stroke.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        stroke.push_back({points[i].x, points[i].y});
    dc.Polyline(stroke.data(), count);
}

/// The dot that shows a point without neighbours: as wide as the line, at least 3 pixels, and square when a
/// circle would be too small to be seen as one.
StampShape DotOf(int lineSize) {
    constexpr int kSmallest = 3;
    constexpr int kSmallestRound = 5;
    const int size = std::max(lineSize, kSmallest);
    return {size / 2 + 1, true, [size](CDC& dc, int x, int y) {
                const CRect box(CPoint(x - size / 2, y - size / 2), CSize(size, size));
                if (size < kSmallestRound)
                    dc.Rectangle(box);
                else
                    dc.Ellipse(box);
            }};
}

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
    PixelSet lonePixels(ToRect(m_rectPlot));
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    const auto walk = [&](PixelPath& path) {
        ChartLine line(path, lonePixels);
        ChartReduction(dataset.points, xMap, yMap, ToRect(view), line).Run();
    };
    const std::optional<std::uint32_t> colour = DirectColour(dataset.color);
    std::optional<PixelRaster> raster;
    if (colour && ::GetMapMode(dc.GetSafeHdc()) == MM_TEXT)
        raster = DirectRaster(dc);
    POINT origin = {0, 0};
    ::LPtoDP(dc.GetSafeHdc(), &origin, 1);
    if (dataset.lineSize > kPixelSize) {
        WideStrokes strokes(dc, dataset.lineSize, ToRect(view), raster, colour.value_or(0), origin);
        ReducedPath path(ToRect(view), [&](const Point* points, int count) { strokes.Draw(points, count); });
        walk(path);
    } else if (raster) {
        OffsetPath path(*raster, *colour, origin);
        walk(path);
    } else {
        ReducedPath path(ToRect(view), [&](const Point* points, int count) { DrawThin(dc, points, count); });
        walk(path);
    }
    // A line that falls on a single pixel, such as a point between two gaps, has no stroke. If it has no
    // marker either, a dot shows it.
    if (dataset.markerType == CDataset::MarkerNone)
        DrawStamps(dc, lonePixels, dataset.color, DotOf(dataset.lineSize));
}

void CChartDraw::DrawMarkers(CDC& dc, const Dataset& dataset) const {
    // Several markers on the same pixel look like one, so a set of pixels replaces the list of points.
    const Rect plot = ToRect(m_rectPlot);
    PixelSet places(plot);
    const LinearMap xMap = XMap();
    const LinearMap yMap = YMap();
    // True only if no point of a block can add a pixel to the set: the block lies outside the plot, or it
    // lies in one pixel column of the plot and all pixels of its bounding box are in the set already. False
    // does not mean that the block adds a pixel.
    const auto addsNothing = [&](const PointBox& box, int first, int last) {
        const auto left = xMap.Position(box.left);
        const auto right = xMap.Position(box.right);
        const auto top = yMap.Position(box.high);
        const auto bottom = yMap.Position(box.low);
        if (!left || !right || !top || !bottom)
            return false;
        if (*right < plot.left || *left >= plot.right || *bottom < plot.top || *top >= plot.bottom)
            return true;
        if (*left != *right || *top < plot.top || *bottom >= plot.bottom || *bottom - *top > last - first)
            return false;
        for (int y = *top; y <= *bottom; ++y)
            if (!places.Has({*left, y}))
                return false;
        return true;
    };
    dataset.points.Boxes().Visit(0, dataset.points.Size(), addsNothing, [&](int first, int behind) {
        const ChartPoint* points = &dataset.points[first];
        for (int i = 0; i < behind - first; ++i) {
            // For NaN the comparisons are false. For all other numbers that pass them, both casts are
            // defined. The set ignores pixels outside the plot.
            const double x = xMap.ExactPosition(points[i].x);
            const double y = yMap.ExactPosition(points[i].y);
            if (x > plot.left - 1 && x < plot.right && y > plot.top - 1 && y < plot.bottom)
                places.Add({static_cast<int>(x), static_cast<int>(y)});
        }
    });
    const CDataset::MarkerType type = dataset.markerType;
    DrawStamps(dc, places, dataset.color,
               {kMarkerHalf + kPixelSize, false, [type](CDC& target, int x, int y) {
                    DrawMarker(target, type, x, y, kMarkerHalf, kPixelSize);
                }});
}
