// SPDX-License-Identifier: MIT
// The axes of a drawing: walls of the 3D types, grid lines, ticks and numbers. Series labels and captions
// are in GraphAxisLabels.cpp.
#include <kavlix/Graph.h>

#include <algorithm>
#include <climits>
#include <cmath>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"

using namespace kavlix;

namespace {

constexpr double kTickLength = 4; // pixels
constexpr double kGridGap = 10;   // pixels; where ticks are closer, only ticks with a number have grid lines
constexpr double kBesidePlot = 8; // pixels by which a number may exceed the plot's right edge before a legend

constexpr COLORREF kFrame = RGB(176, 176, 176);
constexpr COLORREF kBackWall = RGB(248, 248, 248);
constexpr COLORREF kSideWall = RGB(236, 236, 236);
constexpr COLORREF kFloor = RGB(226, 226, 226);

} // namespace

void CGraph::DrawAxis(CDC*) {
    if (pass == nullptr || !pass->HasPlot())
        return;
    GraphPass& p = *pass;
    Draw3DFrame();
    if (p.type.Has(kScaledKeys))
        DrawScale(p.keys, p.keyTicks, p.horizontal);
    DrawScale(p.values, p.valueTicks, !p.horizontal);
    DrawAxisLines();
    if (!p.type.Has(kScaledKeys)) {
        for (const SeriesSlots* slots : {&p.slots, &p.mirroredSlots}) {
            if (slots->count == 0)
                continue;
            DrawSeriesTicks(*slots);
            if (p.horizontal)
                DrawLabelsLeft(*slots);
            else
                DrawLabelsBelow(*slots);
        }
    }
    DrawCaptions();
}

void CGraph::Draw3DFrame() {
    GraphPass& p = *pass;
    if (p.depth.x <= 0 && p.depth.y <= 0)
        return;
    const PlaneRect& f = p.front;
    const auto back = [&](double x, double y) { return PlanePoint{x + p.depth.x, y - p.depth.y}; };
    p.canvas.SetLine(kFrame);
    p.canvas.SetFill(kBackWall);
    p.canvas.Polygon(
        Face{{back(f.left, f.top), back(f.right, f.top), back(f.right, f.bottom), back(f.left, f.bottom)}});
    p.canvas.SetFill(kSideWall);
    p.canvas.Polygon(
        Face{{{f.left, f.top}, back(f.left, f.top), back(f.left, f.bottom), {f.left, f.bottom}}});
    p.canvas.SetFill(kFloor);
    p.canvas.Polygon(
        Face{{{f.left, f.bottom}, back(f.left, f.bottom), back(f.right, f.bottom), {f.right, f.bottom}}});
}

/// Draws grid lines, ticks and numbers of a scale along the plot's left side or along its bottom.
void CGraph::DrawScale(const PlotScale& scale, const ScaleTicks& ticks, bool left) {
    GraphPass& p = *pass;
    const PlaneRect& f = p.front;
    const double length = kTickLength * p.canvas.Pixel();
    const auto eachTick = [&](auto emit) {
        for (std::int64_t i = ticks.first; i <= ticks.last; i += ticks.every)
            emit(i, scale.Position(static_cast<double>(ticks.Value(i))));
    };
    if (graphHasGridLines) {
        p.canvas.SetLine(kGrey);
        const double distance = std::abs(scale.Position(static_cast<double>(ticks.Value(ticks.every))) -
                                         scale.Position(static_cast<double>(ticks.Value(0))));
        const bool open = distance >= kGridGap * p.canvas.Pixel();
        eachTick([&](std::int64_t i, double at) {
            if (!open && !ticks.HasLabel(i))
                return;
            const PlanePoint start = left ? PlanePoint{f.left, at} : PlanePoint{at, f.bottom};
            const PlanePoint end = left ? PlanePoint{f.right, at} : PlanePoint{at, f.top};
            if (p.depth.x > 0 || p.depth.y > 0)
                p.canvas.Polyline({start,
                                   {start.x + p.depth.x, start.y - p.depth.y},
                                   {end.x + p.depth.x, end.y - p.depth.y}});
            else
                p.canvas.Line(start, end);
        });
    }
    p.canvas.SetLine(kInk);
    eachTick([&](std::int64_t, double at) {
        if (left)
            p.canvas.Line({f.left - length, at}, {f.left, at});
        else
            p.canvas.Line({at, f.bottom}, {at, f.bottom + length + p.canvas.Pixel()});
    });
    const GraphFont font(p.canvas, left && p.leftFont > 0 ? p.leftFont : yTickFontSize);
    eachTick([&](std::int64_t i, double at) {
        if (!ticks.HasLabel(i)) {
            axisLabelsCut = 1;
            return;
        }
        CString text;
        text.Format(_T("%d"), static_cast<int>(std::clamp<std::int64_t>(ticks.Value(i), INT_MIN, INT_MAX)));
        DrawNumber(text, at, left);
    });
}

void CGraph::DrawNumber(const CString& text, double position, bool left) {
    GraphPass& p = *pass;
    const double pixel = p.canvas.Pixel();
    const LabelSize size = p.canvas.Measure(text);
    if (!left) {
        const double rightmost =
            graphHasLegend ? p.plot.right + kBesidePlot * pixel : p.canvas.Width() - kEdge * pixel;
        const double x = std::max(std::min(position - size.width / 2, rightmost - size.width), kEdge * pixel);
        p.canvas.Text({x, p.plot.bottom + kLabelDistance * pixel}, text);
    } else if (p.leftFont > 0) {
        p.canvas.Text({p.plot.left - kLabelDistance * pixel - size.width, position - size.height / 2}, text);
    } else {
        const double y = std::min(position - size.height / 2, p.plot.bottom - size.height - pixel);
        p.overlayLabels.push_back(
            {{std::max(p.plot.left + kTickLength * pixel, p.leftEdge), y}, text, yTickFontSize});
    }
}

/// Draws the two axes, and a line at 0 of each scale if 0 lies between its limits and not on an axis.
void CGraph::DrawAxisLines() {
    GraphPass& p = *pass;
    const PlaneRect& f = p.front;
    const double first = p.horizontal ? f.top : f.left;
    const double last = p.horizontal ? f.bottom : f.right;
    p.canvas.SetLine(kInk);
    const double valueLine = p.mirrored ? p.slots.from : p.horizontal ? f.bottom : f.left;
    p.canvas.Line(p.At(valueLine, p.values.From()), p.At(valueLine, p.values.To()));
    const double base = p.BaseLine();
    p.canvas.Line(p.At(first, base), p.At(last, base));
    if (p.values.CrossesZero() && !p.centred) {
        const double zero = p.values.Position(0);
        p.canvas.Line(p.At(first, zero), p.At(last, zero));
    }
    if (p.type.Has(kScaledKeys) && p.keys.CrossesZero()) {
        p.canvas.SetLine(kGrey);
        const double zero = p.keys.Position(0);
        p.canvas.Line(p.At(zero, p.values.From()), p.At(zero, p.values.To()));
    }
}

void CGraph::DrawSeriesTicks(const SeriesSlots& slots) {
    GraphPass& p = *pass;
    const double pixel = p.canvas.Pixel();
    const double length = kTickLength * pixel;
    if (std::abs(slots.Width()) < 2 * length)
        return;
    p.canvas.SetLine(kInk);
    for (int i = 0; i < slots.count; ++i) {
        const double at = slots.Middle(i);
        if (p.horizontal)
            p.canvas.Line({p.plot.left - length, at}, {p.plot.left, at});
        else
            p.canvas.Line({at, p.plot.bottom}, {at, p.plot.bottom + length + pixel});
    }
}
