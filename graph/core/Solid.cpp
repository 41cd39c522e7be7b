// SPDX-License-Identifier: MIT
// Geometry and shading of boxes and ribbons.
#include "graph/core/Solid.h"

#include <algorithm>
#include <cmath>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kMostOfPlot = 0.5; // greatest depth, as a fraction of the plot's width or height
constexpr double kDepthSlope = 0.6; // units up for each unit to the right

} // namespace

Depth LimitDepth(Depth depth, double width, double height) {
    const double x = std::max(depth.x, 0.0);
    const double y = std::max(depth.y, 0.0);
    const double mostX = std::max(width, 0.0) * kMostOfPlot;
    const double mostY = std::max(height, 0.0) * kMostOfPlot;
    const double factor = std::min({1.0, x > mostX ? mostX / x : 1.0, y > mostY ? mostY / y : 1.0});
    return {x * factor, y * factor};
}

Depth DepthOfPlot(double ratio, double width, double height) {
    if (!(ratio > 0) || !(width > 0))
        return {};
    const double x = std::min(ratio, 1.0) * width;
    return LimitDepth({x, x * kDepthSlope}, width, height);
}

SolidFaces MakeSolid(const PlaneRect& f, Depth depth) {
    const double dx = depth.x;
    const double dy = -depth.y;
    SolidFaces faces;
    faces.front = {{{f.left, f.top}, {f.right, f.top}, {f.right, f.bottom}, {f.left, f.bottom}}};
    faces.top = {{{f.left, f.top}, {f.left + dx, f.top + dy}, {f.right + dx, f.top + dy}, {f.right, f.top}}};
    faces.side = {
        {{f.right, f.top}, {f.right + dx, f.top + dy}, {f.right + dx, f.bottom + dy}, {f.right, f.bottom}}};
    return faces;
}

std::uint32_t Shade(std::uint32_t colour, double light) {
    std::uint32_t shaded = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const double part = (colour >> shift) & 0xFF;
        const double lit = light <= 1 ? part * light : part + (255 - part) * (light - 1);
        shaded |= static_cast<std::uint32_t>(TruncateToInt(lit + 0.5, 0, 255)) << shift;
    }
    return shaded;
}

Face MakeRibbon(PlanePoint a, PlanePoint b, Depth depth, double thinnest) {
    const PlanePoint along{b.x - a.x, b.y - a.y};
    const double length = std::hypot(along.x, along.y);
    Face face = {{a, b, {b.x + depth.x, b.y - depth.y}, {a.x + depth.x, a.y - depth.y}}};
    if (!(length > 0))
        return face;
    // The width of the ribbon, at right angles to the line from `a` to `b`. Positive when the ribbon lies to
    // the right of the line, seen from `a` towards `b`.
    const double width = (-depth.y * along.x - depth.x * along.y) / length;
    const double missing = thinnest - std::abs(width);
    if (missing > 0) {
        const double side = (width < 0 ? missing : -missing) / 2 / length;
        const PlanePoint shift{-along.y * side, along.x * side};
        for (std::size_t i = 0; i < face.size(); ++i) {
            const double sign = i < 2 ? 1 : -1;
            face[i].x += sign * shift.x;
            face[i].y += sign * shift.y;
        }
    }
    return face;
}

double RibbonLight(PlanePoint a, PlanePoint b) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (!(length > 0))
        return kFrontLight;
    const double rise = (a.y - b.y) / length; // 1 straight up, -1 straight down
    return rise >= 0 ? kFrontLight + rise * (kTopLight - kFrontLight)
                     : kFrontLight + rise * (kFrontLight - kSideLight);
}

} // namespace kavlix
