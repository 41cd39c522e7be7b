#include <kavlix/Graph.h>

#include <algorithm>
#include <cmath>

#include "graph/GraphPass.h"

using kavlix::GraphPass;
using kavlix::Span;

namespace {

constexpr double kStackWidth = 0.55; // of a slot
constexpr double kMostDepth = 2.5;   // of a box, of its width: a deeper one would hide its neighbours
constexpr double kSlanted = 3;       // pixels; the faces of a thinner box are not slanted

void DrawFace(kavlix::GraphCanvas& canvas, const kavlix::Face& face, COLORREF colour, double light) {
    canvas.SetFill(kavlix::Shade(colour, light));
    canvas.Polygon(face);
}

/// A solid of a few pixels: upright rectangles without outlines, since its slants are a pixel or two long and
/// GDI takes several times as long for them.
void DrawThinSolid(kavlix::GraphCanvas& canvas, const kavlix::PlaneRect& front, kavlix::Depth depth,
                   COLORREF colour) {
    const double pixel = canvas.Pixel();
    const double right = std::max(front.right, front.left + pixel);
    const double bottom = std::max(front.bottom, front.top + pixel);
    const auto fill = [&](const kavlix::PlaneRect& face, double light) {
        const COLORREF shade = kavlix::Shade(colour, light);
        canvas.Box(face, shade, shade);
    };
    fill({front.left, front.top - depth.y, right + depth.x, front.top}, kavlix::kTopLight);
    fill({right, front.top, right + depth.x, bottom}, kavlix::kSideLight);
    fill({front.left, front.top, right, bottom}, kavlix::kFrontLight);
}

kavlix::Depth DepthOf(const GraphPass& pass, Span along) {
    const double most = std::abs(along.to - along.from) * kMostDepth;
    const double longest = std::max(pass.depth.x, pass.depth.y);
    const double factor = longest > most ? most / longest : 1;
    return {pass.depth.x * factor, pass.depth.y * factor};
}

/// The box between two values.
void DrawSolid(GraphPass& pass, Span along, double foot, double tip, COLORREF colour) {
    foot = pass.values.Clamp(foot);
    tip = pass.values.Clamp(tip);
    if (foot == tip)
        return;
    const Span value{pass.values.Position(foot), pass.values.Position(tip)};
    const kavlix::PlaneRect front = pass.Between(along, value);
    const kavlix::Depth depth = DepthOf(pass, along);
    if (std::abs(along.to - along.from) < kSlanted * pass.canvas.Pixel()) {
        DrawThinSolid(pass.canvas, front, depth, colour);
        return;
    }
    const kavlix::SolidFaces faces = kavlix::MakeSolid(front, depth);
    pass.canvas.SetLine(kavlix::OutlineOf(colour));
    DrawFace(pass.canvas, faces.top, colour, kavlix::kTopLight);
    DrawFace(pass.canvas, faces.side, colour, kavlix::kSideLight);
    DrawFace(pass.canvas, faces.front, colour, kavlix::kFrontLight);
}

/// Calls `draw(i)` for 0 to `count` - 1 in the order in which what is nearer to the viewer comes later: from
/// left to right, or from the bottom up.
template <class Draw> void BackToFront(const GraphPass& pass, int count, Draw draw) {
    for (int i = 0; i < count; ++i)
        draw(pass.horizontal ? count - 1 - i : i);
}

} // namespace

void CGraph::Draw3DBarSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    const double base = p.values.Base();
    BackToFront(p, p.data.SeriesCount(), [&](int s) {
        const auto values =
            kavlix::GroupValues(p.data.series[static_cast<std::size_t>(s)].values, p.data.groups);
        BackToFront(p, static_cast<int>(values.size()), [&](int i) {
            const kavlix::KeyedValue& item = values[static_cast<std::size_t>(i)];
            DrawSolid(p, p.slots.Bar(s, item.key, p.data.groups), base, item.value, p.data.Colour(item.key));
        });
    });
}

void CGraph::Draw3DStackedBarSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    BackToFront(p, p.data.SeriesCount(), [&](int s) {
        const auto values =
            kavlix::GroupValues(p.data.series[static_cast<std::size_t>(s)].values, p.data.groups);
        auto parts = kavlix::StackValues(values);
        // Along the value axis too: what lies higher, or further right, covers what it stands on.
        if ((p.values.Position(1) < p.values.Position(0)) == p.horizontal)
            std::reverse(parts.begin(), parts.end());
        for (std::size_t i = 0; i < parts.size(); ++i)
            if (i + 1 == parts.size() || !p.Covers(parts[i + 1], parts[i]))
                DrawSolid(p, p.slots.Single(s, kStackWidth), static_cast<double>(parts[i].low),
                          static_cast<double>(parts[i].high), p.data.Colour(parts[i].group));
    });
}
