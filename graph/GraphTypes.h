// SPDX-License-Identifier: MIT
// The graph types, one row each: the painter of its series, and what layout and axes do differently for it.
#pragma once

#include <kavlix/Graph.h>

namespace kavlix {

struct GraphPass;

/// Paints the series of a drawing. A painter keeps nothing between two calls.
using SeriesPainter = void (*)(GraphPass& pass);

void PaintBars(GraphPass& pass);
void PaintLines(GraphPass& pass);
void PaintPies(GraphPass& pass);
void PaintPoints(GraphPass& pass);
void PaintBoxes(GraphPass& pass);
void PaintStackedBars(GraphPass& pass);
void PaintXYLines(GraphPass& pass);
void PaintSolidBars(GraphPass& pass);
void PaintRibbons(GraphPass& pass);
void PaintSolidPies(GraphPass& pass);
void PaintSolidStackedBars(GraphPass& pass);

/// What several graph types have in common. Bits, so that a row can combine traits.
enum GraphTrait : unsigned {
    kPie = 1,              ///< pies fill the plot; no axes
    kDepth = 2,            ///< the shapes are solid, and a wall stands behind them
    kDepthPerGroup = 4,    ///< the groups stand behind each other, each in an equal part of the depth
    kScaledKeys = 8,       ///< keys are X values on a second scale
    kUpright = 16,         ///< the value axis is vertical, whatever CGraph::SetGraphAlignment has set
    kHorizontalRoom = 32,  ///< the margins around the plot are those of a horizontal graph in both alignments
    kQuadrants = 64,       ///< CGraph::SetGraphQuadType applies
    kColourBySeries = 128, ///< CGraph::SetLegendBySeries applies
};

struct GraphTypeRow {
    int type;            ///< a GraphType code
    SeriesPainter paint; ///< nullptr: no series are drawn
    unsigned traits;     ///< GraphTrait bits

    bool Has(GraphTrait trait) const { return (traits & trait) != 0; }
};

inline constexpr GraphTypeRow kGraphTypes[] = {
    {GraphTypeBar, PaintBars, kQuadrants},
    {GraphTypeLine, PaintLines, 0},
    {GraphTypePie, PaintPies, kPie},
    {GraphTypeScatter, PaintPoints, kScaledKeys | kColourBySeries | kUpright | kHorizontalRoom},
    {GraphTypeBoxWhisker, PaintBoxes, kColourBySeries},
    {GraphTypeStackedBar, PaintStackedBars, 0},
    {GraphTypeXYLine, PaintXYLines, kScaledKeys | kColourBySeries},
    {GraphType3DBar, PaintSolidBars, kDepth},
    {GraphType3DLine, PaintRibbons, kDepth | kDepthPerGroup | kUpright},
    {GraphType3DPie, PaintSolidPies, kPie},
    {GraphType3DStackedBar, PaintSolidStackedBars, kDepth},
};

/// The row of a type code. The row of an unknown code has neither a painter nor a trait: the graph has axes
/// but no series.
inline const GraphTypeRow& GraphTypeOf(int type) {
    static constexpr GraphTypeRow kUnknown{-1, nullptr, 0};
    for (const GraphTypeRow& row : kGraphTypes)
        if (row.type == type)
            return row;
    return kUnknown;
}

} // namespace kavlix
