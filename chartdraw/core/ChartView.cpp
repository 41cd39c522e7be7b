// SPDX-License-Identifier: MIT
// The view of a chart: gestures, history and following. The arithmetic of one axis is ViewAxis's.
#include "chartdraw/core/ChartView.h"

#include <algorithm>

namespace kavlix {
namespace {

constexpr double kNewestShare = 0.9;     // the share beyond which new data moves the view
constexpr std::uint32_t kRunPause = 500; // longest pause inside a run, milliseconds

} // namespace

bool ChartView::SetAutomatic(ChartAxis axis, ScaleMode mode) {
    End();
    m_modes[Index(axis)] = mode;
    return m_axes[Index(axis)].Fit();
}

bool ChartView::SetFixed(ChartAxis axis, const ViewRange& range) {
    End();
    ViewAxis& changed = m_axes[Index(axis)];
    m_modes[Index(axis)] = ScaleMode::Fixed;
    const bool isHomeNew = changed.SetHome(range);
    return changed.Fit() || isHomeNew;
}

bool ChartView::SetFollow(double width) {
    End();
    const ViewRange before = X().Range();
    m_modes[0] = ScaleMode::Follow;
    m_followWidth = width > 0 ? width : 0;
    m_isFollowing = true;
    SetFollowHome();
    X().Fit();
    return X().Range() != before;
}

bool ChartView::SetLogarithmic(ChartAxis axis, bool isLogarithmic) {
    End();
    m_history.Clear();
    m_canRun = false;
    return m_axes[Index(axis)].SetLogarithmic(isLogarithmic);
}

bool ChartView::NeedsHome(ChartAxis axis) const {
    const ScaleMode mode = Mode(axis);
    return mode != ScaleMode::Fixed && (mode != ScaleMode::Follow || m_followWidth == 0);
}

bool ChartView::SetHome(ChartAxis axis, const ViewRange& home) {
    return NeedsHome(axis) && m_axes[Index(axis)].SetHome(home);
}

bool ChartView::SetData(ChartAxis axis, const ValueBounds& data) {
    m_axes[Index(axis)].SetData(data);
    if (axis != ChartAxis::X || !IsFollowMode())
        return false;
    m_isDataNew = true;
    return !m_isInGesture && CatchUp();
}

/// The home range of the mode Follow: begins at the first data until the newest data has crossed it.
void ChartView::SetFollowHome() {
    if (!IsFollowMode() || m_followWidth == 0)
        return;
    const double first = XData().IsEmpty() ? 0 : XData().min;
    const double newest = XData().IsEmpty() ? 0 : XData().max;
    const double min = std::max(first, newest - kNewestShare * m_followWidth);
    X().SetHome({min, min + m_followWidth});
}

/// Moves X to the newest data, if the view follows.
bool ChartView::CatchUp() {
    const ViewRange before = X().Range();
    m_isDataNew = false;
    SetFollowHome();
    if (IsFollowMode() && m_isFollowing && X().IsMoved() && !XData().IsEmpty()) {
        const double share = X().ShareOf(XData().max);
        if (share < 0 || share > kNewestShare)
            X().Place(XData().max, kNewestShare);
        // Data that begins anew: do not show the time before it.
        if (share < 0 && X().ShareOf(XData().min) > 0)
            X().Place(XData().min, 0);
    }
    m_isFollowing = IsNewestVisible();
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
        if (m_axes[i].Range() != before.axes[i].span.values)
            return true;
    return false;
}

bool ChartView::IsAt(const State& state) const {
    for (std::size_t i = 0; i < kAxes; ++i) {
        const ViewAxis& axis = m_axes[i];
        if (axis.IsMoved() != state.axes[i].isMoved ||
            (axis.IsMoved() && axis.Range() != state.axes[i].span.values))
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
        m_isFollowing = IsNewestVisible();
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
            isChanged = move(m_axes[i], i == 0) || isChanged;
    if ((axes & kAxisX) != 0 && !m_isInGesture)
        m_isFollowing = IsNewestVisible();
    return isChanged;
}

bool ChartView::Zoom(AxisSet axes, double shareX, double shareY, double factor) {
    return MoveAxes(
        axes, [&](ViewAxis& axis, bool isX) { return axis.Zoom(isX ? shareX : shareY, factor); });
}

bool ChartView::Pan(double shareX, double shareY) {
    return MoveAxes((shareX != 0 ? kAxisX : 0) | (shareY != 0 ? kAxesY : 0),
                    [&](ViewAxis& axis, bool isX) { return axis.Pan(isX ? shareX : shareY); });
}

bool ChartView::PanFromBegin(double shareX, double shareY) {
    if (!m_isInGesture)
        return false;
    const auto* begin = m_begin.axes.data();
    return MoveAxes(kAllAxes,
                    [&](ViewAxis& axis, bool isX) { return axis.PanFrom(*begin++, isX ? shareX : shareY); });
}

bool ChartView::ZoomTo(const ViewBox& box) {
    return MoveAxes(
        box.axes,
        [&](ViewAxis& axis, bool isX) {
            return isX ? axis.ZoomTo(box.left, box.right) : axis.ZoomTo(box.low, box.high);
        });
}

bool ChartView::SetRange(ChartAxis axis, const ViewRange& range) {
    return MoveAxes(
        1U << Index(axis), [&](ViewAxis& moved, bool) { return moved.Set(range); });
}

bool ChartView::Fit(AxisSet axes) {
    return MoveAxes(
        axes, [](ViewAxis& axis, bool) { return axis.Fit(); });
}

bool ChartView::GoToFirst() {
    return !IsAllVisible() && MoveAxes(
                                  kAxisX, [&](ViewAxis& axis, bool) { return axis.Place(XData().min, 0); });
}

bool ChartView::GoToNewest() {
    const bool isAtNewest = IsFollowMode() && m_followWidth > 0 && !X().IsMoved();
    return !isAtNewest && !IsAllVisible() && MoveAxes(kAxisX, [&](ViewAxis& axis, bool) {
        return axis.Place(XData().max, IsFollowMode() ? kNewestShare : 1);
    });
}

bool ChartView::Back() {
    m_canRun = false;
    while (!m_history.IsEmpty())
        if (Restore(m_history.Take()))
            return true;
    return false;
}

} // namespace kavlix
