// SPDX-License-Identifier: MIT
// What the user does to a chart: the view with its history, and the gesture that is going on.
#pragma once

#include <kavlix/ChartDraw.h>

#include <array>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/core/ChartView.h"
#include "chartdraw/core/PointerGesture.h"
#include "gdi/OutOfMemory.h"

namespace kavlix {

using ViewRanges = std::array<ViewRange, ChartDrawState::kAxes>;

struct ChartInputState {
    UINT flags = CChartDraw::ViewFixed;
    ViewRanges shown;         ///< what CChartAxis::GetRange tells: the ranges of the last layout or change
    ChartView view;           ///< see RefreshView
    PointerGesture pointer;   ///< the press of a mouse button
    bool isRightDown = false; ///< a press of the right button began a box, even if the box has ended
    bool isTracked = false;   ///< whether WM_MOUSELEAVE will come
    ViewRange followedFrom;   ///< X before the data that the parent does not know of yet
    bool isFollowTimed = false;

    ViewRanges Ranges() const;
    /// Ends what belonged to a window that is gone. A window that is destroyed during a drag gets no message about
    /// its capture.
    void BeginWindow() {
        pointer.Cancel();
        view.End();
        isRightDown = isTracked = isFollowTimed = false;
    }
    /// The axes that the user can zoom and pan.
    AxisSet ZoomAxes() const { return Axes(CChartDraw::ViewZoomX, CChartDraw::ViewZoomY); }
    AxisSet PanAxes() const { return Axes(CChartDraw::ViewPanX, CChartDraw::ViewPanY); }
    /// The axes that the wheel over the plot and the keys + and - zoom.
    AxisSet PlainZoomAxes() const {
        const AxisSet axes = ZoomAxes();
        return (axes & kAxisX) != 0 && !Has(CChartDraw::ViewZoomBoth) ? kAxisX : axes;
    }
    bool Has(UINT flag) const { return (flags & flag) != 0; }

private:
    AxisSet Axes(UINT x, UINT y) const { return (Has(x) ? kAxisX : 0) | (Has(y) ? kAxesY : 0); }
};

/// Tells the view the kinds of the axes and the bounds of the data. Call it before the view is moved.
void RefreshView(ChartDrawState& state);

/// Who changes the view.
enum class ViewCause {
    User,   ///< repaints and sends CDN_VIEW; also for changes by follow mode and by linked charts
    Host,   ///< repaints
    Setter, ///< one of the members that do not repaint
};

/// Ends every change of the view: marks the layout as outdated, repaints and tells the parent as `cause` asks, and
/// gives a new X range to linked charts. `before` are the ranges before RefreshView; without a difference nothing
/// happens. False when the parent has destroyed the chart or its window.
bool ViewChanged(ChartDrawState& state, const ViewRanges& before, ViewCause cause);

/// Moves the view as one gesture: `move` gets the ChartView. Results as ViewChanged.
template <class Move> bool MoveView(ChartDrawState& state, GestureKind kind, ViewCause cause, Move move) {
    ChartView& view = state.input->view;
    const ViewRanges before = state.input->Ranges();
    RefreshView(state);
    view.Begin(kind, static_cast<std::uint32_t>(::GetMessageTime()));
    move(view);
    view.End();
    return ViewChanged(state, before, cause);
}

/// Shows the home ranges of all axes, for the user of those that the user may move. `layOut` lays the chart out, so that the new ranges are known when they are
/// told. Results as ViewChanged.
template <class LayOut> bool FitAll(ChartDrawState& state, ViewCause cause, LayOut layOut) {
    return MoveView(
        state, GestureKind::Command, cause,
        [&](ChartView& view) {
            const ChartInputState& input = *state.input;
            view.Fit(cause == ViewCause::User ? input.ZoomAxes() | input.PanAxes() : kAllAxes);
            state.Changed();
            WithinResources(layOut);
        });
}

/// Goes back to the view before; `layOut` as in FitAll. False when there is none.
template <class LayOut> bool GoBack(ChartDrawState& state, ViewCause cause, LayOut layOut) {
    const ViewRanges before = state.input->Ranges();
    RefreshView(state);
    if (state.input->view.IsInGesture() || !state.input->view.Back())
        return false;
    state.Changed();
    WithinResources(layOut);
    ViewChanged(state, before, cause);
    return true;
}

/// A position in client pixels along an axis, as a share of the visible range; NaN when there is no plot.
double ShareAt(const ChartDrawState& state, int axis, int position);
/// What `distance` pixels are as a share of the visible range; negative where values grow against the pixels.
double ShareOfPixels(const ChartDrawState& state, int axis, int distance);

/// Whether `chart` still exists and has the window that it had.
inline bool IsAlive(HWND window, const CChartDraw* chart) {
    return CWnd::FromHandlePermanent(window) == chart;
}

/// Ends the press of a mouse button and its drag. `keep` says whether what the drag moved stays; the box of an ended
/// drag never zooms. False when the parent has destroyed the chart or its window.
bool EndDrag(ChartDrawState& state, bool keep);

} // namespace kavlix
