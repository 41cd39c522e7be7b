#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "graph/core/PlanePoint.h"

namespace kavlix {

/// Where depth leads on paper: to the right by `x` and up by `y`. The viewer thus sees front, top
/// and right side.
struct Depth {
    double x = 0;
    double y = 0;
};

/// The depth of a plot of `width` x `height`, `ratio` of its width deep. At most half of the plot's width and
/// of its height is given to it; a negative ratio, or one that is no number, makes none.
Depth DepthOfPlot(double ratio, double width, double height);

/// `depth` cut down, direction kept, to what DepthOfPlot would give at most; negative parts count as 0.
Depth LimitDepth(Depth depth, double width, double height);

using Face = std::array<PlanePoint, 4>;

/// The three faces of a box that can be seen.
struct SolidFaces {
    Face front;
    Face top;
    Face side;
};

SolidFaces MakeSolid(const PlaneRect& front, Depth depth);

/// How much light a face gets, as a factor of its colour.
constexpr double kFrontLight = 1.0;
constexpr double kTopLight = 1.25;
constexpr double kSideLight = 0.7;

/// `colour` (0x00BBGGRR) under light: darker below 1; above 1 it moves towards white by the excess.
std::uint32_t Shade(std::uint32_t colour, double light);

/// The outline of a shape of `colour`.
inline std::uint32_t OutlineOf(std::uint32_t colour) {
    constexpr double kOutlineLight = 0.55;
    return Shade(colour, kOutlineLight);
}

/// The strip between two points of a line, drawn out into the depth. Where the line runs nearly along the
/// depth, the strip is thickened to be `thinnest` wide.
Face MakeRibbon(PlanePoint a, PlanePoint b, Depth depth, double thinnest = 0);

/// The light on a ribbon: the steeper it falls away from the light at the upper left, the less.
double RibbonLight(PlanePoint a, PlanePoint b);

} // namespace kavlix
