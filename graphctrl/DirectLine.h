// SPDX-License-Identifier: MIT
// Draws a line one pixel wide by writing into the pixels of a picture.
#pragma once

#include <cstdint>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "plot/PixelColumns.h"
#include "plot/PixelRaster.h"
#include "plot/PixelRows.h"
#include "plot/ThinLine.h"

namespace kavlix {

/// Draws one or more lines into `raster`, whose clip must lie inside the pixel table of `target`.
class DirectLine {
public:
    DirectLine(const LineTarget& target, const PixelRaster& raster, std::uint32_t colour)
        : m_target(target), m_rows(target.yMap, target.rows), m_raster(raster), m_colour(colour),
          m_line(raster, colour) {}

    /// Adds a sample of `column`; `value` is not a NaN.
    void Add(double value, const PixelColumn& column) {
        const int row = m_rows.Of(value);
        const bool isNear = m_target.rows.HasPixel(row) && m_target.columns.HasPixel(column.pixel);
        if ((isNear && m_isNear) || !m_isOpen)
            m_line.To(column.pixel, row);
        else
            GoFar(value, column, row);
        m_isOpen = true;
        m_isNear = isNear;
        m_last = {value, column.position, column.pixel, row};
    }
    /// Ends the line and paints what is pending. The next sample begins another line.
    void End();

private:
    struct Place {
        double value;
        int position; ///< X position, logical units
        int pixel;    ///< number of the pixel column
        int row;
    };

    void GoFar(double value, const PixelColumn& column, int row);
    void PaintFar();

    LineTarget m_target;
    PixelRows m_rows;
    PixelRaster m_raster;
    std::uint32_t m_colour;
    ThinLine m_line;
    bool m_isOpen = false;
    bool m_isNear = false;    ///< whether the last sample lies inside the pixel table
    Place m_last = {};        ///< the last sample
    std::vector<POINT> m_far; ///< pending strokes that leave the pixel table: two ends each, logical units
};

} // namespace kavlix
