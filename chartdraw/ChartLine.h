#pragma once

#include "graphctrl/SeriesReduction.h"

namespace kavlix {

/// Turns positions of any size into pixels for a SeriesReduction.
///
/// Positions truncate toward zero. Strokes to places farther away than GDI can reach are cut where they leave
/// its reach, so that they keep their direction; positions beyond 1e300 pixels count as that far away. A
/// position that is not a number is a gap.
class ChartLine {
public:
    /// `reduction` outlives the line; its view lies within 32,000 pixels around 0.
    explicit ChartLine(SeriesReduction& reduction) : m_reduction(reduction) {}
    ChartLine(const ChartLine&) = delete;
    ChartLine& operator=(const ChartLine&) = delete;

    /// The next point, in pixels.
    void Add(double x, double y);
    /// Hands on all that is left; the next point begins another line.
    void End();

    /// Whether GDI can reach so far: what lies there becomes the pixel it truncates to.
    static bool IsNear(double position);

private:
    struct Place {
        double x = 0;
        double y = 0;
    };

    static bool IsNear(const Place& place);
    void AddCut(const Place& to);

    SeriesReduction& m_reduction;
    Place m_last;
    bool m_started = false;
};

} // namespace kavlix
