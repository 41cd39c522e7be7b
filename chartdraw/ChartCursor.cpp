// SPDX-License-Identifier: MIT
// CChartCursor: properties, and what the mouse and keys do to the cursors.
#include <kavlix/ChartDraw.h>

#include <cmath>
#include <limits>

#include "chartdraw/AxisLayout.h"
#include "chartdraw/ChartCursorState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"

using namespace kavlix;

namespace {

/// The user has moved or hidden a cursor. False when the parent has destroyed the chart or its window.
bool TellCursor(ChartDrawState& state, int cursor, const CursorReading& reading) {
    state.chart.Redraw();
    state.ShareCursor(cursor);
    NMCHARTDRAW record = {};
    record.hdr.code = CDN_CURSOR;
    record.nIndex = reading.dataset;
    record.nItem = cursor;
    record.dValue = reading.IsValid() ? reading.x : std::numeric_limits<double>::quiet_NaN();
    bool alive = true;
    state.Notify(record, alive);
    return alive;
}

/// Pans the view to a value of the X axis that lies outside of it, a little farther than to the edge.
void PanTo(ChartDrawState& state, double x, bool tell) {
    constexpr int kBeyond = 10; // the part of the plot's width that is panned farther
    const CRect& plot = state.Plot();
    const AxisMap map = state.Map(ChartDrawState::kX);
    const double at = map.ExactPosition(x);
    const int margin = static_cast<int>(plot.Width()) / kBeyond;
    const double by = at < plot.left ? at - (static_cast<int>(plot.left) + margin)
                      : at > static_cast<int>(plot.right) - 1
                          ? at - (static_cast<int>(plot.right) - 1 - margin)
                          : 0;
    if (by == 0 || plot.IsRectEmpty())
        return;
    const AxisLayout& layout = state.Layout(ChartDrawState::kX);
    state.SetView(ChartDrawState::kX, map.Value(map.ExactPosition(layout.min) + by),
                  map.Value(map.ExactPosition(layout.max) + by), tell);
}

/// The sample `steps` samples away from another one, or the last one before the end; gaps do not count.
int StepFrom(const ChartSeries& points, int sample, int steps) {
    const int direction = steps < 0 ? -1 : 1;
    for (int i = sample + direction; steps != 0 && i >= 0 && i < points.Size(); i += direction)
        if (std::isfinite(points[i].x) && std::isfinite(points[i].y)) {
            sample = i;
            steps -= direction;
        }
    return sample;
}

} // namespace

CChartCursor::CChartCursor(CChartDraw& chart) : m_State(std::make_unique<ChartCursorState>(chart)) {
}

CChartCursor::~CChartCursor() = default;

void CChartCursor::SetMode(Mode mode) {
    for (int i = 0; mode == Off && i < ChartCursorState::kCursors; ++i)
        Hide(i);
    m_State->mode = mode;
}

CChartCursor::Mode CChartCursor::GetMode() const {
    return m_State->mode;
}

void CChartCursor::ShowReadout(BOOL bShow) {
    m_State->hasReadout = bShow != FALSE;
}

void CChartCursor::SetColors(COLORREF line, COLORREF text, COLORREF background, COLORREF border) {
    m_State->lineColor = line;
    m_State->textColor = text;
    m_State->background = background;
    m_State->border = border;
}

BOOL CChartCursor::SetPosition(int nCursor, double x) {
    if (m_State->mode == Off || nCursor < 0 || nCursor >= ChartCursorState::kCursors || !std::isfinite(x))
        return FALSE;
    ChartDrawState& state = *m_State->chart.m_State;
    const CursorReading reading = ChartCursorState::Nearest(state, x, m_State->places[nCursor].dataset);
    if (reading.IsValid() && m_State->Set(state, nCursor, reading))
        state.ShareCursor(nCursor);
    return reading.IsValid();
}

void CChartCursor::Hide(int nCursor) {
    if (!m_State->IsShown(nCursor))
        return;
    m_State->places[nCursor].isShown = false;
    m_State->chart.m_State->ShareCursor(nCursor);
}

BOOL CChartCursor::GetPosition(int nCursor, double& x) const {
    const CursorReading reading = m_State->Read(*m_State->chart.m_State, nCursor);
    if (reading.IsValid())
        x = reading.x;
    return reading.IsValid();
}

int CChartCursor::GetDataset(int nCursor) const {
    return m_State->Read(*m_State->chart.m_State, nCursor).dataset;
}

int CChartCursor::GetSample(int nCursor, int nDataset) const {
    const CChartDraw& chart = m_State->chart;
    const CursorReading own = m_State->Read(*chart.m_State, nCursor);
    return chart.IsDataset(nDataset) ? ChartCursorState::ReadAt(*chart.m_State, own, nDataset).sample : -1;
}

BOOL CChartCursor::MoveBySamples(int nCursor, int nSamples) {
    return m_State->chart.m_State->MoveCursor(nCursor, nSamples, false);
}

BOOL CChartCursor::GetStatistics(int nDataset, ChartStatistics& statistics) const {
    const ChartDrawState& state = *m_State->chart.m_State;
    const CursorReading first = m_State->Read(state, 0);
    const CursorReading second = m_State->Read(state, 1);
    if (!m_State->chart.IsDataset(nDataset) || !first.IsValid() || !second.IsValid())
        return FALSE;
    statistics = ChartCursorState::Statistics(state, first, second, nDataset);
    return TRUE;
}

bool ChartDrawState::MoveCursor(int nCursor, int nSamples, bool tell) {
    CursorReading reading = cursor.m_State->Read(*this, nCursor);
    if (!reading.IsValid())
        return false;
    const CChartDraw::Dataset& dataset = Dataset(reading.dataset);
    const int sample = StepFrom(dataset.points, reading.sample, nSamples);
    if (sample == reading.sample)
        return false;
    reading.sample = sample;
    reading.point = dataset.points[sample];
    reading.x = ToAxis(dataset, reading.point.x);
    // The user can leave the view only if the user may move it.
    const AxisLayout& layout = Layout(kX);
    if (tell && !input->Has(CChartDraw::ViewPanX) && !(reading.x >= layout.min && reading.x <= layout.max))
        return false;
    cursor.m_State->Set(*this, nCursor, reading);
    if (!tell) {
        ShareCursor(nCursor);
    } else {
        cursor.m_State->resting = cursor.m_State->pointer;
        if (!TellCursor(*this, nCursor, reading))
            return true;
    }
    PanTo(*this, reading.x, tell);
    return true;
}

void ChartDrawState::HoverCursor(const CPoint* pPoint) {
    ChartCursorState& state = *cursor.m_State;
    if (state.mode == CChartCursor::Off)
        return;
    if (pPoint != nullptr) {
        state.pointer = *pPoint;
        if (state.resting == *pPoint)
            return;
    }
    state.resting.reset();
    const bool isInside =
        pPoint != nullptr && Plot().PtInRect(*pPoint) && !legend.GetRect().PtInRect(*pPoint);
    const CursorReading reading = isInside ? state.Nearest(*this, *pPoint) : CursorReading();
    if (!state.Set(*this, 0, reading))
        return;
    TellCursor(*this, 0, reading);
}

bool ChartDrawState::StepCursor(int nSamples, int nDatasets) {
    ChartCursorState& state = *cursor.m_State;
    const int shown = state.IsShown(0) ? 0 : 1;
    if (nSamples != 0 && MoveCursor(shown, nSamples, true))
        return true;
    const CursorReading reading = state.Read(*this, shown);
    if (!reading.IsValid() || nDatasets == 0)
        return reading.IsValid();
    const int direction = nDatasets < 0 ? -1 : 1;
    for (int i = reading.dataset + direction; i >= 0 && i < DatasetCount(); i += direction) {
        const CursorReading other =
            Dataset(i).visible ? ChartCursorState::ReadAt(*this, reading, i) : CursorReading();
        if (!other.IsValid())
            continue;
        state.Set(*this, shown, other);
        state.resting = state.pointer;
        TellCursor(*this, shown, other);
        break;
    }
    return true;
}

bool ChartDrawState::PinCursor() {
    ChartCursorState& state = *cursor.m_State;
    const CursorReading first = state.Read(*this, 0);
    if (!first.IsValid())
        return false;
    const CursorReading second = state.Read(*this, 1);
    const bool isThere = second.dataset == first.dataset && second.sample == first.sample;
    const CursorReading pinned = isThere ? CursorReading() : first;
    state.Set(*this, 1, pinned);
    TellCursor(*this, 1, pinned);
    return true;
}
