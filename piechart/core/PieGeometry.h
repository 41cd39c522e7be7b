#pragma once

#include <vector>

#include "plot/Shapes.h"

/// Where the pieces of a pie are. Angles are degrees, 0 at twelve o'clock, growing clockwise; y grows
/// downwards. Positions are pixels.
namespace kavlix {

constexpr double kFullCircle = 360.0;

/// The two conversions of the pie's angles.
double PieRadians(double degrees);
double PieDegrees(double radians);

/// The part of the circle that a piece takes, counted from the first piece's beginning.
struct PieSector {
    double begin = 0;
    double end = 0;
    bool hasPlace = false; ///< has a sector, or is a piece of exactly 0 within the circle

    bool IsVisible() const { return end > begin; }
    double Span() const { return end - begin; }
    double Middle() const { return begin + Span() / 2; }
};

/// Goes through pieces in list order with the running sum on which both painting and search rest, so that a
/// point in a piece's sector is found to be that piece's.
class PieWalk {
public:
    /// Adds the next piece.
    PieSector Add(double value, double total);
    /// Whether the sum has reached `angle`; never when either is no number.
    bool Reaches(double angle) const { return m_sum >= angle; }

private:
    double m_sum = 0;
    double m_covered = 0; ///< the highest sum so far, at most the circle
};

/// The pie's square in a client area; its right lies left of its left when there is no room for a pie.
Rect PieSquare(const Rect& client);

/// The centre from which angles are measured.
Point PieCentre(const Rect& pie);

/// The point at `angle` on the rim, or on the label circle inside.
Point PointOnPie(const Rect& pie, double angle, bool inner);

/// A point at any distance from the centre, rounded to the nearest pixel.
Point PointAround(const Rect& pie, double angle, double distance);

/// A line within the sector from `begin` to `end`, `inset` pixels from its boundary, closed. Empty where the
/// sector is too narrow to hold it and more.
std::vector<Point> LineInSector(const Rect& pie, double begin, double end, double inset);

/// The angle at which a point is seen from the centre; -1 for the centre.
double AngleOfPoint(const Rect& pie, Point point);

} // namespace kavlix
