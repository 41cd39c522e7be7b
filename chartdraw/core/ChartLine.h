// SPDX-License-Identifier: MIT
// Conversion of a line's exact positions, of any size, to pixels.
#pragma once

#include <cmath>

#include "chartdraw/core/PixelPath.h"
#include "chartdraw/core/PixelSet.h"

namespace kavlix {

/// Converts the positions of a line to pixels and passes these to a path.
///
/// Positions truncate toward zero. A stroke to a position that is too far away for GDI's coordinates is cut
/// where it leaves their range, and so keeps its direction. Positions beyond 1e300 pixels count as 1e300. A
/// position that is not a number makes a gap in the line.
class ChartLine {
public:
    /// How a line leads from point to point.
    enum Mode {
        Straight,      ///< by straight strokes
        Steps,         ///< horizontally to the x of the next point, then vertically
        Outline,       ///< as Straight, but y are limited to the range of GDI, so that each column has pixels
        SteppedOutline ///< as Steps, with limited y
    };
    /// `path` and `lonePixels` must outlive the line. The visible part of the path must lie within
    /// 32,000 pixels of (0, 0). A line whose points all fall on one pixel has no stroke; its pixel is
    /// added to `lonePixels`.
    ChartLine(PixelPath& path, PixelSet& lonePixels, Mode mode = Straight)
        : m_path(path), m_lonePixels(lonePixels), m_mode(mode) {}
    ChartLine(const ChartLine&) = delete;
    ChartLine& operator=(const ChartLine&) = delete;

    /// Adds the next point; `x` and `y` are in pixels.
    void Add(double x, double y);
    /// Adds a pixel that the line visits between the last point and the next point. Both points must be near,
    /// see IsNear.
    void AddBetween(const Point& pixel) {
        m_isLone = m_isLone && pixel == m_first;
        m_path.Add(pixel);
    }
    /// As Add, for a point that is near and has this pixel. False, with nothing added, when the last point is not
    /// near: use Add. Before the next call of Add, tell the point's position by SetLast.
    bool AddNear(const Point& pixel) {
        if (m_started && !m_isLastNear)
            return false;
        if (!m_started)
            m_first = pixel;
        else if (IsStepped())
            m_path.Add({pixel.x, m_lastPixel.y});
        m_isLone = (m_isLone || !m_started) && pixel == m_first;
        m_path.Add(pixel);
        m_started = m_isLastNear = true;
        m_lastPixel = pixel;
        return true;
    }
    /// Sets the exact position of the last point, which AddNear has added.
    void SetLast(double x, double y) { m_last = {x, y}; }
    /// Ends the line; the next point begins another line.
    void End();

    /// Whether a coordinate, in pixels, is in the range that GDI can draw. A near coordinate becomes the
    /// pixel to which it truncates.
    static bool IsNear(double position) { return std::abs(position) <= kNear; }

    /// The largest coordinate, in pixels, that is passed on. GDI draws strokes between points in this range
    /// exactly.
    static constexpr int kNearest = 1 << 22;

private:
    struct Place {
        double x = 0;
        double y = 0;
    };

    static constexpr double kNear = kNearest;

    bool IsStepped() const { return m_mode == Steps || m_mode == SteppedOutline; }
    void AddPlace(const Place& place);
    static bool IsNear(const Place& place) { return IsNear(place.x) && IsNear(place.y); }
    static void Narrow(double start, double step, double& from, double& to);
    static double Along(double start, double step, double part);
    void AddCut(const Place& to);

    PixelPath& m_path;
    PixelSet& m_lonePixels;
    Mode m_mode;
    Place m_last;
    Point m_lastPixel;         ///< pixel of the last point, if that is near
    Point m_first;             ///< pixel of the line's first point
    bool m_isLone = false;     ///< the line has points, and all of them fall on m_first
    bool m_started = false;    ///< the line has a point
    bool m_isLastNear = false; ///< the last point is near
};

} // namespace kavlix
