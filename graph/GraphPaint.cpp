#include <kavlix/Graph.h>

#include <algorithm>
#include <cstdint>

#include "graph/GraphPass.h"
#include "plot/Numeric.h"

using kavlix::GraphFont;
using kavlix::GraphFrame;
using kavlix::GraphPass;
using kavlix::ToCoordinate;

namespace {

constexpr int kMarginBelow = 20; // all lengths in pixels
constexpr int kMarginRight = 5;
constexpr int kTitleSize = 24;
constexpr int kTitleTop = 10;
constexpr int kCaptionSize = 16;
constexpr int kPlotTop = 40;
constexpr int kPieMargin = 5;
constexpr int kPieTop = 50;

/// The height, from `size` down in steps of 2, at which `length` characters of half that width fit into
/// `room`.
int FitSize(int size, int length, std::int64_t room) {
    while (size > 1 && std::int64_t{size / 2} * length > room)
        size -= 2;
    return std::max(size, 1);
}

/// Forgets the pass when the drawing ends, however it ends.
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
    DrawPicture(*pDC, frame);
}

void CGraph::DrawPicture(CDC& dc, const GraphFrame& frame) {
    GraphPass shared(dc, frame, {*seriesList, colorList, seriesSize});
    const PassGuard guard(pass, shared);
    kavlix::GraphCanvas& canvas = shared.canvas;

    canvas.SetFill(RGB(255, 255, 255));
    canvas.Rectangle({0, 0, canvas.Width(), canvas.Height()});
    canvas.HostTools();

    maxHeight = frame.height - kMarginBelow * frame.pixel;
    maxWidth = frame.width - kMarginRight * frame.pixel;
    DrawTitle(dc);
    ComputeLayout(dc);
    if (graphHasLegend) {
        constexpr int kLegendGap = 10;
        xAxisWidth = DrawLegend(&dc) - xApexPoint - kLegendGap * frame.pixel;
    }
    ChooseQuadrants();
    PlanPlot();
    if (graphType == GraphTypeBar) {
        if (graphQuadType == 2 || graphQuadType == 4)
            xApexPoint += xAxisWidth / 2;
        if (graphQuadType == 3 || graphQuadType == 4)
            yApexPoint -= yAxisHeight / 2;
    }
    if (!ShowsPie()) {
        axisLabelsCut = 0;
        DrawAxis(&dc);
    }
    DrawSeries(&dc);
    DrawLateLabels();
}

void CGraph::DrawTitle(CDC&) {
    kavlix::GraphCanvas& canvas = pass->canvas;
    const int pixel = static_cast<int>(canvas.Pixel());
    const int length = graphTitle.GetLength();
    const int size = FitSize(kTitleSize, length, maxWidth / pixel);
    const GraphFont font(canvas, size, 0, FW_BOLD);
    const auto width = static_cast<std::int64_t>(canvas.Character().width);
    const std::int64_t x = static_cast<std::int64_t>(canvas.Width()) / 2 - length / 2 * width;
    canvas.Text({static_cast<double>(x), canvas.Pixel() * kTitleTop}, graphTitle);
}

void CGraph::ComputeLayout(CDC&) {
    kavlix::GraphCanvas& canvas = pass->canvas;
    const int pixel = static_cast<int>(canvas.Pixel());
    if (ShowsPie()) {
        xApexPoint = kPieMargin * pixel;
        xAxisWidth = maxWidth - 2 * kPieMargin * pixel;
        yAxisHeight = maxHeight - kPieTop * pixel;
        yApexPoint = maxHeight - kPieMargin * pixel;
        return;
    }
    // The caption along the smaller dimension is fitted; the other one takes the same size.
    const bool wide = maxHeight < maxWidth;
    pass->captionFont = FitSize(kCaptionSize, (wide ? axisYLabel : axisXLabel).GetLength(),
                                (wide ? maxHeight : maxWidth) / pixel);
    kavlix::LabelSize character;
    {
        constexpr int kUpwards = 90;
        const GraphFont rotated(canvas, pass->captionFont, kUpwards, FW_BOLD);
        character = canvas.Character();
    }
    const auto characterWidth = static_cast<std::int64_t>(character.width);
    const auto characterHeight = static_cast<std::int64_t>(character.height);

    if (graphAlignment != 0 && graphType != GraphTypeScatter) {
        constexpr int kLeftOfPlot = 50;
        constexpr int kBelowPlot = 50;
        constexpr int kBelowTurnedLabels = 15;
        CString highest;
        highest.Format("%d", maxTick);
        const std::int64_t halfNumber = kavlix::FontSize(yTickFontSize) / 2;
        const std::int64_t halfLabel = kavlix::FontSize(xTickFontSize) / 2;
        xApexPoint = ToCoordinate((halfNumber * highest.GetLength() + kLeftOfPlot) * pixel);
        const std::int64_t below =
            xAxisAlign == 0 ? std::int64_t{kBelowPlot} : halfLabel * xAxisLabelLength + kBelowTurnedLabels;
        yApexPoint = ToCoordinate(maxHeight - below * pixel);
    } else {
        constexpr int kCaptionGap = 10;
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

void CGraph::ChooseQuadrants() {
    if (quadSetManually || graphType != GraphTypeBar)
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

void CGraph::DrawSeries(CDC* pDC) {
    struct Painter {
        int type;
        void (CGraph::*paint)(CDC*);
    };
    static constexpr Painter kPainters[] = {
        {GraphTypeBar, &CGraph::DrawBarSeries},
        {GraphTypeLine, &CGraph::DrawLineSeries},
        {GraphTypePie, &CGraph::DrawPieSeries},
        {GraphTypeScatter, &CGraph::DrawScatterSeries},
        {GraphTypeBoxWhisker, &CGraph::DrawBoxWhiskerSeries},
        {GraphTypeStackedBar, &CGraph::DrawStackedBarSeries},
        {GraphTypeXYLine, &CGraph::DrawXYLineSeries},
        {GraphType3DBar, &CGraph::Draw3DBarSeries},
        {GraphType3DLine, &CGraph::Draw3DLineSeries},
        {GraphType3DPie, &CGraph::Draw3DPieSeries},
        {GraphType3DStackedBar, &CGraph::Draw3DStackedBarSeries},
    };
    if (pass == nullptr || !pass->HasPlot())
        return;
    for (const Painter& painter : kPainters)
        if (painter.type == graphType)
            (this->*painter.paint)(pDC);
}

BOOL CGraph::ShowsPie() const {
    return graphType == GraphTypePie || graphType == GraphType3DPie;
}

BOOL CGraph::ShowsBySeries() const {
    const bool points =
        graphType == GraphTypeXYLine || graphType == GraphTypeScatter || graphType == GraphTypeBoxWhisker;
    return legendBySeries && points;
}
