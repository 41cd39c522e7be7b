// Draws a line one pixel wide by writing into the pixels of a picture.
#pragma once

#include <cstdint>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "graphctrl/core/PixelColumns.h"
#include "graphctrl/core/PixelRows.h"
#include "plot/PixelRaster.h"
#include "plot/ThinLine.h"

namespace kavlix {

/// Paints a line one pixel wide straight into a picture, whose clip must lie inside the ground's pixels.
class DirectLine {
public:
    DirectLine(const LineTarget& target, const PixelRaster& raster, std::uint32_t colour)
        : m_target(target), m_rows(target.yMap, target.rows), m_raster(raster), m_colour(colour),
          m_line(raster, colour) {}

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

    LineTarget m_target;
    PixelRows m_rows;
    PixelRaster m_raster;
    std::uint32_t m_colour;
    ThinLine m_line;
    bool m_isOpen = false;
    bool m_isNear = false; ///< whether the pixel of the last point is known
    Place m_last = {};
    std::vector<POINT> m_far; ///< ends of strokes whose pixels GDI tells later, all at once; logical units
};

} // namespace kavlix
