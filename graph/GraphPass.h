#pragma once

#include <kavlix/Graph.h>

#include <algorithm>
#include <vector>

#include "graph/GraphCanvas.h"
#include "graph/core/KeyedValue.h"
#include "graph/core/PlotScale.h"
#include "graph/core/ScaleTicks.h"
#include "graph/core/SeriesSlots.h"
#include "graph/core/Solid.h"
#include "graph/core/StackSegments.h"

namespace kavlix {

/// A series as the painters read it.
struct SeriesPoints {
    CString label;
    std::vector<KeyedValue> values; ///< ascending by key; equal keys in the order of arrival
};

/// The series and colours of a graph at the time of a drawing.
struct GraphSnapshot {
    std::vector<SeriesPoints> series;
    std::vector<COLORREF> colours;
    int groups = 0;

    GraphSnapshot(const CObList& seriesList, const CObList* colorList, int seriesSize);
    int SeriesCount() const { return static_cast<int>(series.size()); }
    /// Black where the list has no entry.
    COLORREF Colour(int index) const {
        return index >= 0 && index < static_cast<int>(colours.size()) ? colours[index] : RGB(0, 0, 0);
    }
};

/// A text that is written over the series, on a white ground, as it found no room beside the plot.
struct LateLabel {
    PlanePoint place;
    CString text;
    int fontSize = 0;
    int angle = 0;
    int weight = FW_NORMAL;
};

/// What a font size that a host has set counts as, in pixels.
inline int FontSize(int size) {
    return std::max(size, 1);
}

/// What the steps of one drawing share: canvas, contents and plot.
struct GraphPass {
    GraphPass(CDC& dc, const GraphFrame& frame, GraphSnapshot contents)
        : canvas(dc, frame), data(std::move(contents)) {}

    GraphCanvas canvas;
    GraphSnapshot data;
    PlaneRect plot;          ///< all of it, frame of the 3D types included
    PlaneRect front;         ///< where values are drawn: the plot without the room that depth takes
    Depth depth;             ///< of the 3D types
    Depth ribbon;            ///< of one ribbon of a 3D line
    bool horizontal = false; ///< values grow to the right
    bool mirrored = false;   ///< negative keys are shown as well
    bool centred = false;    ///< the zero line lies in the middle
    bool scaledKeys = false; ///< keys are X values
    bool bySeries = false;   ///< a point has the colour of its series, not of its group
    PlotScale values;        ///< values to positions: y, or x when horizontal
    ScaleTicks valueTicks;
    int captionFont = 0;   ///< height of the axis captions in pixels
    double leftEdge = 0;   ///< where labels may begin: right of the Y caption's strip
    double leftRoom = 0;   ///< for labels between the Y caption and the plot
    double bottomRoom = 0; ///< for labels between the plot and the X caption
    int leftFont = 0;      ///< height of numbers left of the plot, made to fit; 0: they go inside the plot
    PlotScale keys;        ///< X values to x, when keys are scaled
    ScaleTicks keyTicks;
    SeriesSlots slots;         ///< the series along the other axis
    SeriesSlots mirroredSlots; ///< the same on the side of negative keys
    std::vector<LateLabel> lateLabels;

    /// Of a value of series number `s`.
    COLORREF PointColour(int s, int key) const { return data.Colour(bySeries ? s : key); }
    bool HasPlot() const { return front.Width() >= 1 && front.Height() >= 1; }
    /// The place at `along` on the series' axis and `value` on the value axis, both as positions.
    PlanePoint At(double along, double value) const {
        return horizontal ? PlanePoint{value, along} : PlanePoint{along, value};
    }
    /// Whether both parts of a stack lie in one pixel and `later` is drawn, so that it covers `earlier`.
    bool Covers(const StackSegment& later, const StackSegment& earlier) const;
    /// The upright rectangle between two places.
    PlaneRect Between(Span along, Span value) const;
};

/// The bottom of what is printed from `top` on, in twips: four inches below, or `bottom` if that is higher.
int PrintedBottom(int top, int bottom);

/// Draws a marker that tells series number `index` from its neighbours even without colours: filled, about
/// seven pixels wide.
void DrawMarker(GraphCanvas& canvas, PlanePoint centre, int index, COLORREF colour);

/// The outline of a shape of `colour`.
inline COLORREF OutlineOf(COLORREF colour) {
    constexpr double kOutlineLight = 0.55;
    return Shade(colour, kOutlineLight);
}

/// The middle of the value axis, or the end at which the series stand.
inline double FootOf(const GraphPass& pass) {
    return pass.centred ? pass.values.Position(0) : pass.values.From();
}

} // namespace kavlix
