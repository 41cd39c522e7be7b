// The painters as members of CGraph: each paints the series as its own type shows them.
#include <kavlix/Graph.h>

#include "graph/GraphPass.h"
#include "graph/GraphTypes.h"

namespace {

void PaintDuring(kavlix::GraphPass* pass, kavlix::SeriesPainter paint) {
    if (pass != nullptr)
        paint(*pass);
}

} // namespace

void CGraph::DrawBarSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintBars);
}

void CGraph::DrawLineSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintLines);
}

void CGraph::DrawPieSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintPies);
}

void CGraph::DrawScatterSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintPoints);
}

void CGraph::DrawBoxWhiskerSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintBoxes);
}

void CGraph::DrawStackedBarSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintStackedBars);
}

void CGraph::DrawXYLineSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintXYLines);
}

void CGraph::Draw3DBarSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintSolidBars);
}

void CGraph::Draw3DLineSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintRibbons);
}

void CGraph::Draw3DPieSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintSolidPies);
}

void CGraph::Draw3DStackedBarSeries(CDC*) {
    PaintDuring(pass, kavlix::PaintSolidStackedBars);
}
