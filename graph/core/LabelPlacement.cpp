// SPDX-License-Identifier: MIT
// Geometry of turned labels.
#include "graph/core/LabelPlacement.h"

#include <algorithm>
#include <cmath>

#include "graph/core/Degrees.h"

namespace kavlix {
namespace {

/// Sine and cosine of an angle in degrees. At multiples of 90 degrees a sine or cosine of 0 is exactly 0.
struct Turn {
    explicit Turn(int angle) {
        const int turned = NormalAngle(angle);
        sin = turned % kHalfTurn == 0 ? 0 : std::sin(Radians(turned));
        cos = turned % kHalfTurn == kQuarterTurn ? 0 : std::cos(Radians(turned));
    }
    double sin;
    double cos;
};

/// The offset of a point in a turned text from the text's upper left corner. Measured in the unturned text,
/// the point is `along` to the right of this corner and `below` under it.
PlanePoint Inside(const Turn& turn, double along, double below) {
    return {along * turn.cos + below * turn.sin, -along * turn.sin + below * turn.cos};
}

PlaneRect BoxAt(const Turn& turn, LabelSize size, PlanePoint origin) {
    PlaneRect box{origin.x, origin.y, origin.x, origin.y};
    for (const PlanePoint& corner :
         {Inside(turn, size.width, 0), Inside(turn, 0, size.height), Inside(turn, size.width, size.height)}) {
        box.left = std::min(box.left, origin.x + corner.x);
        box.right = std::max(box.right, origin.x + corner.x);
        box.top = std::min(box.top, origin.y + corner.y);
        box.bottom = std::max(box.bottom, origin.y + corner.y);
    }
    return box;
}

/// Ticks are `distance` apart. The smallest n such that labels at every n-th tick are `needed` apart or more.
std::int64_t Every(double needed, double distance) {
    constexpr double kMost = 1e12; // more ticks than any axis has
    if (!(distance > 0))
        return static_cast<std::int64_t>(kMost);
    return std::max<std::int64_t>(1,
                                  static_cast<std::int64_t>(std::min(std::ceil(needed / distance), kMost)));
}

} // namespace

PlaneRect BoxOf(LabelSize size, int angle, PlanePoint origin) {
    return BoxAt(Turn(angle), size, origin);
}

int NormalAngle(int angle) {
    return (angle % kFullTurn + kFullTurn) % kFullTurn;
}

LabelPlace PlaceBelow(LabelSize size, int angle, double x, double top) {
    const Turn turn(angle);
    const PlaneRect atZero = BoxAt(turn, size, {});
    const double nearEnd = turn.sin == 0 ? size.width / 2 : turn.sin > 0 ? size.width : 0;
    const PlanePoint held = Inside(turn, nearEnd, size.height / 2);
    LabelPlace place;
    place.origin = {x - held.x, top - atZero.top};
    place.box = BoxAt(turn, size, place.origin);
    return place;
}

LabelPlace PlaceLeft(LabelSize size, int angle, double right, double y) {
    const Turn turn(angle);
    const PlaneRect atZero = BoxAt(turn, size, {});
    LabelPlace place;
    place.origin = {right - atZero.right, y - (atZero.top + atZero.bottom) / 2};
    place.box = BoxAt(turn, size, place.origin);
    return place;
}

double LongestText(double height, int angle, double across, double down) {
    const Turn turn(angle);
    const double sin = std::abs(turn.sin);
    const double cos = std::abs(turn.cos);
    constexpr double kUnlimited = 1e9; // longer than any text
    const double byWidth = cos > 0 ? (across - height * sin) / cos : across >= height ? kUnlimited : 0;
    const double byHeight = sin > 0 ? (down - height * cos) / sin : down >= height ? kUnlimited : 0;
    return std::max(0.0, std::min(byWidth, byHeight));
}

LabelSpread SpreadBelow(LabelSize size, int angle, double distance, double gap, int rows) {
    const Turn turn(angle);
    if (turn.sin == 0) {
        for (int row = 1; row <= rows; ++row)
            if (distance * row >= size.width + gap)
                return {1, row};
        return {Every(size.width + gap, distance), 1};
    }
    // Two turned texts do not overlap if, seen in the direction of the texts, one lies below the other or
    // ends before the other begins. `passing` and `following` are distances between ticks that ensure this.
    const double passing = (size.height + gap) / std::abs(turn.sin);
    const double following =
        turn.cos == 0 ? passing : (size.width + size.height * std::abs(turn.sin) + gap) / std::abs(turn.cos);
    return {Every(std::min(passing, following), distance), 1};
}

LabelSpread SpreadLeft(LabelSize size, int angle, double distance, double gap) {
    const PlaneRect box = BoxAt(Turn(angle), size, {});
    return {Every(box.Height() + gap, distance), 1};
}

bool SpreadMiddles(std::vector<double>& middles, double height, double top, double bottom) {
    const auto count = static_cast<double>(middles.size());
    if (count * height > bottom - top)
        return false;
    double lowest = top + height / 2;
    for (double& middle : middles) {
        middle = std::max(middle, lowest);
        lowest = middle + height;
    }
    double highest = bottom - height / 2;
    for (auto middle = middles.rbegin(); middle != middles.rend(); ++middle) {
        *middle = std::min(*middle, highest);
        highest = *middle - height;
    }
    return true;
}

} // namespace kavlix
