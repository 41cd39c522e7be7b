#include "graph/core/PieShapes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kFullCircle = 360;
constexpr double kThreeOClock = 90;
constexpr double kNineOClock = 270;

/// Points of the arc from `start` on, close enough together to look round at any resolution.
std::vector<PlanePoint> ArcPoints(const PieOutline& pie, double start, double sweep) {
    constexpr double kMostOff = 0.1; // units between the arc and the line from one point to the next
    constexpr double kLongestStep = 15;
    const double step = 2 * std::acos(1 - kMostOff / std::max(pie.radiusX, 1.0)) * 180 / kPi;
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
        const double whole = static_cast<double>(total);
        sectors.push_back({item.key, kFullCircle * static_cast<double>(before) / whole,
                           kFullCircle * item.value / whole, 100.0 * item.value / whole});
        before += item.value;
    }
    return sectors;
}

bool Sector::Holds(double angle) const {
    const double turned = std::fmod(angle - start, kFullCircle);
    return (turned < 0 ? turned + kFullCircle : turned) <= sweep;
}

PlanePoint PieOutline::At(double angle, double reach) const {
    const double radians = angle * kPi / 180;
    return {centre.x + reach * radiusX * std::sin(radians), centre.y - reach * radiusY * std::cos(radians)};
}

double PieOutline::ArcLength(const Sector& sector) const {
    return sector.sweep * kPi / 180 * radiusX;
}

bool PieOutline::Holds(const Sector& sector, const PlaneRect& box) const {
    constexpr double kClear = 0.97; // of the radius
    for (const PlanePoint& corner : {PlanePoint{box.left, box.top}, PlanePoint{box.right, box.top},
                                     PlanePoint{box.left, box.bottom}, PlanePoint{box.right, box.bottom}}) {
        const double x = (corner.x - centre.x) / radiusX;
        const double y = (centre.y - corner.y) / radiusY;
        if (std::hypot(x, y) > kClear || !sector.Holds(std::atan2(x, y) * 180 / kPi))
            return false;
    }
    return true;
}

std::vector<PlanePoint> SectorCorners(const PieOutline& pie, double start, double sweep) {
    std::vector<PlanePoint> corners = ArcPoints(pie, start, sweep);
    if (sweep < kFullCircle)
        corners.push_back(pie.centre);
    return corners;
}

std::vector<RimArc> VisibleRim(double start, double sweep) {
    std::vector<RimArc> arcs;
    // A sector may run past twelve o'clock and show its rim again on the second round.
    for (const double round : {0.0, kFullCircle}) {
        const double from = std::max(start, kThreeOClock + round);
        const double to = std::min(start + sweep, kNineOClock + round);
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
