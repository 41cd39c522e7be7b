#pragma once

#include "plot/Shapes.h"

namespace kavlix {

/// What the layout of a graph control depends on. Lengths in logical units, as the host set them.
struct LayoutInput {
    Rect client;           ///< the client area
    bool bars = false;     ///< drawn as bars, or in an unknown style: X labels need more room
    bool twoAxis = false;  ///< the Y2 axis is shown
    bool caption = false;  ///< a caption band instead of the title
    int captionBottom = 0; ///< bottom of the caption band, as measured
    bool showXLabel = true;
    bool showYLabel = true;
    bool showY2Label = true;
    bool showLegend = true;
    int xTickLabelHeight = 0;
    int yTickLabelWidth = 0;
    int y2TickLabelWidth = 0;
    int legendWidth = 0;
};

/// Where everything of a graph control stands, in logical units. Coordinates saturate, so sizes may be
/// anything.
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
    Point yLabel; ///< reference point of the label texts
    Point y2Label;
    Point xLabel;
    int xTicks = 0; ///< largest number of labelled ticks
    int yTicks = 0;

    /// Whether the plot is large enough for axes and data.
    bool HasPlot() const;
    /// Whether the legend's rectangle is large enough for a legend.
    bool HasLegend() const;
};

/// Height of a label row in a client area of the given height.
int LabelUnit(const Rect& client);

/// Bottom of the title area when the title is plain text.
int TitleBottom(const Rect& client);

GraphLayout ComputeLayout(const LayoutInput& input);

} // namespace kavlix
