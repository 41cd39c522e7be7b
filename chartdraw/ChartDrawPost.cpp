// SPDX-License-Identifier: MIT
// CChartDraw: points that other threads post. PostQueue says when the chart's thread is woken.
#include <kavlix/ChartDraw.h>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartPost.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

const UINT kavlix::g_postedMessage = ::RegisterWindowMessage(_T("Kavlix.CChartDraw.PostedData"));

namespace {

/// Ends a pause. `timer` is the address of the chart's ChartPostState.
void CALLBACK OnPauseTimer(HWND window, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(window, timer);
    ChartDrawState* const state = ChartDrawState::Of(window);
    // Another chart can have the window of the one that set the timer.
    if (state == nullptr || reinterpret_cast<UINT_PTR>(state->posted.get()) != timer)
        return;
    state->posted->isPausing = false;
    state->posted->queue.Ready();
}

} // namespace

void ChartDrawState::OpenPosting() {
    const HWND window = chart.m_hWnd;
    posted->isPausing = false;
    posted->queue.Open([window] { return ::PostMessage(window, g_postedMessage, 0, 0) != 0; });
}

void ChartDrawState::ClosePosting() {
    posted->queue.Close();
}

void ChartDrawState::ReadyToTake() {
    constexpr UINT kPause = 10; // milliseconds
    if (posted->isPausing || posted->queue.ReadyIfEmpty())
        return;
    // Points have come since the last ones were taken, so there is a flow of them. A pause bounds the rate of paints.
    // A message at once would leave no time for the host's timers and idle work, which come after all other messages.
    posted->isPausing =
        ::SetTimer(chart.m_hWnd, reinterpret_cast<UINT_PTR>(posted.get()), kPause, &OnPauseTimer) != 0;
    if (!posted->isPausing)
        posted->queue.Ready();
}

void ChartDrawState::TakePosted() {
    const bool isPaintDue = ::GetUpdateRect(chart.m_hWnd, nullptr, FALSE) != FALSE;
    const std::vector<PostedPoint>& points = posted->queue.Take();
    const int count = static_cast<int>(points.size());
    int refused = 0;
    for (std::size_t i = 0; i < points.size();) {
        const int index = points[i].dataset;
        if (!chart.IsDataset(index)) {
            ++refused;
            ++i;
            continue;
        }
        ChartSeries& series = Dataset(index).points;
        const bool done = WithinResources([&] {
            for (; i < points.size() && points[i].dataset == index; ++i)
                series.Insert(points[i].x, points[i].y);
        });
        if (!done) {
            ++refused;
            ++i;
        }
        DataChanged();
    }
    posted->queue.Release();
    Changed();
    chart.Redraw();
    // A paint is still due when points come faster than they can be taken. It would never get its turn otherwise.
    if (isPaintDue)
        chart.UpdateWindow();
    else if (!::GetUpdateRect(chart.m_hWnd, nullptr,
                              FALSE)) // nothing of the window can be seen: no paint comes
        ReadyToTake();
    // WM_TIMER waits for an idle queue, which posted points may never leave.
    if (!TellFollowed() || count == 0)
        return;
    NMCHARTDRAW record = {};
    record.hdr.code = CDN_POSTED;
    record.nItem = count;
    record.nIndex = refused;
    bool alive = true;
    Notify(record, alive);
}

BOOL CChartDraw::PostData(int nDataset, double x, double y) {
    return PostData(nDataset, &x, &y, 1) == 1;
}

int CChartDraw::PostData(int nDataset, const double* pX, const double* pY, int nCount) {
    if (pX == nullptr || pY == nullptr)
        return 0;
    int queued = 0;
    WithinResources([&] { queued = m_State->posted->queue.Push(nDataset, pX, pY, nCount); });
    return queued;
}

void CChartDraw::SetPostCapacity(int nPoints) {
    m_State->posted->queue.SetCapacity(nPoints);
}

int CChartDraw::GetPostedCount() const {
    return m_State->posted->queue.Count();
}

LRESULT CChartDraw::OnPostedData(WPARAM, LPARAM) {
    m_State->TakePosted();
    return 0;
}
