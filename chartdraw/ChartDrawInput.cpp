// SPDX-License-Identifier: MIT
// CChartDraw: the buttons and the moves of the mouse.
#include <kavlix/ChartDraw.h>

#include <cmath>
#include <limits>
#include <utility>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"
#include "gdi/ShapeConversion.h"

using namespace kavlix;

namespace {

DragBox BoxOf(const ChartDrawState& state) {
    const PointerGesture& pointer = state.input->pointer;
    return BoxBetween(ToRect(state.Plot()), pointer.Start(), pointer.Last(), state.input->ZoomAxes(),
                      ::GetSystemMetrics(SM_CXDRAG));
}

/// Pans from the view at the beginning of the drag. Results as ViewChanged.
bool PanToPointer(ChartDrawState& state) {
    ChartInputState& input = *state.input;
    const Point start = input.pointer.Start(), last = input.pointer.Last();
    const AxisSet axes = input.PanAxes();
    const double x = ShareOfPixels(state, ChartDrawState::kX, start.x - last.x);
    const double y = ShareOfPixels(state, ChartDrawState::kY, start.y - last.y);
    const ViewRanges before = input.Ranges();
    RefreshView(state);
    // Y axes that are fitted to what is in view stay fitted.
    const bool isYFitted =
        input.view.Mode(ChartAxis::Y) == ScaleMode::Visible && !input.view.Axis(ChartAxis::Y).IsMoved();
    input.view.PanFromBegin((axes & kAxisX) != 0 ? x : 0, (axes & kAxesY) != 0 && !isYFitted ? y : 0);
    return ViewChanged(state, before, ViewCause::User);
}

void ShowDragCursor(DragPurpose purpose) {
    ::SetCursor(::LoadCursor(nullptr, purpose == DragPurpose::Pan ? IDC_SIZEALL : IDC_CROSS));
}

/// Takes a step of the pressed pointer. False when the parent has destroyed the chart or its window.
bool TakeStep(ChartDrawState& state, PointerGesture::Step step) {
    if (step != PointerGesture::Step::Begin && step != PointerGesture::Step::Drag)
        return true;
    ChartInputState& input = *state.input;
    const bool begins = step == PointerGesture::Step::Begin;
    const DragPurpose purpose = input.pointer.Purpose();
    // While the window has the capture, Windows sends no WM_SETCURSOR.
    if (begins && (purpose == DragPurpose::Pan || purpose == DragPurpose::Box))
        ShowDragCursor(purpose);
    switch (purpose) {
    case DragPurpose::Pan:
        if (begins)
            input.view.Begin(GestureKind::Drag, static_cast<std::uint32_t>(::GetMessageTime()));
        return PanToPointer(state);
    case DragPurpose::Box:
        state.chart.Redraw();
        return true;
    case DragPurpose::Object: {
        CChartDraw* const chart = &state.chart;
        const HWND window = chart->m_hWnd;
        const Point last = input.pointer.Last();
        state.MoveReference(CPoint(last.x, last.y));
        return IsAlive(window, chart);
    }
    case DragPurpose::None:
        break;
    }
    return true;
}

/// Begins a press and captures the mouse. False when that destroyed the chart or its window.
bool Press(ChartDrawState& state, MouseButton button, CPoint point, DragPurpose purpose) {
    CChartDraw* const chart = &state.chart;
    const HWND window = chart->m_hWnd;
    state.input->pointer.Press(button, ToPoint(point), purpose, ::GetSystemMetrics(SM_CXDRAG),
                               ::GetSystemMetrics(SM_CYDRAG));
    // SetCapture sends WM_CAPTURECHANGED to the window that had the capture.
    ::SetCapture(window);
    return IsAlive(window, chart);
}

/// The part of the chart that a press of the left button is for.
enum class Part { None, Line, Legend, Cursor };

/// Hands a press to the reference lines, to the legend and, with Ctrl, to the second cursor. The caller checks
/// whether the chart still exists.
Part PressPart(ChartDrawState& state, CPoint point) {
    if (state.PressReference(point)) {
        Press(state, MouseButton::Left, point, DragPurpose::Object);
        return Part::Line;
    }
    if (state.PressLegend(point))
        return Part::Legend;
    return ::GetKeyState(VK_CONTROL) < 0 && state.PinCursor() ? Part::Cursor : Part::None;
}

/// Takes the release of a button: ends the drag and zooms to the box. The result is the pointer's step; None also when
/// the parent has destroyed the chart or its window.
PointerGesture::Step Release(ChartDrawState& state, MouseButton button, CPoint point) {
    ChartInputState& input = *state.input;
    PointerGesture& pointer = input.pointer;
    if (!pointer.IsPressed(button) || !TakeStep(state, pointer.Move(ToPoint(point))) ||
        !pointer.IsPressed(button)) // what the parent did meanwhile may have ended the press
        return PointerGesture::Step::None;
    const DragBox box = pointer.IsDragging(DragPurpose::Box) ? BoxOf(state) : DragBox();
    const bool isDrag = pointer.IsDragging();
    if (!EndDrag(state, true))
        return PointerGesture::Step::None;
    if (box.axes != 0) {
        ViewBox zoomed;
        zoomed.axes = box.axes;
        zoomed.left = ShareAt(state, ChartDrawState::kX, box.area.left);
        zoomed.right = ShareAt(state, ChartDrawState::kX, box.area.right - 1);
        zoomed.low = ShareAt(state, ChartDrawState::kY, box.area.bottom - 1);
        zoomed.high = ShareAt(state, ChartDrawState::kY, box.area.top);
        if (!MoveView(state, GestureKind::Command, ViewCause::User,
                      [&](ChartView& view) { view.ZoomTo(zoomed); }))
            return PointerGesture::Step::None;
    }
    return isDrag ? PointerGesture::Step::Drop : PointerGesture::Step::Click;
}

} // namespace

double kavlix::ShareAt(const ChartDrawState& state, int axis, int position) {
    return ShareOfPixels(state, axis, position - state.Map(axis).Linear().Edge());
}

double kavlix::ShareOfPixels(const ChartDrawState& state, int axis, int distance) {
    const LinearMap map = state.Map(axis).Linear();
    const double extent = std::round(map.Slope() * map.Range());
    return extent != 0 ? distance / extent : std::numeric_limits<double>::quiet_NaN();
}

bool kavlix::EndDrag(ChartDrawState& state, bool keep) {
    CChartDraw* const chart = &state.chart;
    const HWND window = chart->m_hWnd;
    ChartInputState& input = *state.input;
    if (!input.pointer.IsPressed())
        return true;
    const DragPurpose purpose = input.pointer.Purpose();
    const bool isDrag = input.pointer.Cancel();
    if (::GetCapture() == window)
        ::ReleaseCapture(); // OnCaptureChanged finds no press
    if (purpose == DragPurpose::Object) {
        state.ReleaseReference(keep);
        return IsAlive(window, chart);
    }
    if (!isDrag)
        return true;
    if (purpose == DragPurpose::Box)
        chart->Redraw();
    if (purpose != DragPurpose::Pan)
        return true;
    const ViewRanges before = input.Ranges();
    keep ? input.view.End() : static_cast<void>(input.view.Cancel());
    return ViewChanged(state, before, ViewCause::User);
}

void ChartDrawState::DrawZoomBox(CDC& dc) {
    if (!input->pointer.IsDragging(DragPurpose::Box))
        return;
    const DragBox box = BoxOf(*this);
    CRect area = ToCRect(box.area);
    // The inner frame keeps the outer one visible on lines of its colour.
    for (const COLORREF color : {chart.m_AxisColor, chart.m_BkColor}) {
        CBrush brush;
        if (box.axes != 0 && brush.CreateSolidBrush(color))
            dc.FrameRect(&area, &brush);
        area.DeflateRect(1, 1);
    }
}

void CChartDraw::OnLButtonDown(UINT nFlags, CPoint point) {
    const HWND window = m_hWnd;
    if (m_State->input->pointer.IsPressed())
        return;
    const Part part = PressPart(*m_State, point);
    if (!IsAlive(window, this))
        return;
    const ChartInputState& input = *m_State->input;
    const bool isBox = (nFlags & MK_SHIFT) != 0 && input.ZoomAxes() != 0;
    if (part == Part::None && m_rectPlot.PtInRect(point) && (isBox || input.PanAxes() != 0) &&
        !Press(*m_State, MouseButton::Left, point, isBox ? DragPurpose::Box : DragPurpose::Pan))
        return;
    // The focus moves last: the window that loses it may destroy this one.
    if (input.Has(ViewKeys))
        ::SetFocus(window);
    else if (part == Part::None)
        Default();
}

void CChartDraw::OnLButtonDblClk(UINT, CPoint point) {
    const HWND window = m_hWnd;
    const ChartInputState& input = *m_State->input;
    if (::GetKeyState(VK_CONTROL) < 0 && m_State->cursor.GetMode() != CChartCursor::Off)
        return; // the first click has placed the second cursor
    const Part part = input.pointer.IsPressed() ? Part::Legend : PressPart(*m_State, point);
    if (part != Part::None || !IsAlive(window, this))
        return;
    if (m_rectPlot.PtInRect(point) && (input.ZoomAxes() | input.PanAxes()) != 0)
        OnFit();
    else
        Default();
}

void CChartDraw::OnMouseMove(UINT, CPoint point) {
    const HWND window = m_hWnd;
    ChartInputState& input = *m_State->input;
    if (input.pointer.IsPressed()) {
        TakeStep(*m_State, input.pointer.Move(ToPoint(point)));
        return;
    }
    if (!input.isTracked) {
        TRACKMOUSEEVENT event = {sizeof event, TME_LEAVE, window, 0};
        input.isTracked = ::TrackMouseEvent(&event) != FALSE;
    }
    m_State->HoverLegend(&point);
    if (!IsAlive(window, this))
        return;
    m_State->HoverCursor(&point);
    if (IsAlive(window, this))
        Default();
}

LRESULT CChartDraw::OnMouseLeave(WPARAM, LPARAM) {
    const HWND window = m_hWnd;
    m_State->input->isTracked = false;
    m_State->HoverLegend(nullptr);
    if (IsAlive(window, this))
        m_State->HoverCursor(nullptr);
    return IsAlive(window, this) ? Default() : 0;
}

void CChartDraw::OnLButtonUp(UINT, CPoint point) {
    const HWND window = m_hWnd;
    Release(*m_State, MouseButton::Left, point);
    if (IsAlive(window, this))
        Default();
}

void CChartDraw::OnRButtonDown(UINT, CPoint point) {
    const HWND window = m_hWnd;
    ChartInputState& input = *m_State->input;
    if (input.pointer.IsPressed())
        return;
    const bool isBox = input.ZoomAxes() != 0 && m_rectPlot.PtInRect(point);
    input.isRightDown = isBox;
    if (isBox && !Press(*m_State, MouseButton::Right, point, DragPurpose::Box))
        return;
    if (input.Has(ViewKeys))
        ::SetFocus(window);
    else if (!isBox)
        Default();
}

void CChartDraw::OnRButtonUp(UINT, CPoint point) {
    const HWND window = m_hWnd;
    ChartInputState& input = *m_State->input;
    if (input.pointer.IsPressed(MouseButton::Left))
        return;
    const bool isBox = std::exchange(input.isRightDown, false);
    const bool isClick = Release(*m_State, MouseButton::Right, point) == PointerGesture::Step::Click;
    if ((isClick || !isBox) && IsAlive(window, this))
        Default(); // sends WM_CONTEXTMENU
}

void CChartDraw::OnCaptureChanged(CWnd* pWnd) {
    // SetCapture on this window also sends the message, with this window as the new owner.
    if (pWnd == this || EndDrag(*m_State, true))
        Default();
}

BOOL CChartDraw::OnSetCursor(CWnd*, UINT nHitTest, UINT) {
    const PointerGesture& pointer = m_State->input->pointer;
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    if (pointer.IsDragging(DragPurpose::Pan) || pointer.IsDragging(DragPurpose::Box))
        ShowDragCursor(pointer.Purpose());
    else if (nHitTest == HTCLIENT && m_State->references.HitTest(point) >= 0)
        ::SetCursor(::LoadCursor(nullptr, IDC_HAND));
    else
        return static_cast<BOOL>(Default());
    return TRUE;
}
