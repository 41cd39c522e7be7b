// SPDX-License-Identifier: MIT
// The view of a chart: gestures, history and following. The arithmetic of one axis is ViewAxis's.
#include "chartdraw/core/ChartView.h"

#include <algorithm>
#include <cmath>

namespace kavlix {
namespace {

constexpr double kNewestShare = 0.9;     // the share beyond which new data moves the view
constexpr double kRounding = 1e-9;       // a difference of shares that no pixel shows
constexpr double kLastDigits = 1e-15;    // the digits of a double that a row of moves can change
constexpr std::uint32_t kRunPause = 500; // longest pause inside a run, milliseconds

/// Whether both ranges are the same but for rounding.
bool IsSame(const ViewAxis::Span& a, const ViewAxis::Span& b) {
    const double tolerance = kRounding * a.width + kLastDigits * std::max(std::abs(a.min), std::abs(a.max));
    return std::abs(a.min - b.min) + std::abs(a.max - b.max) <= tolerance;
}

} // namespace

bool ChartView::SetMode(ChartAxis axis, ScaleMode mode) {
    End();
    ViewAxis& changed = m_axes[Index(axis)];
    m_modes[Index(axis)] = mode;
    if (mode != ScaleMode::Follow)
        return changed.Fit();
    if (changed.IsMoved() ||
        !XData().IsEmpty()) // without data, all data to come is shown until the user zooms in
        changed.Set(changed.Range());
    m_isFollowing = true;
    return CatchUp();
}

bool ChartView::SetLogarithmic(ChartAxis axis, bool isLogarithmic) {
    if (Axis(axis).IsLogarithmic() == isLogarithmic)
        return false;
    End();
    m_history.Clear();
    m_canRun = false;
    return m_axes[Index(axis)].SetLogarithmic(isLogarithmic);
}

bool ChartView::SetData(ChartAxis axis, const ValueBounds& data) {
    m_axes[Index(axis)].SetData(data);
    if (axis != ChartAxis::X)
        return false;
    m_isDataNew = true;
    return !m_isInGesture && CatchUp();
}

/// Moves X to the newest data, if the view follows.
bool ChartView::CatchUp() {
    const ViewRange before = X().Range();
    m_isDataNew = false;
    if (IsFollowMode() && m_isFollowing && X().IsMoved() && !XData().IsEmpty()) {
        const double share = X().ShareOf(XData().max);
        const bool isFar = share < 0 || share > 1;
        if (isFar || share > kNewestShare + kRounding)
            X().Place(XData().max, kNewestShare);
        // Data that begins here or begins anew: do not show the time before it.
        if (isFar && X().ShareOf(XData().min) > 0)
            X().Place(XData().min, 0);
    }
    m_isFollowing = !X().IsMoved() || IsNewestVisible();
    return X().Range() != before;
}

ChartView::State ChartView::Save() const {
    State state;
    for (std::size_t i = 0; i < kAxes; ++i)
        state.axes[i] = m_axes[i].Save();
    state.isFollowing = m_isFollowing;
    return state;
}

bool ChartView::Restore(const State& state) {
    const State before = Save();
    for (std::size_t i = 0; i < kAxes; ++i)
        m_axes[i].Restore(state.axes[i]);
    m_isFollowing = state.isFollowing;
    CatchUp();
    for (std::size_t i = 0; i < kAxes; ++i)
        if (!IsSame(m_axes[i].Save().span, before.axes[i].span))
            return true;
    return false;
}

bool ChartView::IsAt(const State& state) const {
    for (std::size_t i = 0; i < kAxes; ++i) {
        const bool isMoved = m_axes[i].IsMoved();
        if (isMoved != state.axes[i].isMoved ||
            (isMoved && !IsSame(m_axes[i].Save().span, state.axes[i].span)))
            return false;
    }
    return true;
}

void ChartView::Begin(GestureKind kind, std::uint32_t time) {
    End();
    const bool canContinue = kind == GestureKind::Wheel || kind == GestureKind::Key;
    m_isRun = m_canRun && canContinue && kind == m_kind && time - m_time <= kRunPause;
    m_kind = kind;
    m_time = time;
    m_begin = Save();
    m_isInGesture = true;
}

void ChartView::End() {
    if (!m_isInGesture)
        return;
    m_isInGesture = false;
    const bool isChanged = !IsAt(m_begin);
    if (isChanged && !m_isRun)
        m_history.Add(m_begin);
    m_canRun = isChanged || m_isRun;
    if (X().Range() != m_begin.axes[0].span.values)
        m_isFollowing = !X().IsMoved() || IsNewestVisible();
    if (m_isDataNew)
        CatchUp();
}

bool ChartView::Cancel() {
    if (!m_isInGesture)
        return false;
    m_isInGesture = false;
    m_canRun = false;
    return Restore(m_begin);
}

/// Calls `move` with each of `axes` and with whether the axis is X. True if one of the calls returned true.
template <class Move> bool ChartView::MoveAxes(AxisSet axes, Move move) {
    bool isChanged = false;
    for (std::size_t i = 0; i < kAxes; ++i)
        if ((axes & (1U << i)) != 0)
            isChanged = move(m_axes[i], static_cast<ChartAxis>(i)) || isChanged;
    if ((axes & kAxisX) != 0 && !m_isInGesture)
        m_isFollowing = !X().IsMoved() || IsNewestVisible();
    return isChanged;
}

bool ChartView::Zoom(AxisSet axes, double shareX, double shareY, double factor) {
    return MoveAxes(
        axes,
        [&](ViewAxis& axis, ChartAxis which) {
            return axis.Zoom(which == ChartAxis::X ? shareX : PlaceOnY(which, shareY), factor);
        });
}

bool ChartView::Pan(double shareX, double shareY) {
    return MoveAxes((shareX != 0 ? kAxisX : 0) | (shareY != 0 ? kAxesY : 0),
                    [&](ViewAxis& axis, ChartAxis which) {
                        return axis.Pan(which == ChartAxis::X ? shareX : MoveOnY(which, shareY));
                    });
}

bool ChartView::PanFromBegin(double shareX, double shareY) {
    if (!m_isInGesture)
        return false;
    const auto* begin = m_begin.axes.data();
    return MoveAxes(kAllAxes, [&](ViewAxis& axis, ChartAxis which) {
        return axis.PanFrom(*begin++, which == ChartAxis::X ? shareX : MoveOnY(which, shareY));
    });
}

bool ChartView::ZoomTo(const ViewBox& box) {
    return MoveAxes(
        box.axes,
        [&](ViewAxis& axis, ChartAxis which) {
            return which == ChartAxis::X ? axis.ZoomTo(box.left, box.right)
                                         : axis.ZoomTo(PlaceOnY(which, box.low), PlaceOnY(which, box.high));
        });
}

bool ChartView::SetRange(ChartAxis axis, const ViewRange& range) {
    return MoveAxes(
        1U << Index(axis), [&](ViewAxis& moved, ChartAxis) { return moved.Set(range); });
}

bool ChartView::Fit(AxisSet axes) {
    return MoveAxes(
        axes, [](ViewAxis& axis, ChartAxis) { return axis.Fit(); });
}

bool ChartView::GoToFirst() {
    return !IsAllVisible() &&
           MoveAxes(
               kAxisX, [&](ViewAxis& axis, ChartAxis) { return axis.Place(XData().min, 0); });
}

bool ChartView::GoToNewest() {
    return !IsAllVisible() &&
           MoveAxes(
               kAxisX, [&](ViewAxis& axis,
                           ChartAxis) { return axis.Place(XData().max, IsFollowMode() ? kNewestShare : 1); });
}

bool ChartView::Back() {
    m_canRun = false;
    while (!m_history.IsEmpty())
        if (Restore(m_history.Take()))
            return true;
    return false;
}

} // namespace kavlix
