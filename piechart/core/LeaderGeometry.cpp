// SPDX-License-Identifier: MIT
// The geometry that decides whether leader lines can be told apart.
#include "piechart/core/LeaderGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kavlix {
namespace {

// Leaders of neighbouring tiny sectors begin side by side, so two leaders may lie closer than kTogether for
// a length of up to kMostTogether. Both constants are pixels.
constexpr double kTogether = 2.0;
constexpr int kMostTogether = 10;

/// Whether the strokes a-b and c-d cross. Strokes that only touch do not cross.
bool Cross(Point a, Point b, Point c, Point d) {
    const auto side = [](Point from, Point to, Point point) {
        const double turn = (double{1} * to.x - from.x) * (double{1} * point.y - from.y) -
                            (double{1} * to.y - from.y) * (double{1} * point.x - from.x);
        return turn > 0 ? 1 : turn < 0 ? -1 : 0;
    };
    return side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
}

} // namespace

bool IsCloserThan(Point from, Point to, double x, double y, double distance) {
    const double dx = double{1} * to.x - from.x;
    const double dy = double{1} * to.y - from.y;
    const double length = dx * dx + dy * dy;
    const double part =
        length > 0 ? std::clamp(((x - from.x) * dx + (y - from.y) * dy) / length, 0.0, 1.0) : 0;
    const double besideX = from.x + part * dx - x;
    const double besideY = from.y + part * dy - y;
    return besideX * besideX + besideY * besideY < distance * distance;
}

bool RunTogether(const std::vector<Point>& line, const std::vector<Point>& other) {
    constexpr int kStep = 2; // pixels between the tested points of `line`
    int together = 0;        // pixels of `line` that lie close to `other`
    for (std::size_t i = 1; i < line.size(); ++i) {
        const int dx = line[i].x - line[i - 1].x;
        const int dy = line[i].y - line[i - 1].y;
        const int steps = std::max(std::abs(dx), std::abs(dy)) / kStep;
        for (std::size_t k = 1; k < other.size(); ++k)
            if (Cross(line[i - 1], line[i], other[k - 1], other[k]))
                return true;
        for (int step = 0; step <= steps; ++step) {
            const double part = static_cast<double>(step) / std::max(steps, 1);
            const double x = line[i - 1].x + dx * part;
            const double y = line[i - 1].y + dy * part;
            for (std::size_t k = 1; k < other.size(); ++k) {
                if (!IsCloserThan(other[k - 1], other[k], x, y, kTogether))
                    continue;
                together += kStep;
                break;
            }
            if (together > kMostTogether)
                return true;
        }
    }
    return false;
}

} // namespace kavlix
