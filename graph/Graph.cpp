// SPDX-License-Identifier: MIT
// The model of CGraph: settings, and the lists of series, colours and legend texts.
#include <kavlix/Graph.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>
#include <utility>

#include "graph/OwningList.h"
#include "graph/core/PrintedBottom.h"

using namespace kavlix;

struct kavlix::GraphState {};

BEGIN_MESSAGE_MAP(CGraph, CStatic)
END_MESSAGE_MAP()

/// A constructor stores a list in its member only when nothing after that can throw: when a constructor
/// throws, the destructor does not run, and the list would leak.
CGraph::CGraph() {
    seriesList = new CObList(kListBlock);
}

CGraph::CGraph(int type) : graphType(type), quadSetManually(type != GraphTypeBar) {
    auto series = std::make_unique<CObList>(kListBlock);
    colorList = new CObList(kListBlock);
    seriesList = series.release();
}

CGraph::~CGraph() {
    RemoveAllData();
    delete seriesList;
    delete colorList;
}

void CGraph::SetXAxisLabel(CString label) {
    axisXLabel = label;
    xAxisLabelLength = label.GetLength();
}

void CGraph::SetYAxisLabel(CString label) {
    axisYLabel = label;
    yAxisLabelLength = label.GetLength();
}

void CGraph::SetTickLimits(int min, int max, int step) {
    if (step == 0)
        return;
    minTick = min;
    maxTick = max;
    tickSpace = step;
    const std::int64_t range = std::int64_t{max} - min;
    const std::int64_t whole = range / step;
    const std::int64_t intervals = whole + (whole * step < range ? 1 : 0);
    numTicks = static_cast<int>(std::clamp<std::int64_t>(intervals, INT_MIN, INT_MAX));
}

void CGraph::SetGraphQuadType(int type) {
    if (graphType != GraphTypeBar)
        return;
    constexpr int kLastQuadType = 4;
    if (type >= 1 && type <= kLastQuadType) {
        graphQuadType = type;
        quadSetManually = TRUE;
    } else {
        graphQuadType = 1;
    }
}

void CGraph::Set3DLineBase(int x, int y) {
    line3DXBase = x;
    line3DYBase = y;
}

void CGraph::SetMargins(int top, int bottom, int left, int right, int graphTop) {
    topMargin = top;
    bottomMargin = bottom;
    leftMargin = left;
    rightMargin = right;
    printLeft = left;
    printRight = right;
    printTop = graphTop;
    printBottom = PrintedBottom(graphTop, bottom);
}

void CGraph::SetColor(int group, COLORREF color) {
    auto record = std::make_unique<CGraphValue>(group, static_cast<int>(color));
    if (colorList == nullptr)
        colorList = new CObList(kListBlock);
    Append(*colorList, std::move(record));
}

void CGraph::SetLegend(int group, CString text) {
    if (graphType == GraphTypeScatter)
        return;
    graphLegend.Add(group, text);
    graphHasLegend = TRUE;
    legendMaxText = std::max(legendMaxText, text.GetLength());
}

void CGraph::AddSeries(CGraphSeries* series) {
    if (series == nullptr || seriesList->Find(series) != nullptr)
        return;
    Append(*seriesList, std::unique_ptr<CGraphSeries>(series));
    seriesSize = std::max(seriesSize, series->GetDataCount());
}

void CGraph::RemoveSeries(CString label) {
    for (POSITION next = seriesList->GetHeadPosition(); next != nullptr;) {
        const POSITION position = next;
        auto* const series = static_cast<CGraphSeries*>(seriesList->GetNext(next));
        if (series->seriesLabel == label) {
            seriesList->RemoveAt(position);
            delete series;
            return;
        }
    }
}

void CGraph::RemoveColor(int index) {
    if (colorList != nullptr)
        DeleteAt(*colorList, index);
}

void CGraph::RemoveLegend(int index) {
    graphLegend.RemoveAt(index);
}

void CGraph::RemoveAllSeries() {
    DeleteAll(*seriesList);
}

void CGraph::RemoveAllColors() {
    if (colorList != nullptr)
        DeleteAll(*colorList);
}

void CGraph::RemoveAllLegends() {
    graphLegend.RemoveAll();
}

void CGraph::RemoveAllData() {
    RemoveAllSeries();
    RemoveAllLegends();
    RemoveAllColors();
}

COLORREF CGraph::GetColor(int index) const {
    const POSITION position = colorList != nullptr && index >= 0 ? colorList->FindIndex(index) : nullptr;
    return position != nullptr
               ? static_cast<COLORREF>(static_cast<const CGraphValue*>(colorList->GetAt(position))->value)
               : RGB(0, 0, 0);
}

CGraphLegendText::~CGraphLegendText() = default;

CGraphLegendList::CGraphLegendList() : legends(new CObList(kListBlock)) {
}

CGraphLegendList::~CGraphLegendList() {
    RemoveAll();
    delete legends;
}

void CGraphLegendList::Add(int index, const CString& text) {
    Append(*legends, std::make_unique<CGraphLegendText>(index, text));
    legendMaxLength = std::max(legendMaxLength, text.GetLength());
}

CString CGraphLegendList::TextAt(int position) const {
    const POSITION place = position >= 0 ? legends->FindIndex(position) : nullptr;
    return place != nullptr ? static_cast<const CGraphLegendText*>(legends->GetAt(place))->legendText
                            : CString();
}

void CGraphLegendList::RemoveAt(int position) {
    DeleteAt(*legends, position);
}

void CGraphLegendList::RemoveAll() {
    DeleteAll(*legends);
}
