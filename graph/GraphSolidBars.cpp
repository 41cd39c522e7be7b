// SPDX-License-Identifier: MIT
// The solid bars of the 3D types.
#include <algorithm>
#include <cmath>

#include "graph/GraphPass.h"

namespace kavlix {
namespace {

constexpr double kStackWidth = 0.55; // as a fraction of a slot
constexpr double kMostDepth = 2.5;   // as a multiple of a box's width; a deeper box would hide its neighbours
constexpr double kSlanted = 3;       // pixels; a thinner box is drawn as upright rectangles

void DrawFace(GraphCanvas& canvas, const Face& face, COLORREF colour, double light) {
    canvas.SetFill(Shade(colour, light));
    canvas.Polygon(face);
}

/// Draws a box less than kSlanted pixels wide as upright rectangles without outlines. GDI takes several times
/// as long for slanted faces, and at this width the slant is only a few pixels.
void DrawThinSolid(GraphCanvas& canvas, const PlaneRect& front, Depth depth, COLORREF colour) {
    const double pixel = canvas.Pixel();
    const double right = std::max(front.right, front.left + pixel);
    const double bottom = std::max(front.bottom, front.top + pixel);
    const auto fill = [&](const PlaneRect& face, double light) {
        const COLORREF shade = Shade(colour, light);
        canvas.Box(face, shade, shade);
    };
    fill({front.left, front.top - depth.y, right + depth.x, front.top}, kTopLight);
    fill({right, front.top, right + depth.x, bottom}, kSideLight);
    fill({front.left, front.top, right, bottom}, kFrontLight);
}

Depth DepthOf(const GraphPass& pass, Span along) {
    const double most = std::abs(along.to - along.from) * kMostDepth;
    const double longest = std::max(pass.depth.x, pass.depth.y);
    const double factor = longest > most ? most / longest : 1;
    return {pass.depth.x * factor, pass.depth.y * factor};
}

/// Draws a box from the value `foot` to the value `tip`.
void DrawSolid(GraphPass& pass, Span along, double foot, double tip, COLORREF colour) {
    foot = pass.values.Clamp(foot);
    tip = pass.values.Clamp(tip);
    if (foot == tip)
        return;
    const Span value{pass.values.Position(foot), pass.values.Position(tip)};
    const PlaneRect front = pass.Between(along, value);
    const Depth depth = DepthOf(pass, along);
    if (std::abs(along.to - along.from) < kSlanted * pass.canvas.Pixel()) {
        DrawThinSolid(pass.canvas, front, depth, colour);
        return;
    }
    const SolidFaces faces = MakeSolid(front, depth);
    pass.canvas.SetLine(OutlineOf(colour));
    DrawFace(pass.canvas, faces.top, colour, kTopLight);
    DrawFace(pass.canvas, faces.side, colour, kSideLight);
    DrawFace(pass.canvas, faces.front, colour, kFrontLight);
}

/// Calls `draw(i)` for 0 to `count` - 1, in the order in which a later box may cover the side or top of an
/// earlier one: from left to right, or in a horizontal graph from the bottom up.
template <class Draw> void BackToFront(const GraphPass& pass, int count, Draw draw) {
    for (int i = 0; i < count; ++i)
        draw(pass.horizontal ? count - 1 - i : i);
}

} // namespace

void PaintSolidBars(GraphPass& pass) {
    const double base = pass.values.Base();
    BackToFront(pass, pass.data.SeriesCount(), [&](int s) {
        const auto values = pass.data.Groups(s);
        BackToFront(pass, static_cast<int>(values.size()), [&](int i) {
            const KeyedValue& item = values[static_cast<std::size_t>(i)];
            DrawSolid(pass, pass.slots.Bar(s, item.key, pass.data.groups), base, item.value,
                      pass.data.Colour(item.key));
        });
    });
}

void PaintSolidStackedBars(GraphPass& pass) {
    BackToFront(
        pass, pass.data.SeriesCount(),
        [&](int s) {
            const auto values = pass.data.Groups(s);
            auto parts = StackValues(values);
            // Parts are drawn from the bottom up, or from left to right: each hides the top or side face of
            // the part before. The parts ascend by value, so they are reversed when values grow downwards or
            // to the left.
            if ((pass.values.Position(1) < pass.values.Position(0)) == pass.horizontal)
                std::reverse(parts.begin(), parts.end());
            for (std::size_t i = 0; i < parts.size(); ++i)
                if (i + 1 == parts.size() || !pass.Covers(parts[i + 1], parts[i]))
                    DrawSolid(pass, pass.slots.Single(s, kStackWidth), static_cast<double>(parts[i].low),
                              static_cast<double>(parts[i].high), pass.data.Colour(parts[i].group));
        });
}

} // namespace kavlix
