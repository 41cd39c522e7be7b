// SPDX-License-Identifier: MIT
// A line of many points, one pixel wide, painted into a PixelRaster.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "plot/PixelRaster.h"

namespace kavlix {

/// Paints a line one pixel wide through points that come one by one. The pixels are those of single strokes
/// from point to point: the pixel of the last point is not painted. The rows that successive strokes cover in
/// one pixel column are collected and painted together, so where these strokes overlap, a pixel is painted
/// only once.
class ThinLine {
public:
    ThinLine(const PixelRaster& raster, std::uint32_t colour) : m_raster(raster), m_colour(colour) {}

    /// The next point. After End, the first point of a new line.
    void To(int x, int y) {
        if (!m_isOpen)
            Begin(x, y);
        else if (x == m_x)
            Within(y);
        else if (x == m_x + 1 || x == m_x - 1)
            ToNextColumn(x, y);
        else {
            m_raster.Stroke({m_x, m_y}, {x, y}, m_colour);
            Jump(x, y);
        }
    }
    /// The next point, in the same column as the previous one.
    void Within(int y) {
        if (y > m_y)
            Cover(m_y, y - 1);
        else if (y < m_y)
            Cover(y + 1, m_y);
        m_y = y;
    }
    /// The next point, without a stroke to it: the caller paints this stroke.
    void Jump(int x, int y) {
        Paint();
        Begin(x, y);
    }
    /// Ends the line at the last point.
    void End() {
        if (m_isOpen)
            Paint();
        m_isOpen = false;
    }

private:
    void Begin(int x, int y) {
        m_isOpen = true;
        m_x = x;
        m_y = y;
        m_top = std::numeric_limits<int>::max();
        m_bottom = std::numeric_limits<int>::min();
    }
    void Cover(int top, int bottom) {
        m_top = std::min(m_top, top);
        m_bottom = std::max(m_bottom, bottom);
    }
    void Paint() const { m_raster.Run(m_x, m_top, m_bottom, m_colour); }
    /// Draws a stroke to a neighbouring column: one half lies in the old column, the other half in the new
    /// one. A pixel exactly halfway is painted in the left column, as PixelLine takes the smaller coordinate.
    void ToNextColumn(int x, int y) {
        const int from = m_y;
        const int length = std::max(std::abs(y - from), 1);
        const int change = std::min((length + (x > m_x ? 2 : 1)) / 2, length);
        // The direction changes at random, so a branch would be mispredicted: select with a bit mask instead.
        const int up = -static_cast<int>(y < from);
        const auto pick = [up](int down, int upwards) { return down ^ ((down ^ upwards) & up); };
        Cover(pick(from, from - change + 1), pick(from + change - 1, from));
        Paint();
        m_x = x;
        m_y = y;
        m_top = pick(from + change, y + 1);
        m_bottom = pick(y - 1, from - change);
    }

    PixelRaster m_raster;
    std::uint32_t m_colour;
    bool m_isOpen = false;
    // The last point, and the rows of its column that are not painted yet; no rows when m_bottom is less than
    // m_top.
    int m_x = 0;
    int m_y = 0;
    int m_top = 0;
    int m_bottom = 0;
};

} // namespace kavlix
