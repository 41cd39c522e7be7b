// SPDX-License-Identifier: MIT
// Painting of thin lines into pixels, fast also if their points jump back and forth across the view.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "chartdraw/core/PixelPath.h"
#include "plot/PixelRaster.h"
#include "plot/ThinLine.h"

namespace kavlix {

/// Paints lines one pixel wide into a raster. The last pixel of a line is not painted, as by GDI.
///
/// A line whose points come in random order of x covers the same pixels many times. So this class remembers a
/// range of painted rows for each pixel column, and for each block of columns the rows that are painted in
/// all of its columns. A long stroke is painted only in the blocks where it may leave these rows.
class RasterPath : public PixelPath {
public:
    RasterPath(const PixelRaster& raster, std::uint32_t colour);

    void Add(const Point& pixel) override;
    void Break() override;

private:
    /// Rows from `top` to `bottom`, both included. `bottom` < `top` means no rows.
    struct Rows {
        int top = 0;
        int bottom = -1;
    };
    /// The rows that are painted in all columns of a block. A range that reaches the top or bottom edge of
    /// the clip extends to minus or plus infinity there. A `top` of plus infinity means that a column has
    /// changed since the rows were found, so they must be found again.
    struct Block {
        double top = std::numeric_limits<double>::infinity();
        double bottom = 0;
    };

    void PaintStroke(const Point& from, const Point& to);
    void PaintColumns(const Point& from, const Point& to, int first, int last);
    void PaintColumn(int x, int top, int bottom);
    void FindCommonRows(std::size_t block);

    PixelRaster m_raster;
    std::uint32_t m_colour;
    Rect m_clip;
    ThinLine m_line;
    bool m_isOpen = false;
    Point m_last;
    std::vector<Rows> m_columns; ///< painted rows of each clip column; empty until the first long stroke
    std::vector<Block> m_blocks;
};

} // namespace kavlix
