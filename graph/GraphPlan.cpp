// SPDX-License-Identifier: MIT
// Planning a drawing: plot, depth, scales, ticks and slots, before axes and series are drawn.
#include <kavlix/Graph.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "plot/Numeric.h"

using namespace kavlix;

namespace {

constexpr double kTickGap = 4; // least distance between two ticks, pixels
// Least distance between the middles of two numbers: below the plot in widths of the wider limit, plus
// kLabelGap; left of the plot in heights of a character. With the additional half width a number can move
// away from the picture's edge.
constexpr double kWideLabel = 1.5;
constexpr double kHighLabel = 1.25;
constexpr int kSmallestNumbers = 10; // pixels; numbers that do not fit at this height stand inside the plot

CString Number(std::int64_t value) {
    CString text;
    text.Format(_T("%d"), static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX)));
    return text;
}

} // namespace

void CGraph::PlanPlot() {
    GraphPass& p = *pass;
    const double pixel = p.canvas.Pixel();
    p.plot = {static_cast<double>(xApexPoint), static_cast<double>(yApexPoint) - yAxisHeight,
              static_cast<double>(xApexPoint) + xAxisWidth, static_cast<double>(yApexPoint)};
    p.horizontal = graphAlignment == 0 && !p.type.Has(kUpright);
    const bool quadrants = p.type.Has(kQuadrants);
    p.mirrored = quadrants && (graphQuadType == 2 || graphQuadType == 4);
    p.centred = quadrants && (graphQuadType == 3 || graphQuadType == 4);

    const double width = p.plot.Width();
    const double height = p.plot.Height();
    if (p.type.Has(kDepth))
        p.depth = DepthOfPlot(depthRatio, width, height);
    if (p.type.Has(kDepthPerGroup)) {
        const int groups = std::max(seriesSize, 1);
        if (line3DXBase > 0 || line3DYBase > 0)
            p.depth = LimitDepth({line3DXBase * pixel * groups, line3DYBase * pixel * groups}, width, height);
        p.depthPerGroup = {p.depth.x / groups, p.depth.y / groups};
    }
    p.front = {p.plot.left, p.plot.top + p.depth.y, p.plot.right - p.depth.x, p.plot.bottom};
    if (!p.HasPlot() || p.type.Has(kPie))
        return;

    p.leftEdge = (axisYLabel.IsEmpty() ? kEdge : kCaptionLeft + p.captionFont + kEdge) * pixel;
    p.leftRoom = p.plot.left - kLabelDistance * pixel - p.leftEdge;
    p.bottomRoom = p.canvas.Height() - p.plot.bottom - kLabelDistance * pixel -
                   (axisXLabel.IsEmpty() ? kEdge : kCaptionBottom + p.captionFont + kEdge) * pixel;
    PlanValues();
    if (p.type.Has(kScaledKeys))
        PlanKeys();
    else
        PlanSlots();
}

/// The greatest font height in pixels, up to the host's, at which the wider of two numbers fits left of the
/// plot; 0 when the number does not fit at kSmallestNumbers either.
int CGraph::FitNumbers(const CString& a, const CString& b) {
    const auto fits = [&](int size) {
        const GraphFont font(pass->canvas, size);
        return std::max(pass->canvas.Measure(a).width, pass->canvas.Measure(b).width) <= pass->leftRoom;
    };
    const int wanted = std::min(FontHeight(yTickFontSize), GraphFont::kLargest);
    if (fits(wanted))
        return wanted;
    int fitting = std::min(kSmallestNumbers, wanted);
    if (!fits(fitting))
        return 0;
    for (int tooLarge = wanted; tooLarge - fitting > 1;) {
        const int size = (fitting + tooLarge) / 2;
        (fits(size) ? fitting : tooLarge) = size;
    }
    return fitting;
}

/// The ticks of a scale from `min` to `max`, along the plot's left side if `left`, otherwise along its
/// bottom. With `left` also chooses the height of the numbers, `leftFont`.
ScaleTicks CGraph::PlanTicks(std::int64_t min, std::int64_t max, std::int64_t step, bool left,
                             bool fromZero) {
    GraphPass& p = *pass;
    const double pixel = p.canvas.Pixel();
    const CString low = Number(min);
    const CString high = Number(max);
    double gap = 0;
    if (left) {
        p.leftFont = FitNumbers(low, high);
        const GraphFont font(p.canvas, p.leftFont > 0 ? p.leftFont : yTickFontSize);
        gap = p.canvas.Character().height * kHighLabel;
    } else {
        const GraphFont font(p.canvas, yTickFontSize);
        gap = std::max(p.canvas.Measure(low).width, p.canvas.Measure(high).width) * kWideLabel +
              kLabelGap * pixel;
    }
    return ChooseTicks(min, max, step, left ? p.front.Height() : p.front.Width(), kTickGap * pixel, gap,
                       fromZero);
}

void CGraph::PlanValues() {
    GraphPass& p = *pass;
    std::int64_t min = minTick;
    std::int64_t max = maxTick;
    if (p.centred) {
        max = std::max<std::int64_t>({std::abs(min), std::abs(max), 1});
        min = -max;
    }
    p.values =
        PlotScale(static_cast<double>(min), static_cast<double>(max),
                  p.horizontal ? p.front.left : p.front.bottom, p.horizontal ? p.front.right : p.front.top);
    p.valueTicks = PlanTicks(min, max, tickSpace, !p.horizontal, p.centred);
}

void CGraph::PlanKeys() {
    GraphPass& p = *pass;
    constexpr int kMostSteps = 10;
    constexpr double kRoomOfStep = 60; // pixels
    std::int64_t low = INT_MAX;
    std::int64_t high = INT_MIN;
    for (const SeriesPoints& series : p.data.series) {
        if (series.values.empty())
            continue;
        low = std::min<std::int64_t>(low, series.values.front().key);
        high = std::max<std::int64_t>(high, series.values.back().key);
    }
    const double extent = p.horizontal ? p.front.Height() : p.front.Width();
    const int steps = std::clamp(TruncateToInt(extent / (kRoomOfStep * p.canvas.Pixel())), 2, kMostSteps);
    const RoundLimits limits = low <= high ? ChooseLimits(low, high, steps) : RoundLimits{};
    p.keys =
        PlotScale(static_cast<double>(limits.min), static_cast<double>(limits.max),
                  p.horizontal ? p.front.bottom : p.front.left, p.horizontal ? p.front.top : p.front.right);
    p.keyTicks = PlanTicks(limits.min, limits.max, limits.step, p.horizontal, false);
}

void CGraph::PlanSlots() {
    GraphPass& p = *pass;
    const int count = p.data.SeriesCount();
    const double first = p.horizontal ? p.front.top : p.front.left;
    const double last = p.horizontal ? p.front.bottom : p.front.right;
    p.slots = {first, last, count};
    if (!p.mirrored)
        return;
    // A group may have two values, one on each side of the value axis. The number of values, `seriesSize`,
    // may then exceed the number of groups, and the slots would have empty places for bars.
    int groups = 1;
    for (const SeriesPoints& series : p.data.series)
        for (const KeyedValue& item : series.values) {
            const std::int64_t group = item.key < 0 ? -(std::int64_t{item.key} + 1) : item.key;
            if (group < p.data.groups)
                groups = std::max(groups, static_cast<int>(group) + 1);
        }
    p.data.groups = std::min(p.data.groups, groups);
    const double middle = (first + last) / 2;
    // Keys grow to the right; in a horizontal graph they grow upwards.
    p.slots = {middle, p.horizontal ? first : last, count};
    p.mirroredSlots = {middle, p.horizontal ? last : first, count};
}
