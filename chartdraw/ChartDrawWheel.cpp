// SPDX-License-Identifier: MIT
// CChartDraw: the wheels of the mouse.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"

using namespace kavlix;

namespace {

constexpr double kWheelPan = 0.1; // what a notch of the wheel pans, as a share of the view

/// Pans along X by turns of the wheel to the right. Results as ViewChanged.
bool PanByWheel(ChartDrawState& state, int delta) {
    const double share = ShareOfPixels(state, ChartDrawState::kX, 1) < 0 ? -kWheelPan : kWheelPan;
    return MoveView(state, GestureKind::Wheel, ViewCause::User,
                    [&](ChartView& view) { view.Pan(share * delta / WHEEL_DELTA, 0); });
}

/// The axes that the wheel zooms with the pointer at `point`.
AxisSet WheelAxes(const ChartDrawState& state, CPoint point, bool isControl) {
    const CRect& plot = state.Plot();
    const bool isBeside = point.x < plot.left || point.x >= plot.right;
    const bool isAboveOrBelow = point.y < plot.top || point.y >= plot.bottom;
    const AxisSet axes = state.input->ZoomAxes();
    if (isControl || (isBeside && !isAboveOrBelow))
        return axes & kAxesY;
    return isAboveOrBelow && !isBeside ? axes & kAxisX : state.input->PlainZoomAxes();
}

/// Results as ViewChanged.
bool ZoomByWheel(ChartDrawState& state, AxisSet axes, CPoint point, int delta) {
    const double x = std::clamp(ShareAt(state, ChartDrawState::kX, point.x), 0.0, 1.0);
    const double y = std::clamp(ShareAt(state, ChartDrawState::kY, point.y), 0.0, 1.0);
    return MoveView(state, GestureKind::Wheel, ViewCause::User,
                    [&](ChartView& view) { view.Zoom(axes, x, y, WheelFactor(delta)); });
}

/// Moves the first cursor to the data that is under the resting pointer now.
template <class LayOut> void HoverAgain(ChartDrawState& state, CPoint point, LayOut layOut) {
    const CChartDraw* const chart = &state.chart;
    const HWND window = chart->m_hWnd;
    // A host's CalcDatas can change linked views, whose parents can destroy this chart.
    if (state.cursor.GetMode() != CChartCursor::Off && WithinResources(layOut) && IsAlive(window, chart))
        state.HoverCursor(&point);
}

} // namespace

BOOL CChartDraw::OnMouseWheel(UINT nFlags, short zDelta, CPoint point) {
    const ChartInputState& input = *m_State->input;
    ScreenToClient(&point);
    const bool isPan = (nFlags & MK_SHIFT) != 0;
    const AxisSet axes = isPan ? 0 : WheelAxes(*m_State, point, (nFlags & MK_CONTROL) != 0);
    if (!m_rectChart.PtInRect(point) || (isPan ? !input.Has(ViewPanX) : axes == 0))
        return static_cast<BOOL>(Default());
    if (!input.pointer.IsPressed() &&
        (isPan ? PanByWheel(*m_State, -zDelta) : ZoomByWheel(*m_State, axes, point, zDelta)))
        HoverAgain(*m_State, point, [this] { CalcDatas(); });
    return TRUE;
}

LRESULT CChartDraw::OnMouseHWheel(WPARAM wParam, LPARAM lParam) {
    const ChartInputState& input = *m_State->input;
    if (!input.Has(ViewPanX))
        return Default();
    CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    ScreenToClient(&point);
    if (!input.pointer.IsPressed() && PanByWheel(*m_State, GET_WHEEL_DELTA_WPARAM(wParam)))
        HoverAgain(*m_State, point, [this] { CalcDatas(); });
    return 0;
}
