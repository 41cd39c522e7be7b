#include "graphctrl/GraphCtrlStrokes.h"

#include <algorithm>

#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "plot/SeriesReduction.h"
#include "plot/StrokeCut.h"

namespace kavlix {

namespace {

constexpr std::size_t kMostPoints = 8192;

} // namespace

/// The previous or next point lies outside the pixel tables, so its pixel is unknown.
void DirectStrokes::GoFar(double value, const PixelColumn& column, int row) {
    const auto isBeyond = [](const PixelEdges& edges, int from, int to) {
        return from == to && !edges.HasPixel(from);
    };
    const bool isUnseen =
        isBeyond(m_ground.rows, m_last.row, row) || isBeyond(m_ground.columns, m_last.pixel, column.pixel);
    m_line.Jump(column.pixel, row);
    if (isUnseen)
        return;
    if (m_far.size() >= kMostPoints)
        PaintFar();
    m_far.push_back({m_last.position, m_ground.yMap.Position(m_last.value).value_or(0)});
    m_far.push_back({column.position, m_ground.yMap.Position(value).value_or(0)});
}

void DirectStrokes::PaintFar() {
    if (m_far.empty())
        return;
    m_ground.dc.LPtoDP(m_far.data(), static_cast<int>(m_far.size()));
    for (std::size_t i = 0; i < m_far.size(); i += 2)
        m_raster.Stroke(ToPoint(m_far[i]), ToPoint(m_far[i + 1]), m_colour);
    m_far.clear();
}

void DirectStrokes::End() {
    m_line.End();
    m_isOpen = false;
    PaintFar();
}

void GdiStrokes::Add(double value, const PixelColumn& column) {
    if (m_points.size() >= kMostPoints) {
        const Point last = m_points.back();
        DrawPart();
        m_points.push_back(last);
        m_pixels.push_back({});
        m_far.push_back(0);
    }
    const int y = m_ground.yMap.Position(value).value_or(0);
    // Pixels are looked up where they can be seen; of the others GDI is asked later, of all at once.
    if (m_ground.columns.HasPixel(column.pixel) && m_ground.rows.Holds(y)) {
        m_pixels.push_back({column.pixel, m_ground.rows.PixelOf(y)});
    } else {
        m_far.push_back(m_points.size());
        m_pixels.push_back({});
    }
    m_points.push_back({column.position, y});
}

void GdiStrokes::End() {
    if (!m_points.empty())
        DrawPart();
    DrawBands();
}

void GdiStrokes::DrawPart() {
    std::vector<POINT> distant;
    for (const std::size_t i : m_far)
        distant.push_back({m_points[i].x, m_points[i].y});
    if (!distant.empty())
        m_ground.dc.LPtoDP(distant.data(), static_cast<int>(distant.size()));
    for (std::size_t i = 0; i < distant.size(); ++i)
        m_pixels[m_far[i]] = ToPoint(distant[i]);

    CRect view = m_plot;
    view.InflateRect(SeriesReduction::Reach(m_penPixels), SeriesReduction::Reach(m_penPixels));
    std::vector<POINT> line;
    SeriesReduction reduction(ToRect(view), [&](const Point* points, int count) {
        if (m_penPixels > 1) {
            DrawWide(ToRect(view), points, count);
            return;
        }
        line.resize(static_cast<std::size_t>(count));
        std::transform(points, points + count, line.begin(), [](const Point& point) {
            return POINT{point.x, point.y};
        });
        m_ground.dc.Polyline(line.data(), count);
    });
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        // With some pens a stroke of no length is a dot: none is drawn.
        if (i == 0 || !(m_pixels[i] == m_pixels[i - 1]))
            reduction.Add(m_pixels[i], m_points[i]);
    }
    reduction.End();
    m_points.clear();
    m_pixels.clear();
    m_far.clear();
}

/// The region of a whole wide polyline costs more than its strokes one by one. Upright strokes from far away
/// are bands beside one another, of which some cover all.
void GdiStrokes::DrawWide(const Rect& view, const Point* points, int count) {
    CDC& dc = m_ground.dc;
    const int width = m_penPixels * kUnitsPerPixel;
    for (int i = 1; i < count; ++i) {
        WideStroke stroke = {{points[i - 1].x, points[i - 1].y}, {points[i].x, points[i].y}};
        switch (stroke.Shorten(dc, view, m_penPixels)) {
        case WideStroke::Unseen:
            break;
        case WideStroke::Band:
            if (m_hasBand && stroke.from.x >= m_firstBand.from.x - width &&
                stroke.from.x <= m_lastBand + width) {
                m_lastBand = std::max<int>(m_lastBand, stroke.from.x);
                m_firstBand.from.x = m_firstBand.to.x = std::min(m_firstBand.from.x, stroke.from.x);
                break;
            }
            DrawBands();
            m_hasBand = true;
            m_firstBand = stroke;
            m_lastBand = stroke.from.x;
            break;
        default:
            stroke.Draw(dc);
        }
    }
}

void GdiStrokes::DrawBands() {
    while (m_hasBand) {
        m_firstBand.Draw(m_ground.dc);
        m_hasBand = m_firstBand.from.x < m_lastBand;
        m_firstBand.from.x = m_firstBand.to.x =
            std::min<int>(m_firstBand.from.x + m_penPixels * kUnitsPerPixel, m_lastBand);
    }
}

WideStroke::Kind WideStroke::Shorten(CDC& dc, const Rect& view, int penPixels) {
    // In logical units, so that no stroke near the view is converted.
    const auto isBeyond = [](int place, int begin, int end) {
        return place < (begin - kFarFromView) * kUnitsPerPixel ||
               place > (end + kFarFromView) * kUnitsPerPixel;
    };
    const auto isFar = [&](const POINT& point) {
        return isBeyond(point.x, view.left, view.right) || isBeyond(point.y, view.top, view.bottom);
    };
    if (!isFar(from) && !isFar(to))
        return Whole;
    POINT ends[2] = {from, to};
    dc.LPtoDP(ends, 2);
    const Point first = ToPoint(ends[0]);
    const Point last = ToPoint(ends[1]);
    Point begin = first;
    Point end = last;
    if (!BringFarEndsNearer(begin, end, isFar(from), isFar(to), view, penPixels))
        return Unseen;
    const auto move = [&](POINT& place, const Point& old, const Point& pixel) {
        if (pixel == old)
            return;
        place = {pixel.x, pixel.y};
        dc.DPtoLP(&place);
    };
    const bool isBand = begin.x == end.x && !(begin == first) && !(end == last);
    move(from, first, begin);
    move(to, last, end);
    return isBand ? Band : Whole;
}

} // namespace kavlix
