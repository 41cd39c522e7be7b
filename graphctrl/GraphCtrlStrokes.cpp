#include "graphctrl/GraphCtrlStrokes.h"

#include <algorithm>
#include <cstdlib>

#include "graphctrl/GraphCtrlConvert.h"
#include "graphctrl/SeriesReduction.h"
#include "graphctrl/StrokeCut.h"

namespace kavlix {

namespace {

constexpr std::size_t kMostPoints = 8192;
constexpr int kFar = 1 << 18; // logical units
constexpr int kVeryFar = 1 << 22;
/// So many wide strokes of a line go whole from very far away to very far away. Each takes GDI up to a quarter of a
/// second; of more, the part near the view is drawn, whose edges may be rounded otherwise.
constexpr int kMostWholeStrokes = 1;
constexpr int kMargin = 32; // pixels

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
        std::transform(points, points + count, line.begin(),
                       [](const Point& point) { return POINT{point.x, point.y}; });
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

/// The region of a whole wide polyline costs more than its strokes one by one, and that of a stroke what its length
/// costs, seen or not.
void GdiStrokes::DrawWide(const Rect& view, const Point* points, int count) {
    CDC& dc = m_ground.dc;
    const auto isBeyond = [](const POINT& point, int limit) {
        return std::max(std::abs(point.x), std::abs(point.y)) > limit;
    };
    const auto isFar = [&](const POINT& point) { return isBeyond(point, kFar); };
    const auto bringNearer = [&](const POINT& from, POINT& farEnd) {
        POINT ends[2] = {from, farEnd};
        dc.LPtoDP(ends, 2);
        const Point begin = ToPoint(ends[0]);
        const Point end = NearerEnd(begin, ToPoint(ends[1]), 2 * StepsAcross(view, begin));
        if (end == ToPoint(ends[1]))
            return;
        farEnd = {end.x, end.y};
        dc.DPtoLP(&farEnd);
    };
    const auto drawCut = [&](const POINT& from, const POINT& to) {
        POINT ends[2] = {from, to};
        dc.LPtoDP(ends, 2);
        std::vector<Point> cut;
        CutStroke(PixelLine(ToPoint(ends[0]), ToPoint(ends[1])), view, kMargin, cut);
        for (std::size_t k = 0; k < cut.size(); ++k) {
            POINT point = {cut[k].x, cut[k].y};
            dc.DPtoLP(&point);
            if (k == 0)
                dc.MoveTo(point);
            else
                dc.LineTo(point);
        }
    };
    for (int i = 1; i < count; ++i) {
        POINT from = {points[i - 1].x, points[i - 1].y};
        POINT to = {points[i].x, points[i].y};
        if (isFar(from) && !isFar(to))
            bringNearer(to, from);
        else if (isFar(to) && !isFar(from))
            bringNearer(from, to);
        else if (isBeyond(from, kVeryFar) && isBeyond(to, kVeryFar) && from.x != to.x &&
                 ++m_wholeStrokes > kMostWholeStrokes) {
            drawCut(from, to);
            continue;
        }
        dc.MoveTo(from);
        dc.LineTo(to);
    }
}

} // namespace kavlix
