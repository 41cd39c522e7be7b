// Planning a drawing: plot, depth, scales, ticks and slots, before anything of them is drawn.
#include <kavlix/Graph.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "plot/Numeric.h"

using kavlix::GraphFont;

namespace {

constexpr double kTickGap = 4;       // pixels between two ticks
constexpr double kWideLabel = 1.5;   // label widths per label: room to move a label away from the edge
constexpr double kHighLabel = 1.25;  // label heights per label above each other
constexpr int kSmallestNumbers = 10; // pixels; numbers shrink to this size, then they stand inside the plot

CString Number(std::int64_t value) {
    CString text;
    text.Format("%d", static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX)));
    return text;
}

} // namespace

void CGraph::PlanPlot() {
    kavlix::GraphPass& p = *pass;
    const double pixel = p.canvas.Pixel();
    p.plot = {static_cast<double>(xApexPoint), static_cast<double>(yApexPoint) - yAxisHeight,
              static_cast<double>(xApexPoint) + xAxisWidth, static_cast<double>(yApexPoint)};
    p.horizontal = graphAlignment == 0 && !p.type.Has(kavlix::kUpright);
    const bool quadrants = p.type.Has(kavlix::kQuadrants);
    p.mirrored = quadrants && (graphQuadType == 2 || graphQuadType == 4);
    p.centred = quadrants && (graphQuadType == 3 || graphQuadType == 4);

    const double width = p.plot.Width();
    const double height = p.plot.Height();
    if (p.type.Has(kavlix::kDepth))
        p.depth = kavlix::DepthOfPlot(depthRatio, width, height);
    if (p.type.Has(kavlix::kDepthPerGroup)) {
        const int groups = std::max(seriesSize, 1);
        if (line3DXBase > 0 || line3DYBase > 0)
            p.depth = kavlix::LimitDepth({line3DXBase * pixel * groups, line3DYBase * pixel * groups}, width,
                                         height);
        p.depthPerGroup = {p.depth.x / groups, p.depth.y / groups};
    }
    p.front = {p.plot.left, p.plot.top + p.depth.y, p.plot.right - p.depth.x, p.plot.bottom};
    if (!p.HasPlot() || p.type.Has(kavlix::kPie))
        return;

    p.leftEdge =
        (axisYLabel.IsEmpty() ? kavlix::kEdge : kavlix::kCaptionLeft + p.captionFont + kavlix::kEdge) * pixel;
    p.leftRoom = p.plot.left - kavlix::kLabelDistance * pixel - p.leftEdge;
    p.bottomRoom =
        p.canvas.Height() - p.plot.bottom - kavlix::kLabelDistance * pixel -
        (axisXLabel.IsEmpty() ? kavlix::kEdge : kavlix::kCaptionBottom + p.captionFont + kavlix::kEdge) *
            pixel;
    PlanValues();
    if (p.type.Has(kavlix::kScaledKeys))
        PlanKeys();
    else
        PlanSlots();
}

/// The greatest font height, up to the host's, at which the wider of two numbers fits left of the plot; 0
/// when even the smallest height does not fit.
int CGraph::FitNumbers(const CString& a, const CString& b) {
    const auto fits = [&](int size) {
        const GraphFont font(pass->canvas, size);
        return std::max(pass->canvas.Measure(a).width, pass->canvas.Measure(b).width) <= pass->leftRoom;
    };
    const int wanted = std::min(kavlix::FontHeight(yTickFontSize), GraphFont::kLargest);
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

/// The ticks of a scale from `min` to `max`, along the plot's left side or along its bottom.
kavlix::ScaleTicks CGraph::PlanTicks(std::int64_t min, std::int64_t max, std::int64_t step, bool left,
                                     bool fromZero) {
    kavlix::GraphPass& p = *pass;
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
              kavlix::kLabelGap * pixel;
    }
    return kavlix::ChooseTicks(min, max, step, left ? p.front.Height() : p.front.Width(), kTickGap * pixel,
                               gap, fromZero);
}

void CGraph::PlanValues() {
    kavlix::GraphPass& p = *pass;
    std::int64_t min = minTick;
    std::int64_t max = maxTick;
    if (p.centred) {
        max = std::max<std::int64_t>({std::abs(min), std::abs(max), 1});
        min = -max;
    }
    p.values = kavlix::PlotScale(static_cast<double>(min), static_cast<double>(max),
                                 p.horizontal ? p.front.left : p.front.bottom,
                                 p.horizontal ? p.front.right : p.front.top);
    p.valueTicks = PlanTicks(min, max, tickSpace, !p.horizontal, p.centred);
}

void CGraph::PlanKeys() {
    kavlix::GraphPass& p = *pass;
    constexpr int kMostSteps = 10;
    constexpr double kRoomOfStep = 60; // pixels
    std::int64_t low = INT_MAX;
    std::int64_t high = INT_MIN;
    for (const kavlix::SeriesPoints& series : p.data.series) {
        if (series.values.empty())
            continue;
        low = std::min<std::int64_t>(low, series.values.front().key);
        high = std::max<std::int64_t>(high, series.values.back().key);
    }
    const double extent = p.horizontal ? p.front.Height() : p.front.Width();
    const int steps =
        std::clamp(kavlix::TruncateToInt(extent / (kRoomOfStep * p.canvas.Pixel())), 2, kMostSteps);
    const kavlix::RoundLimits limits =
        low <= high ? kavlix::ChooseLimits(low, high, steps) : kavlix::RoundLimits{};
    p.keys = kavlix::PlotScale(static_cast<double>(limits.min), static_cast<double>(limits.max),
                               p.horizontal ? p.front.bottom : p.front.left,
                               p.horizontal ? p.front.top : p.front.right);
    p.keyTicks = PlanTicks(limits.min, limits.max, limits.step, p.horizontal, false);
}

void CGraph::PlanSlots() {
    kavlix::GraphPass& p = *pass;
    const int count = p.data.SeriesCount();
    const double first = p.horizontal ? p.front.top : p.front.left;
    const double last = p.horizontal ? p.front.bottom : p.front.right;
    p.slots = {first, last, count};
    if (!p.mirrored)
        return;
    // A group may have a key on each side, so `seriesSize`, which counts values, would leave empty room.
    int groups = 1;
    for (const kavlix::SeriesPoints& series : p.data.series)
        for (const kavlix::KeyedValue& item : series.values) {
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
