// SPDX-License-Identifier: MIT
// The boxes and ribbons of 3D graphs: depth, faces and light.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "graph/core/PlanePoint.h"

namespace kavlix {

/// The offset in the picture from the front of a solid to its back: `x` to the right and `y` up. The viewer
/// sees the front, the top and the right side.
struct Depth {
    double x = 0;
    double y = 0;
};

/// The depth of a plot of `width` x `height`. `ratio` is the depth to the right as a fraction of `width`. The
/// depth is limited to half of the width and half of the height. A negative ratio, or NaN, gives no depth.
Depth DepthOfPlot(double ratio, double width, double height);

/// `depth`, shortened in its direction so that `x` is at most half of `width` and `y` at most half of
/// `height`. A negative `x` or `y` counts as 0.
Depth LimitDepth(Depth depth, double width, double height);

using Face = std::array<PlanePoint, 4>;

/// The visible faces of a box.
struct SolidFaces {
    Face front;
    Face top;
    Face side;
};

/// The faces of a box with this front.
SolidFaces MakeSolid(const PlaneRect& front, Depth depth);

// Light on a face, for Shade.
constexpr double kFrontLight = 1.0;
constexpr double kTopLight = 1.25;
constexpr double kSideLight = 0.7;

/// `colour` (0x00BBGGRR) in a light. A light below 1 is a factor that darkens the colour. A light above 1
/// moves the colour towards white: 1.25 by a quarter of the way.
std::uint32_t Shade(std::uint32_t colour, double light);

/// The colour of the outline of a shape that is filled with `colour`.
inline std::uint32_t OutlineOf(std::uint32_t colour) {
    constexpr double kOutlineLight = 0.55;
    return Shade(colour, kOutlineLight);
}

/// The ribbon between the line from `a` to `b` and the same line moved by `depth`. A ribbon that would be
/// narrower in the picture than `thinnest` logical units is widened to `thinnest`.
Face MakeRibbon(PlanePoint a, PlanePoint b, Depth depth, double thinnest = 0);

/// The light on a ribbon: a rising ribbon is lighter, a falling one darker than a level one.
double RibbonLight(PlanePoint a, PlanePoint b);

} // namespace kavlix
