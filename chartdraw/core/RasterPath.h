// Thin lines that are painted straight into pixels, also where their points jump back and forth across the
// view.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "chartdraw/core/ChartLine.h"
#include "plot/PixelRaster.h"
#include "plot/ThinLine.h"

namespace kavlix {

/// Paints lines one pixel wide: the pixels of a stroke from each point to the next, but for the last.
///
/// A line whose points come in random order of x covers the same pixels over and over. So the rows that are
/// painted without a gap are known for each column, and for each block of columns the rows that are in all of
/// them: strokes are painted only where they may leave those rows.
class PaintedPath : public PixelPath {
public:
    PaintedPath(const PixelRaster& raster, std::uint32_t colour);

    void Add(const Point& pixel) override;
    void Break() override;

private:
    /// Rows from `top` to `bottom`, both included; none when the bottom lies above the top.
    struct Rows {
        int top = 0;
        int bottom = -1;
    };
    /// Rows painted in each column of a block; infinite where nothing of the clip lies beyond. None, the top
    /// above all numbers, where a column has changed since they were found.
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
    std::vector<Rows> m_columns; ///< of the clip; made with the first jump
    std::vector<Block> m_blocks;
};

} // namespace kavlix
