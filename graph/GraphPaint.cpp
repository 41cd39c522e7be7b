// SPDX-License-Identifier: MIT
// One drawing, step by step: background, title, layout, quadrants, series.
#include <kavlix/Graph.h>

#include <algorithm>
#include <cstdint>

#include "gdi/Mirroring.h"
#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "plot/Numeric.h"

using namespace kavlix;

namespace {

// Lengths in pixels.
constexpr int kMarginBelow = 20;
constexpr int kMarginRight = 5;
constexpr int kPlotTop = 40;

/// The greatest height, from `size` down in steps of 2, at which `length` characters fit into the width
/// `room`; at least 1. A character counts as half as wide as it is high. Heights and widths are pixels.
int FitSize(int size, int length, std::int64_t room) {
    while (size > 1 && std::int64_t{size / 2} * length > room)
        size -= 2;
    return std::max(size, 1);
}

/// Sets `slot` to the pass of a drawing, and to nullptr when the drawing ends, also by an exception.
class PassGuard {
public:
    PassGuard(GraphPass*& slot, GraphPass& pass) : m_slot(slot) { m_slot = &pass; }
    ~PassGuard() { m_slot = nullptr; }
    PassGuard(const PassGuard&) = delete;
    PassGuard& operator=(const PassGuard&) = delete;

private:
    GraphPass*& m_slot;
};

} // namespace

void CGraph::DrawGraph(CDC* pDC) {
    if (parentWindow == nullptr || !::IsWindow(parentWindow->GetSafeHwnd()) || pDC == nullptr)
        return;
    CRect client;
    parentWindow->GetClientRect(&client);
    GraphFrame frame;
    frame.width = client.Width();
    frame.height = client.Height();
    const UnmirroredGuard unmirrored(*pDC, client.Width());
    DrawPicture(*pDC, frame);
}

void CGraph::DrawPicture(CDC& dc, const GraphFrame& frame) {
    GraphPass shared(dc, frame, {*seriesList, colorList, seriesSize}, GraphTypeOf(graphType));
    shared.bySeries = legendBySeries && shared.type.Has(kColourBySeries);
    shared.labelFont = xTickFontSize;
    shared.depthRatio = depthRatio;
    const PassGuard guard(pass, shared);
    GraphCanvas& canvas = shared.canvas;

    canvas.SetFill(kPaper);
    canvas.Rectangle({0, 0, canvas.Width(), canvas.Height()});
    canvas.HostTools();

    maxHeight = frame.height - kMarginBelow * frame.pixel;
    maxWidth = frame.width - kMarginRight * frame.pixel;
    DrawTitle();
    ComputeLayout();
    if (graphHasLegend) {
        constexpr int kLegendGap = 10; // pixels
        xAxisWidth = DrawLegend(&dc) - xApexPoint - kLegendGap * frame.pixel;
    }
    ChooseQuadrants();
    PlanPlot();
    if (shared.mirrored)
        xApexPoint += xAxisWidth / 2;
    if (shared.centred)
        yApexPoint -= yAxisHeight / 2;
    if (!shared.type.Has(kPie)) {
        axisLabelsCut = 0;
        DrawAxis(&dc);
    }
    DrawSeries(&dc);
    DrawOverlayLabels();
}

void CGraph::DrawTitle() {
    constexpr int kTitleSize = 24; // pixels
    constexpr int kTitleTop = 10;  // pixels
    GraphCanvas& canvas = pass->canvas;
    const int pixel = static_cast<int>(canvas.Pixel());
    const int length = graphTitle.GetLength();
    const int size = FitSize(kTitleSize, length, maxWidth / pixel);
    const GraphFont font(canvas, size, 0, FW_BOLD);
    const auto width = static_cast<std::int64_t>(canvas.Character().width);
    const std::int64_t x = static_cast<std::int64_t>(canvas.Width()) / 2 - length / 2 * width;
    canvas.Text({static_cast<double>(x), canvas.Pixel() * kTitleTop}, graphTitle);
}

void CGraph::ComputeLayout() {
    GraphCanvas& canvas = pass->canvas;
    const int pixel = static_cast<int>(canvas.Pixel());
    if (pass->type.Has(kPie)) {
        constexpr int kPieMargin = 5; // pixels
        constexpr int kPieTop = 50;   // pixels
        xApexPoint = kPieMargin * pixel;
        xAxisWidth = maxWidth - 2 * kPieMargin * pixel;
        yAxisHeight = maxHeight - kPieTop * pixel;
        yApexPoint = maxHeight - kPieMargin * pixel;
        return;
    }
    // The caption along the smaller side of the picture is fitted; the other caption takes the same size.
    constexpr int kCaptionSize = 16; // pixels
    const bool wide = maxHeight < maxWidth;
    pass->captionFont = FitSize(kCaptionSize, (wide ? axisYLabel : axisXLabel).GetLength(),
                                (wide ? maxHeight : maxWidth) / pixel);
    LabelSize character;
    {
        const GraphFont rotated(canvas, pass->captionFont, kUpwards, FW_BOLD);
        character = canvas.Character();
    }
    const auto characterWidth = static_cast<std::int64_t>(character.width);
    const auto characterHeight = static_cast<std::int64_t>(character.height);

    if (graphAlignment != 0 && !pass->type.Has(kHorizontalRoom)) {
        constexpr int kLeftOfPlot = 50; // pixels
        constexpr int kBelowPlot = 50;
        constexpr int kBelowTurnedLabels = 15;
        CString highest;
        highest.Format(_T("%d"), maxTick);
        const std::int64_t halfNumber = FontHeight(yTickFontSize) / 2;
        const std::int64_t halfLabel = FontHeight(xTickFontSize) / 2;
        xApexPoint = ToCoordinate((halfNumber * highest.GetLength() + kLeftOfPlot) * pixel);
        const std::int64_t below =
            xAxisAlign == 0 ? std::int64_t{kBelowPlot} : halfLabel * xAxisLabelLength + kBelowTurnedLabels;
        yApexPoint = ToCoordinate(maxHeight - below * pixel);
    } else {
        constexpr int kCaptionGap = 10; // pixels
        constexpr int kBelowPlot = 15;
        constexpr int kLeftMargin = 5;
        const CString& valueCaption = graphAlignment != 0 ? axisYLabel : axisXLabel;
        const std::int64_t captionSpace = valueCaption.IsEmpty() ? 0 : characterHeight + kCaptionGap * pixel;
        yApexPoint = ToCoordinate(maxHeight - characterHeight - kBelowPlot * pixel);
        xApexPoint = ToCoordinate(xAxisLabelLength * characterWidth + captionSpace +
                                  kLeftMargin * std::int64_t{pixel});
    }
    yAxisHeight = yApexPoint - kPlotTop * pixel;
    xAxisWidth = maxWidth - xApexPoint - kMarginRight * pixel;
}

/// Chooses the quadrants of a bar graph unless `quadSetManually`. Only the first value of each series
/// decides, so the running time does not depend on the number of values.
void CGraph::ChooseQuadrants() {
    if (quadSetManually || !pass->type.Has(kQuadrants))
        return;
    int lowestKey = 0;
    int lowestValue = 0;
    for (POSITION position = seriesList->GetHeadPosition(); position != nullptr;) {
        const CObList& values =
            static_cast<const CGraphSeries*>(seriesList->GetNext(position))->GetDataList();
        if (values.IsEmpty())
            continue;
        const auto* const first = static_cast<const CGraphValue*>(values.GetHead());
        lowestKey = std::min(lowestKey, first->key);
        lowestValue = std::min(lowestValue, first->value);
    }
    constexpr int kTypes[2][2] = {{1, 3}, {2, 4}};
    graphQuadType = kTypes[lowestKey < 0][lowestValue < 0];
}

void CGraph::DrawSeries(CDC*) {
    if (pass != nullptr && pass->HasPlot() && pass->type.paint != nullptr)
        pass->type.paint(*pass);
}
