// Draws a line on a DC that paints pixels, by calls of GDI.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "graphctrl/WideStroke.h"
#include "graphctrl/core/PixelColumns.h"

namespace kavlix {

/// Has GDI draw a line with the pen that is selected, `penPixels` wide.
class GdiLine {
public:
    /// `plot` in device units, edges included: what can be seen.
    GdiLine(const LineTarget& target, const CRect& plot, int penPixels)
        : m_target(target), m_plot(plot), m_penPixels(penPixels) {}

    void Add(double value, const PixelColumn& column);
    void End();

private:
    void DrawPart();
    void DrawWide(const Rect& view, const Point* points, int count);
    void DrawBands();

    LineTarget m_target;
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
