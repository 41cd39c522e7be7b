// SPDX-License-Identifier: MIT
// ChartDrawState: lifetime, and what all parts use.
#include "chartdraw/ChartDrawState.h"

#include "chartdraw/ChartCursorState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartInputState.h"
#include "chartdraw/ChartLegendState.h"
#include "chartdraw/ChartLink.h"
#include "chartdraw/ChartPost.h"
#include "chartdraw/KeptDatasets.h"

using namespace kavlix;

ChartDrawState::ChartDrawState(CChartDraw& chart)
    : chart(chart), xAxis(chart, kX), yAxis(chart, kY), y2Axis(chart, kY2), legend(chart), cursor(chart),
      references(chart), input(std::make_unique<ChartInputState>()),
      posted(std::make_unique<ChartPostState>()), kept(std::make_unique<KeptDatasets>()) {
}

ChartDrawState::~ChartDrawState() = default;

ChartDrawState* ChartDrawState::Of(HWND window) {
    const auto* const chart = dynamic_cast<CChartDraw*>(CWnd::FromHandlePermanent(window));
    return chart != nullptr ? chart->m_State.get() : nullptr;
}

CChartDraw::Dataset& ChartDrawState::Dataset(int nDataset) const {
    return *chart.m_Datasets[static_cast<std::size_t>(nDataset)];
}

void ChartDrawState::DatasetRemoved(int nDataset) {
    legend.m_State->DatasetRemoved(nDataset);
    for (ChartCursorState::Place& place : cursor.m_State->places)
        if (place.dataset == &Dataset(nDataset))
            place.dataset = nullptr; // a new dataset can get the same address
}

void ChartDrawState::DrawOverlay(CDC& dc) {
    DrawReferenceLines(dc);
    DrawLegend(dc);
    DrawCursors(dc);
    DrawZoomBox(dc);
}

LRESULT ChartDrawState::Notify(NMCHARTDRAW& record, bool& alive) {
    const HWND window = chart.m_hWnd;
    alive = window != nullptr;
    CWnd* const parent = alive ? chart.GetParent() : nullptr;
    if (parent == nullptr)
        return 0;
    record.hdr.hwndFrom = window;
    record.hdr.idFrom = static_cast<UINT_PTR>(chart.GetDlgCtrlID());
    const CChartDraw* const self = &chart;
    const LRESULT result =
        parent->SendMessage(WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
    alive = CWnd::FromHandlePermanent(window) == self;
    return result;
}

bool ChartDrawState::IsOwnerThread() const {
    return chart.m_hWnd == nullptr ||
           ::GetWindowThreadProcessId(chart.m_hWnd, nullptr) == ::GetCurrentThreadId();
}

CChartAxis& CChartDraw::GetXAxis() {
    return m_State->xAxis;
}

CChartAxis& CChartDraw::GetYAxis() {
    return m_State->yAxis;
}

CChartAxis& CChartDraw::GetY2Axis() {
    return m_State->y2Axis;
}

CChartLegend& CChartDraw::GetLegend() {
    return m_State->legend;
}

CChartCursor& CChartDraw::GetCursor() {
    return m_State->cursor;
}

CChartReferences& CChartDraw::GetReferences() {
    return m_State->references;
}
