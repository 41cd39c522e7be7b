// SPDX-License-Identifier: MIT
// GdiLine: pixels of the points, reduction of the line, and the calls of GDI.
#include "graphctrl/GdiLine.h"

#include <algorithm>

#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "plot/SeriesReduction.h"

namespace kavlix {

void GdiLine::Add(double value, const PixelColumn& column) {
    if (m_points.size() >= kMaxPendingPoints) {
        const Point last = m_points.back();
        DrawPart();
        m_points.push_back(last);
        m_pixels.push_back({});
        m_far.push_back(0);
    }
    const int y = m_target.yMap.Position(value).value_or(0);
    // The pixel of a point inside the pixel table is looked up. DrawPart lets GDI convert all other points in
    // one call.
    if (m_target.columns.HasPixel(column.pixel) && m_target.rows.Holds(y)) {
        m_pixels.push_back({column.pixel, m_target.rows.PixelOf(y)});
    } else {
        m_far.push_back(m_points.size());
        m_pixels.push_back({});
    }
    m_points.push_back({column.position, y});
}

void GdiLine::End() {
    if (!m_points.empty())
        DrawPart();
    DrawBands();
}

void GdiLine::DrawPart() {
    std::vector<POINT> distant;
    for (const std::size_t i : m_far)
        distant.push_back({m_points[i].x, m_points[i].y});
    if (!distant.empty())
        m_target.dc.LPtoDP(distant.data(), static_cast<int>(distant.size()));
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
        m_target.dc.Polyline(line.data(), count);
    });
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        // Skip strokes of length 0, which some pens draw as a dot.
        if (i == 0 || !(m_pixels[i] == m_pixels[i - 1]))
            reduction.Add(m_pixels[i], m_points[i]);
    }
    reduction.End();
    m_points.clear();
    m_pixels.clear();
    m_far.clear();
}

/// Draws a wide line stroke by stroke, since GDI builds a region for a wide polyline, which takes longer.
/// Bands (WideStroke::Band) that overlap or touch are collected: DrawBands covers their area with fewer
/// strokes.
void GdiLine::DrawWide(const Rect& view, const Point* points, int count) {
    CDC& dc = m_target.dc;
    const int width = m_penPixels * kUnitsPerPixel;
    for (int i = 1; i < count; ++i) {
        WideStroke stroke = {{points[i - 1].x, points[i - 1].y}, {points[i].x, points[i].y}};
        switch (stroke.Shorten(dc, view, m_penPixels)) {
        case WideStroke::Invisible:
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

/// Draws bands from the leftmost to the rightmost pending band, one pen width apart; the last gap may be
/// narrower.
void GdiLine::DrawBands() {
    while (m_hasBand) {
        m_firstBand.Draw(m_target.dc);
        m_hasBand = m_firstBand.from.x < m_lastBand;
        m_firstBand.from.x = m_firstBand.to.x =
            std::min<int>(m_firstBand.from.x + m_penPixels * kUnitsPerPixel, m_lastBand);
    }
}

} // namespace kavlix
