// SPDX-License-Identifier: MIT
// The layout of a graph control.
#include "graphctrl/core/GraphLayout.h"

#include <cstdint>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr int kLabelRows = 15;      // a label row is 1/15 of the client area's height
constexpr int kEdgeMargin = 200;    // from the client area's edge to title, labels and legend, logical units
constexpr int kTitleGap = 500;      // from the title's row down to the plot, logical units
constexpr int kCaptionGap = 400;    // from the caption band down to the plot, logical units
constexpr int kPlotBottomGap = 300; // X axis' strip of tick marks plus margin at the bottom, logical units
constexpr int kAxisStrip = 100;     // width of a strip of tick marks, logical units
constexpr int kLegendGap = 400;     // the margins left and right of the legend together, logical units
constexpr int kPlotInset = 30;      // from the Y axis' strip of tick marks to the plot, logical units
constexpr int kLineTickRoom = 800;  // width of the plot per X tick in the line styles, logical units
constexpr int kBarTickRoom = 1000;  // width of the plot per X tick in the bar style, logical units
constexpr int kValueTickRoom = 500; // height of the plot per tick of a value axis, logical units
constexpr int kSmallestSide = 51;   // smallest side of a plot or legend that is drawn, logical units

// Type of sums: a host may set any int as a length. The sums saturate when they become coordinates.
using Wide = std::int64_t;

Rect MakeRect(Wide left, Wide top, Wide right, Wide bottom) {
    return {ToCoordinate(left), ToCoordinate(top), ToCoordinate(right), ToCoordinate(bottom)};
}

Point MakePoint(Wide x, Wide y) {
    return {ToCoordinate(x), ToCoordinate(y)};
}

bool IsLargeEnough(const Rect& rect) {
    return rect.Width() >= kSmallestSide && rect.Height() >= kSmallestSide;
}

} // namespace

bool GraphLayout::HasPlot() const {
    return IsLargeEnough(plot);
}

bool GraphLayout::HasLegend() const {
    return IsLargeEnough(legend);
}

int LabelUnit(const Rect& client) {
    return client.Height() / kLabelRows;
}

int TitleBottom(const Rect& client) {
    return client.top + kEdgeMargin + LabelUnit(client) + kTitleGap;
}

GraphLayout ComputeLayout(const LayoutInput& input) {
    GraphLayout layout;
    const Rect& client = input.client;
    const Wide unit = LabelUnit(client);
    const Wide xLabelRow = input.showXLabel ? unit : 0;
    layout.labelUnit = LabelUnit(client);

    const Wide top = input.caption ? Wide{input.captionBottom} + kCaptionGap : TitleBottom(client);
    layout.title = MakeRect(Wide{client.left} + kEdgeMargin, Wide{client.top} + kEdgeMargin,
                            Wide{client.right} - kEdgeMargin, top);

    const Wide bottom = Wide{client.bottom} - input.xTickLabelHeight - xLabelRow - kPlotBottomGap;
    const Wide labelMiddle = (bottom + top) / 2;

    Wide left = layout.title.left;
    layout.yLabel = MakePoint(left, labelMiddle);
    if (input.showYLabel)
        left += unit;
    const Wide yAxisLeft = left + input.yTickLabelWidth;
    const Wide yAxisRight = yAxisLeft + kAxisStrip;
    layout.yTickLabel = MakeRect(left, top, yAxisLeft, bottom);
    layout.yAxis = MakeRect(yAxisLeft, top, yAxisRight, bottom);

    Wide right = layout.title.right;
    layout.y2Label = MakePoint(right, labelMiddle);
    if (input.twoAxis && input.showY2Label)
        right -= unit;
    const Wide y2Left = input.twoAxis ? right - input.y2TickLabelWidth : right;
    const Wide y2AxisLeft = input.twoAxis ? y2Left - kAxisStrip : y2Left;
    layout.y2TickLabel = MakeRect(y2Left, top, right, bottom);
    layout.y2Axis = MakeRect(y2AxisLeft, top, y2Left, bottom);

    const Wide xBottom = Wide{client.bottom} - xLabelRow - kEdgeMargin;
    const Wide xTop = xBottom - input.xTickLabelHeight;
    const Wide xRight = input.showLegend ? Wide{client.right} - input.legendWidth - kLegendGap : y2AxisLeft;
    layout.xLabel = MakePoint((xRight + yAxisRight) / 2, xBottom);
    layout.xTickLabel = MakeRect(yAxisRight, xTop, xRight, xBottom);
    layout.xAxis = MakeRect(yAxisRight, xTop - kAxisStrip, xRight, xTop);
    layout.plot = MakeRect(yAxisRight + kPlotInset, top, xRight, bottom);

    layout.xTicks = layout.plot.Width() / (input.bars ? kBarTickRoom : kLineTickRoom);
    layout.yTicks = layout.plot.Height() / kValueTickRoom;
    layout.legend = MakeRect(Wide{client.right} - input.legendWidth - kEdgeMargin, top,
                             Wide{client.right} - kEdgeMargin, xBottom);
    return layout;
}

} // namespace kavlix
