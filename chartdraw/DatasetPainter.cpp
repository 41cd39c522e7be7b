// SPDX-License-Identifier: MIT
// DatasetPainter: lines by direct writing or GDI, and the places of markers.
#include "chartdraw/DatasetPainter.h"

#include <algorithm>
#include <vector>

#include "chartdraw/PixelStamps.h"
#include "chartdraw/WideStrokes.h"
#include "chartdraw/core/ChartReduction.h"
#include "chartdraw/core/MarkerPlaces.h"
#include "chartdraw/core/RasterPath.h"
#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"

namespace kavlix {
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

DatasetPainter::DatasetPainter(CDC& dc, const CRect& plot, ColumnEnds* ends)
    : m_dc(dc), m_plot(plot), m_ends(ends) {
    ::LPtoDP(dc.GetSafeHdc(), &m_origin, 1);
    if (::GetMapMode(dc.GetSafeHdc()) != MM_TEXT)
        return;
    m_raster = DirectRaster(dc);
    CRect device = plot;
    device.OffsetRect(m_origin);
    if (m_raster)
        m_plotRaster = m_raster->ClippedTo(ToRect(device));
}

const ColumnBorders& DatasetPainter::BordersOf(const AxisMap& xMap, const Rect& view) {
    if (!m_borders || !(m_borders->Pixels().Map() == xMap) || m_borders->Left() != view.left ||
        m_borders->Right() != view.right)
        m_borders.emplace(xMap, view.left, view.right);
    return *m_borders;
}

void DatasetPainter::Walk(const DrawnDataset& dataset, const Rect& view, PixelPath& path,
                          PixelSet& lonePixels) {
    ChartLine line(path, lonePixels, dataset.isStepped ? ChartLine::Steps : ChartLine::Straight);
    Reduce(dataset.points, BordersOf(dataset.xMap, view), dataset.yMap, view, line, m_ends);
}

void DatasetPainter::DrawLine(const DrawnDataset& dataset) {
    const int reach = SeriesReduction::Reach(dataset.lineSize);
    CRect inflated = m_plot;
    inflated.InflateRect(reach, reach);
    const Rect view = ToRect(inflated);
    PixelSet lonePixels(ToRect(m_plot));
    const std::optional<std::uint32_t> colour = DirectColour(dataset.color);
    if (m_plotRaster && colour && dataset.lineSize <= kPixelSize) {
        ::GdiFlush(); // GDI must finish its pending calls before pixels are written directly
        OffsetPath path(*m_plotRaster, *colour, m_origin);
        Walk(dataset, view, path, lonePixels);
    } else {
        DrawByGdi(dataset, view, lonePixels);
    }
    // A line that falls on a single pixel, such as a point between two gaps, has no stroke. If it has no
    // marker either, a dot shows it.
    if (dataset.markerType != CDataset::MarkerNone || lonePixels.IsEmpty())
        return;
    if (m_ends != nullptr)
        m_ends->AddDot();
    SavedDcGuard saved(m_dc);
    m_dc.IntersectClipRect(&m_plot);
    DrawStamps(m_dc, m_plotRaster, m_origin, lonePixels, dataset.color, DotOf(dataset.lineSize));
}

void DatasetPainter::DrawByGdi(const DrawnDataset& dataset, const Rect& view, PixelSet& lonePixels) {
    CPen pen;
    pen.CreatePen(PS_SOLID, dataset.lineSize, dataset.color);
    SavedDcGuard saved(m_dc);
    Select(m_dc, pen);
    m_dc.IntersectClipRect(&m_plot);
    if (dataset.lineSize <= kPixelSize) {
        ReducedPath path(view, [&](const Point* points, int count) { DrawThin(m_dc, points, count); });
        Walk(dataset, view, path, lonePixels);
        return;
    }
    const std::optional<std::uint32_t> colour = DirectColour(dataset.color);
    ::GdiFlush();
    WideStrokes strokes(m_dc, dataset.lineSize, view, colour ? m_plotRaster : std::nullopt,
                        colour.value_or(0), m_origin);
    ReducedPath path(view, [&](const Point* points, int count) { strokes.Draw(points, count); });
    Walk(dataset, view, path, lonePixels);
}

void DatasetPainter::DrawMarkers(const DrawnDataset& dataset) {
    // Several markers on the same pixel look like one, so a set of pixels replaces the list of points.
    PixelSet places(ToRect(m_plot));
    FindMarkerPlaces(dataset.points, dataset.xMap, dataset.yMap, places);
    const CDataset::MarkerType type = dataset.markerType;
    DrawStamps(m_dc, m_raster, m_origin, places, dataset.color,
               {kMarkerHalf + kPixelSize, false, [type](CDC& target, int x, int y) {
                    DrawMarker(target, type, x, y, kMarkerHalf, kPixelSize);
                }});
}

} // namespace kavlix
