// SPDX-License-Identifier: MIT
// Angles, sectors and points of a pie.
#include "piechart/core/PieGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kPieControlPi = 3.1415926535; // hosts rely on angles computed with this value
constexpr double kHalfCircle = 180.0;
// 1 / 180. Hosts rely on the rounding of a multiplication; a division by 180 rounds differently.
constexpr double kHalfCircleInverse = 0.005555555555555556;
constexpr double kRightwards = 90.0;
constexpr double kLeftwards = 270.0;
constexpr double kInnerCircle = 0.6000000000000001; // radius of the label circle, in radii of the pie

constexpr int kMargins = 40;     // pixels; both margins together in the client area's shorter direction
constexpr int kShiftToLeft = 15; // pixels from the middle of the client area

/// The mean, truncated toward zero.
int Middle(int a, int b) {
    return static_cast<int>((std::int64_t{a} + b) / 2);
}

} // namespace

double PieRadians(double degrees) {
    return degrees * kPieControlPi * kHalfCircleInverse;
}

double PieDegrees(double radians) {
    return radians * kHalfCircle / kPieControlPi;
}

PieSector PieRunningSum::Add(double value, double total) {
    const double part = value / total;
    m_sum += part * kFullCircle;
    PieSector sector;
    sector.begin = sector.end = m_covered;
    if (m_sum > m_covered)
        sector.end = m_covered = std::min(m_sum, kFullCircle);
    sector.hasPlace = sector.IsVisible() || (part == 0 && m_sum == m_covered);
    return sector;
}

Rect PieSquare(const Rect& client) {
    const int side = std::min(client.Width(), client.Height()) - kMargins;
    const int left = (client.Width() - side) / 2 + client.left - kShiftToLeft;
    const int top = (client.Height() - side) / 2 + client.top;
    return {left, top, left + side, top + side};
}

Point PieCentre(const Rect& pie) {
    return {Middle(pie.left, pie.right), Middle(pie.top, pie.bottom)};
}

Point PointOnPie(const Rect& pie, double angle, bool inner) {
    const double radius = (static_cast<double>(pie.bottom) - pie.top) * 0.5 * (inner ? kInnerCircle : 1.0);
    const double centreX = (static_cast<double>(pie.right) + pie.left) * 0.5;
    const double centreY = (static_cast<double>(pie.bottom) + pie.top) * 0.5;
    const double radians = PieRadians(angle);
    return {ToCoordinate(std::sin(radians) * radius + centreX),
            ToCoordinate(-std::cos(radians) * radius + centreY)};
}

Point PointAround(const Rect& pie, double angle, double distance) {
    const Point centre = PieCentre(pie);
    const double radians = PieRadians(angle);
    return {ToCoordinate(std::round(centre.x + std::sin(radians) * distance)),
            ToCoordinate(std::round(centre.y - std::cos(radians) * distance))};
}

std::vector<Point> LineInSector(const Rect& pie, double begin, double end, double inset) {
    constexpr double kLeastRoom = 4;    // from the line's inner tip to its arc, in multiples of `inset`
    constexpr double kDegreesAStep = 2; // between two points of the arc
    // Greatest distance from the centre to the tip in a sector of over 180 degrees, in multiples of `inset`.
    constexpr double kLongestTip = 2;
    const double radius = (static_cast<double>(pie.bottom) - pie.top) / 2 - inset;
    const double half = (end - begin) / 2;
    const bool whole = end - begin >= kFullCircle;
    double tip = 0;    // distance from the centre to the line's tip
    double beside = 0; // degrees between the boundary and the line, at the arc
    if (!whole) {
        tip = inset / std::sin(PieRadians(half));
        if (half > kRightwards)
            tip = std::min(tip, inset * kLongestTip);
        beside = PieDegrees(std::asin(std::min(inset / std::max(radius, inset), 1.0)));
    }
    if (tip + kLeastRoom * inset > radius)
        return {};
    std::vector<Point> points;
    if (!whole)
        points.push_back(PointAround(pie, begin + half, tip));
    for (double angle = begin + beside; angle < end - beside; angle += kDegreesAStep)
        points.push_back(PointAround(pie, angle, radius));
    points.push_back(PointAround(pie, end - beside, radius));
    points.push_back(points.front());
    return points;
}

double AngleOfPoint(const Rect& pie, Point point) {
    const Point centre = PieCentre(pie);
    const double dx = static_cast<double>(point.x) - centre.x;
    const double dy = static_cast<double>(point.y) - centre.y;
    if (dy == 0)
        return dx > 0 ? kRightwards : dx < 0 ? kLeftwards : -1.0;
    const double angle = PieDegrees(std::asin(dx / std::sqrt(dy * dy + dx * dx)));
    if (dy > 0)
        return kHalfCircle - angle;
    return angle < 0 ? angle + kFullCircle : angle;
}

} // namespace kavlix
