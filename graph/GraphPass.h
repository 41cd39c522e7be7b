// SPDX-License-Identifier: MIT
// The state of one drawing, which its steps and the series painters share.
#pragma once

#include <afxwin.h>

#include <utility>
#include <vector>

#include "graph/GraphCanvas.h"
#include "graph/GraphSnapshot.h"
#include "graph/GraphTypes.h"
#include "graph/core/PlotScale.h"
#include "graph/core/ScaleTicks.h"
#include "graph/core/SeriesSlots.h"
#include "graph/core/Solid.h"
#include "graph/core/StackSegments.h"

namespace kavlix {

/// A text that has no room beside the plot. The text is drawn after the series, on a white background.
struct OverlayLabel {
    PlanePoint place; ///< the upper left corner of the text; the text is turned around it
    CString text;
    int fontSize = 0; ///< pixels
    int angle = 0;    ///< degrees counter-clockwise
    int weight = FW_NORMAL;
};

/// What the steps of one drawing share: canvas, data and layout. Lengths and positions are in logical units
/// of the canvas, font heights in pixels.
struct GraphPass {
    GraphPass(CDC& dc, const GraphFrame& frame, GraphSnapshot contents, const GraphTypeRow& graphType)
        : canvas(dc, frame), data(std::move(contents)), type(graphType) {}

    GraphCanvas canvas;
    GraphSnapshot data;
    const GraphTypeRow& type;
    bool bySeries = false;   ///< points and legend rows have the colour of their series, not of their group
    int labelFont = 0;       ///< font height of the pies' names and percentages, pixels; as for series labels
    double depthRatio = 0;   ///< the value of CGraph::Set3DDepthRatio
    PlaneRect plot;          ///< the whole plot, including the depth of the 3D types
    PlaneRect front;         ///< where values are drawn: the plot without the depth
    Depth depth;             ///< from `front` to the wall behind the shapes; 0 without kDepth
    Depth depthPerGroup;     ///< with kDepthPerGroup: the part of `depth` that one group has
    bool horizontal = false; ///< the value axis runs from left to right; otherwise from the bottom up
    bool mirrored = false;   ///< negative keys are shown too, on the other side of the value axis
    bool centred = false;    ///< the zero line lies in the middle of the value axis
    PlotScale values;        ///< maps values to y, or to x when horizontal
    ScaleTicks valueTicks;
    int captionFont = 0;   ///< font height of the axis captions, pixels
    double leftEdge = 0;   ///< least x of the labels: right of the Y caption, or at the picture's edge
    double leftRoom = 0;   ///< width for labels left of the plot, logical units; may be negative
    double bottomRoom = 0; ///< height for labels below the plot, logical units; may be negative
    int leftFont = 0;      ///< font height of the numbers left of the plot, pixels; 0: they stand inside
    PlotScale keys;        ///< with kScaledKeys: maps X values to x, or to y when horizontal
    ScaleTicks keyTicks;
    SeriesSlots slots;         ///< without kScaledKeys: the places of the series
    SeriesSlots mirroredSlots; ///< the places of the series' negative keys, when mirrored
    std::vector<OverlayLabel> overlayLabels;

    /// The colour of the value with the key `key` in the series at index `s`.
    COLORREF PointColour(int s, int key) const { return data.Colour(bySeries ? s : key); }
    /// Whether the plot is large enough to draw in.
    bool HasPlot() const { return front.Width() >= 1 && front.Height() >= 1; }
    /// The place at the position `value` on the value axis and the position `along` on the other axis.
    PlanePoint At(double along, double value) const {
        return horizontal ? PlanePoint{value, along} : PlanePoint{along, value};
    }
    /// The rectangle that spans the positions `value` on the value axis and `along` on the other axis.
    PlaneRect Between(Span along, Span value) const;
    /// The position on the value axis where the other axis crosses it: the middle when centred, otherwise
    /// the beginning.
    double BaseLine() const { return centred ? values.Position(0) : values.From(); }
    /// Whether `later` hides `earlier`, so that `earlier` need not be drawn: both parts of a stack lie within
    /// the same logical unit of the value axis, and `later` is drawn.
    bool Covers(const StackSegment& later, const StackSegment& earlier) const;
};

} // namespace kavlix
