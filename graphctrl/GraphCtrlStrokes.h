#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "graphctrl/core/PixelColumns.h"
#include "graphctrl/core/PixelRows.h"
#include "plot/LinearMap.h"
#include "plot/PixelRaster.h"
#include "plot/ThinLine.h"

/// Two ways to draw a line whose samples come one by one, already chosen by their pixel columns. Both take
/// Add, a value that is no gap in the column it belongs to, and End, where the line ends.
namespace kavlix {

/// Where a line is drawn. All references must outlive it.
struct LineGround {
    CDC& dc;
    const PixelEdges& columns;
    const PixelEdges& rows;
    const LinearMap& yMap;
};

/// Paints a line one pixel wide straight into a picture, whose clip must lie inside the ground's pixels.
class DirectStrokes {
public:
    DirectStrokes(const LineGround& ground, const PixelRaster& raster, std::uint32_t colour)
        : m_ground(ground), m_rows(ground.yMap, ground.rows), m_raster(raster), m_colour(colour),
          m_line(raster, colour) {}

    void Add(double value, const PixelColumn& column) {
        const int row = m_rows.Of(value);
        const bool isNear = m_ground.rows.HasPixel(row) && m_ground.columns.HasPixel(column.pixel);
        if ((isNear && m_isNear) || !m_isOpen)
            m_line.To(column.pixel, row);
        else
            GoFar(value, column, row);
        m_isOpen = true;
        m_isNear = isNear;
        m_last = {value, column.position, column.pixel, row};
    }
    void End();

private:
    struct Place {
        double value;
        int position;
        int pixel;
        int row;
    };

    void GoFar(double value, const PixelColumn& column, int row);
    void PaintFar();

    LineGround m_ground;
    PixelRows m_rows;
    PixelRaster m_raster;
    std::uint32_t m_colour;
    ThinLine m_line;
    bool m_isOpen = false;
    bool m_isNear = false; ///< whether the pixel of the last point is known
    Place m_last = {};
    std::vector<POINT> m_far; ///< ends of strokes whose pixels GDI tells later, all at once; logical units
};

/// A stroke, logical units, with a pen more than a pixel wide on a DC that paints pixels. GDI takes what a
/// stroke's length takes, seen or not.
struct WideStroke {
    enum Kind {
        Unseen, ///< it passes by
        Band,   ///< upright, from beyond the view to beyond it, as all bands
        Whole
    };

    POINT from;
    POINT to;

    /// Has a stroke from far away end nearer, so that it takes the same pixels of `view`, in device units,
    /// which is as much larger than the clip as the pen reaches.
    Kind Shorten(CDC& dc, const Rect& view, int penPixels);
    void Draw(CDC& dc) const {
        dc.MoveTo(from);
        dc.LineTo(to);
    }
};

/// Has GDI draw a line with the pen that is selected, `penPixels` wide.
class GdiStrokes {
public:
    /// `plot` in device units, edges included: what can be seen.
    GdiStrokes(const LineGround& ground, const CRect& plot, int penPixels)
        : m_ground(ground), m_plot(plot), m_penPixels(penPixels) {}

    void Add(double value, const PixelColumn& column);
    void End();

private:
    void DrawPart();
    void DrawWide(const Rect& view, const Point* points, int count);
    void DrawBands();

    LineGround m_ground;
    CRect m_plot;
    int m_penPixels;
    // Bands that wait to be drawn, with no gap between them.
    bool m_hasBand = false;
    WideStroke m_firstBand = {};
    int m_lastBand = 0;          ///< x
    std::vector<Point> m_points; ///< logical units
    std::vector<Point> m_pixels;
    std::vector<std::size_t> m_far; ///< the points whose pixels are not known yet
};

} // namespace kavlix
