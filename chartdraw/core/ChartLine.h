#pragma once

#include <cmath>
#include <utility>

#include "chartdraw/core/PixelSet.h"
#include "plot/SeriesReduction.h"

namespace kavlix {

/// Draws lines through the pixels that come one by one.
class PixelPath {
public:
    /// The next point; the first of a line after Break.
    virtual void Add(const Point& pixel) = 0;
    /// The line ends here.
    virtual void Break() = 0;

protected:
    ~PixelPath() = default;
};

/// A path that hands on only the points that can change a pixel.
class ReducedPath : public PixelPath {
public:
    /// As SeriesReduction has them.
    ReducedPath(const Rect& view, SeriesReduction::Sink sink) : m_reduction(view, std::move(sink)) {}

    void Add(const Point& pixel) override { m_reduction.Add(pixel); }
    void Break() override { m_reduction.Break(); }

private:
    SeriesReduction m_reduction;
};

/// Turns positions of any size into pixels for a path.
///
/// Positions truncate toward zero. Strokes to places farther away than GDI can reach are cut where they leave
/// its reach, so that they keep their direction; positions beyond 1e300 pixels count as that far away. A
/// position that is not a number is a gap.
class ChartLine {
public:
    /// `path` and `lonePixels` outlive the line; what the path shows lies within 32,000 pixels around 0. A
    /// line whose points all fall on one pixel has no stroke: its pixel is added to `lonePixels`.
    ChartLine(PixelPath& path, PixelSet& lonePixels) : m_path(path), m_lonePixels(lonePixels) {}
    ChartLine(const ChartLine&) = delete;
    ChartLine& operator=(const ChartLine&) = delete;

    /// The next point, in pixels.
    void Add(double x, double y);
    /// A pixel that the line visits between the last point and the next, which are near.
    void AddBetween(const Point& pixel) {
        m_isLone = m_isLone && pixel == m_first;
        m_path.Add(pixel);
    }
    /// Hands on all that is left; the next point begins another line.
    void End();

    /// Whether GDI can reach so far: what lies there becomes the pixel it truncates to.
    static bool IsNear(double position) { return std::abs(position) <= kNear; }

private:
    struct Place {
        double x = 0;
        double y = 0;
    };

    /// What GDI draws exactly, with room to multiply such coordinates.
    static constexpr double kNear = 1 << 22;

    static bool IsNear(const Place& place) { return IsNear(place.x) && IsNear(place.y); }
    static void Narrow(double start, double step, double& from, double& to);
    static double Along(double start, double step, double part);
    void AddCut(const Place& to);

    PixelPath& m_path;
    PixelSet& m_lonePixels;
    Place m_last;
    Point m_first;         ///< pixel of the line's first point
    bool m_isLone = false; ///< all points so far are on that pixel
    bool m_started = false;
};

} // namespace kavlix
