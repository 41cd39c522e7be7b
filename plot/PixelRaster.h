// SPDX-License-Identifier: MIT
// A picture's pixels in memory, painted as GDI paints them but without calling GDI.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// The pixels of a dotted line that are painted. The pattern repeats after `period` pixels and begins with
/// the first pixel of the line.
struct DotPattern {
    std::vector<int> dots; ///< places of the painted pixels within one period, from 0, ascending
    int period = 0;        ///< pixels; 0 when the pattern is not known
};

/// Paints into the 32-bit pixels of a picture: strokes as of a solid GDI pen one pixel wide, areas as of a
/// solid GDI brush. For coordinates of up to 28 bits the pixels are the same as GDI's on most systems; see
/// DirectRaster, which checks this. Pixels outside the clip are not changed. For lines of many points use
/// ThinLine, which is faster.
class PixelRaster {
public:
    /// `origin` points to the pixel (0, 0). `stride` is the distance in pixels from a row to the row below
    /// it, negative for pictures whose bottom row comes first in memory. `clip` lies inside the picture. The
    /// caller owns the pixels and keeps them alive.
    PixelRaster(std::uint32_t* origin, std::ptrdiff_t stride, const Rect& clip);

    const Rect& Clip() const { return m_clip; }
    /// The same pixels with the part of the clip that lies inside `area`.
    PixelRaster ClippedTo(const Rect& area) const {
        return PixelRaster(m_origin, m_stride,
                           {std::max(m_clip.left, area.left), std::max(m_clip.top, area.top),
                            std::min(m_clip.right, area.right), std::min(m_clip.bottom, area.bottom)});
    }

    /// Paints a stroke without its last pixel.
    void Stroke(const Point& from, const Point& to, std::uint32_t colour) const;
    /// Paints the pixels of column `x` from row `top` to row `bottom`, both included.
    void Run(int x, int top, int bottom, std::uint32_t colour) const {
        top = top > m_clip.top ? top : m_clip.top;
        bottom = bottom < m_clip.bottom ? bottom : m_clip.bottom - 1;
        if (x < m_clip.left || x >= m_clip.right || top > bottom)
            return;
        std::uint32_t* pixel = At(x, top);
        for (int rows = bottom - top; rows > 0; --rows, pixel += m_stride)
            *pixel = colour;
        *pixel = colour;
    }
    /// Paints a vertical or horizontal dotted line without its last pixel.
    void Dots(const Point& from, const Point& to, const DotPattern& pattern, std::uint32_t colour) const;
    /// Paints vertical dotted lines from row `from` to row `to`, one in each of the `columns`. Painting goes
    /// row by row, because the pixels of a row are neighbours in memory.
    void DotColumns(const std::vector<int>& columns, int from, int to, const DotPattern& pattern,
                    std::uint32_t colour) const;
    /// Paints the pixels of `area`.
    void Fill(const Rect& area, std::uint32_t colour) const;

    /// A pixel of a layer that shows what is behind it. GDI paints no pixel of this value.
    static constexpr std::uint32_t kSeeThrough = 0xFF000000;
    /// Paints the pixels of a layer, apart from those with the bits of kSeeThrough. `pixels` points to the layer's
    /// pixel for the top left corner of `area`; `stride` is that of the layer.
    void Overlay(const std::uint32_t* pixels, std::ptrdiff_t stride, const Rect& area) const;

private:
    std::uint32_t* At(int x, int y) const { return m_origin + m_stride * y + x; }

    std::uint32_t* m_origin;
    std::ptrdiff_t m_stride;
    Rect m_clip;
};

} // namespace kavlix
