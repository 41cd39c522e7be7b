// The layout of a graph control: where title, labels, axes, plot and legend stand.
#pragma once

#include "plot/Shapes.h"

namespace kavlix {

/// What the layout of a graph control depends on. Lengths in logical units; the host may have set any number.
struct LayoutInput {
    Rect client;           ///< the client area
    bool bars = false;     ///< the bar style or an unknown style: X ticks stand farther apart
    bool twoAxis = false;  ///< the Y2 axis is shown
    bool caption = false;  ///< a caption band is shown instead of the title
    int captionBottom = 0; ///< bottom of the caption band, whose height follows from its font
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
    int labelUnit = 0; ///< height of a label row
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
    int xTicks = 0; ///< largest number of labelled X ticks
    int yTicks = 0; ///< number of ticks of each value axis

    /// Whether the plot is large enough for axes and data.
    bool HasPlot() const;
    /// Whether the legend's rectangle is large enough for a legend.
    bool HasLegend() const;
};

/// Height of a label row in the client area `client`.
int LabelUnit(const Rect& client);

/// Bottom of the title area when the title is plain text.
int TitleBottom(const Rect& client);

/// Lays out a graph control.
GraphLayout ComputeLayout(const LayoutInput& input);

} // namespace kavlix
