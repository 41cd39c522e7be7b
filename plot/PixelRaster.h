#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Which pixels of a dotted line are painted: in every `period` of them, from the first one on, those whose
/// places `dots` tells, counted from 0.
struct DotPattern {
    std::vector<int> dots;
    int period = 0;
};

/// Paints into the 32-bit pixels of a picture what GDI would paint there with a solid pen one pixel wide or
/// with a solid brush: the same pixels, for any coordinates of up to 28 bits. Nothing outside the clip is
/// touched. Lines of many points go through ThinLine.
class PixelRaster {
public:
    /// `origin` is the pixel (0, 0), `stride` the distance in pixels from a row to the one below it; `clip`
    /// must lie inside the picture. The pixels stay the caller's.
    PixelRaster(std::uint32_t* origin, std::ptrdiff_t stride, const Rect& clip);

    const Rect& Clip() const { return m_clip; }

    /// The stroke between two points. Its last pixel is left out.
    void Stroke(const Point& from, const Point& to, std::uint32_t colour) const;
    /// The pixels of column `x` from row `top` to `bottom`, both included.
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
    /// An upright or level line of dots. Its last pixel is left out.
    void Dots(const Point& from, const Point& to, const DotPattern& pattern, std::uint32_t colour) const;
    /// The same as upright lines from row `from` to row `to` in each of the `columns`, painted row by row: in
    /// memory the pixels of a row are neighbours.
    void DotColumns(const std::vector<int>& columns, int from, int to, const DotPattern& pattern,
                    std::uint32_t colour) const;
    /// The pixels of `area`.
    void Fill(const Rect& area, std::uint32_t colour) const;

private:
    std::uint32_t* At(int x, int y) const { return m_origin + m_stride * y + x; }

    std::uint32_t* m_origin;
    std::ptrdiff_t m_stride;
    Rect m_clip;
};

} // namespace kavlix
