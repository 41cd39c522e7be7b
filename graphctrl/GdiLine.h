// SPDX-License-Identifier: MIT
// Draws a line on a screen or memory DC, by calls of GDI.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "graphctrl/LineTarget.h"
#include "graphctrl/WideStroke.h"
#include "plot/PixelColumns.h"

namespace kavlix {

/// Draws one or more lines with the selected pen, which is `penPixels` wide. Leaves out most samples that
/// paint no new pixel.
class GdiLine {
public:
    /// `plot`: the area in which the line is visible, in device pixels, edges included.
    GdiLine(const LineTarget& target, const CRect& plot, int penPixels)
        : m_target(target), m_plot(plot), m_penPixels(penPixels) {}

    /// Adds a sample of `column`; `value` is not a NaN.
    void Add(double value, const PixelColumn& column);
    /// Ends the line and draws what is pending. The next sample begins another line.
    void End();

private:
    void DrawPart();
    void DrawWide(const Rect& view, const Point* points, int count);
    void DrawBands();

    LineTarget m_target;
    CRect m_plot;
    int m_penPixels;
    // Pending bands (WideStroke::Band), which overlap or touch.
    bool m_hasBand = false;         ///< whether a band is pending
    WideStroke m_firstBand = {};    ///< the leftmost pending band
    int m_lastBand = 0;             ///< X of the rightmost pending band, logical units
    std::vector<Point> m_points;    ///< pending points, logical units
    std::vector<Point> m_pixels;    ///< the pixel of each point
    std::vector<std::size_t> m_far; ///< indices of the points whose pixels are still unknown
};

} // namespace kavlix
