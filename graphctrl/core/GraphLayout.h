// SPDX-License-Identifier: MIT
// The layout of a graph control: where title, labels, axes, plot and legend stand.
#pragma once

#include "plot/Shapes.h"

namespace kavlix {

/// What the layout of a graph control depends on. Lengths in logical units; the host may have set any number.
struct LayoutInput {
    Rect client;           ///< the client area
    bool bars = false;     ///< whether X ticks stand farther apart: in the bar style and in unknown styles
    bool twoAxis = false;  ///< whether the Y2 axis is shown
    bool caption = false;  ///< whether a caption band is shown instead of the title
    int captionBottom = 0; ///< y of the caption band's bottom edge, logical units; not used without a band
    bool showXLabel = true;
    bool showYLabel = true;
    bool showY2Label = true;
    bool showLegend = true;
    int xTickLabelHeight = 0;
    int yTickLabelWidth = 0;
    int y2TickLabelWidth = 0;
    int legendWidth = 0;
};

/// The places of all parts of a graph control, in logical units. Coordinates saturate.
struct GraphLayout {
    int labelUnit = 0; ///< height of a label row, logical units
    Rect title;
    Rect yTickLabel;
    Rect yAxis;
    Rect y2TickLabel;
    Rect y2Axis;
    Rect xTickLabel;
    Rect xAxis;
    Rect plot;
    Rect legend;
    Point yLabel; ///< reference point of the Y label's text
    Point y2Label;
    Point xLabel;
    int xTicks = 0; ///< about the largest number of labelled X ticks; none are drawn below 2
    int yTicks = 0; ///< number of ticks of each value axis; none are drawn below 2

    /// Whether the plot is large enough for axes and data.
    bool HasPlot() const;
    /// Whether the legend's rectangle is large enough for a legend.
    bool HasLegend() const;
};

/// Height of a label row in the client area `client`, logical units.
int LabelUnit(const Rect& client);

/// Y of the title area's bottom edge, logical units, when the title is plain text.
int TitleBottom(const Rect& client);

/// Lays out a graph control.
GraphLayout ComputeLayout(const LayoutInput& input);

} // namespace kavlix
