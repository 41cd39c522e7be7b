// SPDX-License-Identifier: MIT
// Paints one dataset as a line with markers, sample by sample, and the selection mark of the line styles.
#include "graphctrl/LinePainter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Markers.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/WideStroke.h"
#include "graphctrl/core/SampleStore.h"
#include "plot/SeriesReduction.h"

namespace kavlix {
namespace {

// Farthest that a marker extends from its sample, logical units.
constexpr int kMarkerHalf = 3 * kUnitsPerPixel;
// Added to distances because GDI rounds positions to pixels, logical units.
constexpr int kRoundingReach = 2 * kUnitsPerPixel;
// The triangle of the selection mark, in logical units. The tip points down.
constexpr int kTriangleHeight = 180; // from the plot's top edge down to the tip
constexpr int kTriangleTip = 10;     // X of the tip, counted to the right from the dotted line
constexpr int kTriangleRight = 90;   // X of the right corner, counted to the right from the dotted line
constexpr int kTriangleLeft = -70;   // X of the left corner, counted to the right from the dotted line

} // namespace

void DrawSampleMarker(CDC& dc, CDataset::MarkerType type, int x, int y) {
    if (DrawMarker(dc, type, x, y, kMarkerHalf, 0))
        dc.MoveTo(x, y);
}

void DrawSelectionMark(CDC& dc, const LineSelectionMark& selectionMark, CPen& seriesPen, int x) {
    if (x < selectionMark.plot.left - kTriangleRight - kRoundingReach ||
        x > selectionMark.plot.right - kTriangleLeft + kRoundingReach)
        return;
    const CPoint position = dc.GetCurrentPosition();
    POINT triangle[] = {{x + kTriangleTip, selectionMark.plot.top + kTriangleHeight},
                        {x + kTriangleRight, selectionMark.plot.top},
                        {x + kTriangleLeft, selectionMark.plot.top}};
    CRgn region;
    if (region.CreatePolygonRgn(triangle, 3, ALTERNATE))
        dc.FillRgn(&region, &selectionMark.triangleBrush);
    Select(dc, selectionMark.linePen);
    dc.MoveTo(x, selectionMark.plot.bottom);
    dc.LineTo(x, selectionMark.plot.top);
    Select(dc, seriesPen);
    dc.MoveTo(position);
}

int PenWidth(const CDataset& dataset) {
    return std::clamp<int>(dataset.GetLineSize(), 0, CDataset::MaxLineSize);
}

int PenPixels(const CDC& dc, int width) {
    POINT ends[2] = {{0, 0}, {width, 0}};
    dc.LPtoDP(ends, 2);
    return std::max(1, std::abs(static_cast<int>(ends[1].x - ends[0].x)));
}

int LineReach(const CDataset& dataset) {
    return kMarkerHalf + PenWidth(dataset) + kRoundingReach;
}

void DrawSeriesLine(CDC& dc, const CDataset& dataset, CPen& pen, const XPositions& xPositions,
                    const LinearMap& yMap, IndexRange range, const LineSelectionMark& selectionMark) {
    Select(dc, pen);
    const SampleStore& samples = dataset.Samples();
    bool started = false;
    CPoint lastPixel;
    const int penPixels = PenPixels(dc, PenWidth(dataset));
    CRect view = ToDeviceWithEdges(dc, selectionMark.plot);
    view.InflateRect(SeriesReduction::Reach(penPixels), SeriesReduction::Reach(penPixels));
    const bool isWideInPixels = penPixels > 1 && PaintsPixels(dc);
    const auto strokeTo = [&](int x, int y) {
        const CPoint from = dc.GetCurrentPosition();
        WideStroke stroke = {from, {x, y}};
        if (stroke.Shorten(dc, ToRect(view), penPixels) != WideStroke::Invisible)
            stroke.Draw(dc);
        dc.MoveTo(x, y);
    };
    for (int i = range.first; i <= range.last; ++i) {
        const double value = samples[i];
        const std::optional<int> x = xPositions.At(i);
        const std::optional<int> y = yMap.Position(value);
        if (x && i == selectionMark.index && !std::isnan(value))
            DrawSelectionMark(dc, selectionMark, pen, *x);
        if (!x || !y) {
            started = false;
            continue;
        }
        CPoint pixel(*x, *y);
        dc.LPtoDP(&pixel);
        if (!started)
            dc.MoveTo(*x, *y);
        else if (pixel != lastPixel && isWideInPixels)
            strokeTo(*x, *y);
        else if (pixel != lastPixel)
            dc.LineTo(*x, *y);
        lastPixel = pixel;
        started = true;
        DrawSampleMarker(dc, dataset.GetMarkerType(), *x, *y);
    }
}

} // namespace kavlix
