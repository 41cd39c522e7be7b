// SPDX-License-Identifier: MIT
// Geometry of sectors and rims.
#include "graph/core/PieShapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "graph/core/Degrees.h"

namespace kavlix {
namespace {

/// Points of an arc, so close together that their polygon looks round.
std::vector<PlanePoint> ArcPoints(const PieOutline& pie, double start, double sweep) {
    constexpr double kMostOff = 0.1;    // logical units; greatest distance from the arc to the polygon
    constexpr double kLongestStep = 15; // degrees between two points
    const double step = DegreesOf(2 * std::acos(1 - kMostOff / std::max(pie.radiusX, 1.0)));
    const int steps = std::max(1, static_cast<int>(std::ceil(sweep / std::min(step, kLongestStep))));
    std::vector<PlanePoint> points;
    for (int i = 0; i <= steps; ++i)
        points.push_back(pie.At(start + sweep * i / steps));
    return points;
}

} // namespace

std::vector<Sector> MakeSectors(const std::vector<KeyedValue>& values) {
    std::int64_t total = 0;
    for (const KeyedValue& item : values)
        total += std::max(item.value, 0);
    std::vector<Sector> sectors;
    std::int64_t before = 0;
    for (const KeyedValue& item : values) {
        if (item.value <= 0)
            continue;
        const auto whole = static_cast<double>(total);
        sectors.push_back({item.key, kFullTurn * static_cast<double>(before) / whole,
                           double{kFullTurn} * item.value / whole, 100.0 * item.value / whole});
        before += item.value;
    }
    return sectors;
}

bool Sector::Holds(double angle) const {
    const double turned = std::fmod(angle - start, kFullTurn);
    return (turned < 0 ? turned + kFullTurn : turned) <= sweep;
}

PlanePoint PieOutline::At(double angle, double reach) const {
    const double radians = Radians(angle);
    return {centre.x + reach * radiusX * std::sin(radians), centre.y - reach * radiusY * std::cos(radians)};
}

double PieOutline::ArcLength(const Sector& sector) const {
    return Radians(sector.sweep) * radiusX;
}

bool PieOutline::Holds(const Sector& sector, const PlaneRect& box) const {
    constexpr double kClear = 0.97; // greatest distance of a corner from the centre, in radii
    for (const PlanePoint& corner : {PlanePoint{box.left, box.top}, PlanePoint{box.right, box.top},
                                     PlanePoint{box.left, box.bottom}, PlanePoint{box.right, box.bottom}}) {
        const double x = (corner.x - centre.x) / radiusX;
        const double y = (centre.y - corner.y) / radiusY;
        if (std::hypot(x, y) > kClear || !sector.Holds(DegreesOf(std::atan2(x, y))))
            return false;
    }
    return true;
}

std::vector<PlanePoint> SectorCorners(const PieOutline& pie, double start, double sweep) {
    std::vector<PlanePoint> corners = ArcPoints(pie, start, sweep);
    if (sweep < kFullTurn)
        corners.push_back(pie.centre);
    return corners;
}

std::vector<RimArc> VisibleRim(double start, double sweep) {
    std::vector<RimArc> arcs;
    // `start` + `sweep` may exceed 360 degrees, so the part of the next turn between three and nine o'clock
    // is tested too.
    for (const int turn : {0, kFullTurn}) {
        const double from = std::max(start, 1.0 * kQuarterTurn + turn);
        const double to = std::min(start + sweep, 1.0 * kHalfTurn + kQuarterTurn + turn);
        if (to > from)
            arcs.push_back({from, to - from});
    }
    return arcs;
}

std::vector<PlanePoint> RimCorners(const PieOutline& pie, const RimArc& arc, double height) {
    std::vector<PlanePoint> corners = ArcPoints(pie, arc.start, arc.sweep);
    for (std::size_t i = corners.size(); i-- > 0;)
        corners.push_back({corners[i].x, corners[i].y + height});
    return corners;
}

PieGrid ArrangePies(int count, double width, double height, double smallest,
                    const std::function<double(double, double)>& radius) {
    const auto fitting = [&](double extent) {
        return std::max(1, static_cast<int>(std::min(extent / smallest, static_cast<double>(count))));
    };
    const int mostColumns = fitting(width);
    const int mostRows = fitting(height);
    PieGrid best{mostColumns, mostRows};
    double largest = -std::numeric_limits<double>::infinity();
    for (int columns = 1; columns <= mostColumns; ++columns) {
        const int rows = (count + columns - 1) / columns;
        const double size = radius(width / columns, height / std::max(rows, 1));
        if (rows <= mostRows && size > largest) {
            largest = size;
            best = {columns, std::max(rows, 1)};
        }
    }
    return best;
}

} // namespace kavlix
