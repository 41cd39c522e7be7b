// SPDX-License-Identifier: MIT
// Strokes wider than a pixel: short ones are painted from cached shapes, the others by GDI.
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

/// Draws strokes with a solid pen wider than a pixel. GDI makes a region for each stroke of this width, which
/// takes as long as painting a hundred pixels. In a line with many points, nearly all strokes stay in a
/// column or lead to a neighbouring column. So if the pixels of the DC lie in memory, GDI draws one such
/// stroke of each direction and length into a scratch picture. The shape found there is cached, and later
/// strokes of the same direction and length are painted from the cache.
class WideStrokes {
public:
    /// A solid pen of `width` pixels must be selected into `dc`. Pixels outside `view` are never visible.
    /// `raster` gives access to the pixels of `dc`; without it GDI draws all strokes, and `colour` and
    /// `origin` are not used. `colour` is the pen's colour as a pixel stores it, `origin` the device point of
    /// the logical origin. With a raster, logical units must be pixels.
    WideStrokes(CDC& dc, int width, const Rect& view, const std::optional<PixelRaster>& raster,
                std::uint32_t colour, const POINT& origin);
    ~WideStrokes();
    WideStrokes(const WideStrokes&) = delete;
    WideStrokes& operator=(const WideStrokes&) = delete;

    /// Draws a stroke from each of the points to the next point.
    void Draw(const Point* points, int count);

private:
    /// The pixels that a stroke paints, relative to its first point.
    using Shape = std::vector<Rect>;
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
    Shapes* m_shapes = nullptr;         ///< null when GDI draws all strokes
    std::unique_ptr<Scratch> m_scratch; ///< GDI draws strokes here whose shape is not cached yet
};

} // namespace kavlix
