// SPDX-License-Identifier: MIT
// The painters as members of CGraph: each paints the series as one graph type, whatever type is set.
#include <kavlix/Graph.h>

#include "graph/GraphPass.h"
#include "graph/GraphTypes.h"

using namespace kavlix;

namespace {

void PaintDuring(GraphPass* pass, SeriesPainter paint) {
    if (pass != nullptr)
        paint(*pass);
}

} // namespace

void CGraph::DrawBarSeries(CDC*) {
    PaintDuring(pass, PaintBars);
}

void CGraph::DrawLineSeries(CDC*) {
    PaintDuring(pass, PaintLines);
}

void CGraph::DrawPieSeries(CDC*) {
    PaintDuring(pass, PaintPies);
}

void CGraph::DrawScatterSeries(CDC*) {
    PaintDuring(pass, PaintPoints);
}

void CGraph::DrawBoxWhiskerSeries(CDC*) {
    PaintDuring(pass, PaintBoxes);
}

void CGraph::DrawStackedBarSeries(CDC*) {
    PaintDuring(pass, PaintStackedBars);
}

void CGraph::DrawXYLineSeries(CDC*) {
    PaintDuring(pass, PaintXYLines);
}

void CGraph::Draw3DBarSeries(CDC*) {
    PaintDuring(pass, PaintSolidBars);
}

void CGraph::Draw3DLineSeries(CDC*) {
    PaintDuring(pass, PaintRibbons);
}

void CGraph::Draw3DPieSeries(CDC*) {
    PaintDuring(pass, PaintSolidPies);
}

void CGraph::Draw3DStackedBarSeries(CDC*) {
    PaintDuring(pass, PaintSolidStackedBars);
}
