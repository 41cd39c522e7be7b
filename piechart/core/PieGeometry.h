// SPDX-License-Identifier: MIT
// Where the pieces of a pie are. Angles are degrees, clockwise from twelve o'clock; positions are pixels.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

constexpr double kFullCircle = 360.0;

/// Conversions between degrees and radians with the value of pi that hosts rely on.
double PieRadians(double degrees);
double PieDegrees(double radians);

/// The part of the circle that a piece takes. Angles count from the beginning of the first piece.
struct PieSector {
    double begin = 0;
    double end = 0;
    /// The piece can have a label: its sector is visible, or its share is exactly 0 and the running sum is
    /// the highest so far, at most 360 degrees.
    bool hasPlace = false;

    bool IsVisible() const { return end > begin; }
    double Span() const { return end - begin; }
    double Middle() const { return begin + Span() / 2; }
};

/// The running sum of the pieces' spans. Painting and the search for a clicked piece use the same sum, so a
/// click on a sector finds the sector's piece as long as the first piece begins at twelve o'clock.
class PieRunningSum {
public:
    /// Adds the next piece in list order and returns its sector.
    PieSector Add(double value, double total);
    /// Whether the sum has reached `angle`. False when either of them is not a number.
    bool Reaches(double angle) const { return m_sum >= angle; }

private:
    double m_sum = 0;
    double m_covered = 0; ///< the highest sum so far, limited to kFullCircle
};

/// The pie's square in a client area. Without room for a pie its width and height are 0 or negative.
Rect PieSquare(const Rect& client);

/// The centre of the pie's square. Angles are measured from it.
Point PieCentre(const Rect& pie);

/// The point at `angle` on the rim, or with `inner` on the smaller circle on which labels stand.
Point PointOnPie(const Rect& pie, double angle, bool inner);

/// The point at `angle` and `distance` pixels from the centre, rounded to the nearest pixel.
Point PointAround(const Rect& pie, double angle, double distance);

/// A closed line inside the sector from `begin` to `end`, about `inset` pixels from the sector's boundary.
/// Empty when the sector is too small for the line.
std::vector<Point> LineInSector(const Rect& pie, double begin, double end, double inset);

/// The direction from the centre to `point`, 0 <= angle < 360; -1 for the centre itself.
double AngleOfPoint(const Rect& pie, Point point);

} // namespace kavlix
