// Strokes wider than a pixel, painted straight into pixels where they are short.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "plot/PixelRaster.h"
#include "plot/Shapes.h"

namespace kavlix {

class Scratch;

/// Draws strokes with a solid pen wider than a pixel. GDI makes a region of each such stroke, which takes as
/// long as painting a hundred pixels. In a line with many points nearly all strokes lead to the same or the
/// next column: where pixels lie in memory, GDI draws each such stroke once, elsewhere, and its pixels are
/// painted from then on.
class WideStrokes {
public:
    /// `dc` has the pen selected, `width` pixels wide; what the pen paints of strokes that pass by `view` is
    /// not seen. With a `raster` logical units are pixels, their origin at `origin`.
    WideStrokes(CDC& dc, int width, const Rect& view, const std::optional<PixelRaster>& raster,
                std::uint32_t colour, const POINT& origin);
    ~WideStrokes();
    WideStrokes(const WideStrokes&) = delete;
    WideStrokes& operator=(const WideStrokes&) = delete;

    /// Draws the strokes from each of the points to the next.
    void Draw(const Point* points, int count);

private:
    using Shape = std::vector<Rect>; ///< pixels that a stroke paints, its first point at (0, 0)
    struct Shapes;

    static Shapes& ShapesOf(int width);
    void DrawByGdi(Point from, Point to);
    const Shape* Find(int dx, int dy);
    bool Learn(int dx, int dy, Shape& shape);

    CDC& m_dc;
    int m_width;
    Rect m_view;
    std::optional<PixelRaster> m_raster;
    std::uint32_t m_colour;
    POINT m_origin;
    Shapes* m_shapes = nullptr;
    std::unique_ptr<Scratch> m_scratch; ///< where GDI draws a stroke that is not known yet
};

} // namespace kavlix
