// SPDX-License-Identifier: MIT
// The view of a chart: the visible ranges of its axes, what moves them, and the way back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "chartdraw/core/ViewAxis.h"
#include "chartdraw/core/ViewHistory.h"

namespace kavlix {

enum class ChartAxis { X, Y, Y2 };

/// A set of axes, one bit for each.
using AxisSet = unsigned;
constexpr AxisSet kAxisX = 1;
constexpr AxisSet kAxesY = 6; ///< both Y axes; the user always moves them together
constexpr AxisSet kAllAxes = kAxisX | kAxesY;

/// The home range of an axis.
enum class ScaleMode {
    Whole,   ///< all data
    Visible, ///< Y axes: the data inside the visible range of X
    Follow,  ///< X: all data; the range of an axis that is moved follows the newest data
};

/// What the user does. A run of wheel turns, or of keys, with pauses of at most half a second counts as one
/// gesture.
enum class GestureKind { Drag, Command, Wheel, Key };

/// A part of the plot that becomes the view, in shares of the visible ranges.
struct ViewBox {
    AxisSet axes = kAllAxes; ///< the axes of which the box gives a range
    double left = 0;
    double right = 1;
    double low = 0;
    double high = 1;
};

/// The visible ranges of X, Y and Y2. ViewAxis says what a range can be, how far it moves, and what a share is.
///
/// Begin and End frame what the user does; End adds the view before it to the history, if the view changed.
/// Moves outside of a gesture are the host's and leave no entry. Times are in milliseconds of any clock that
/// wraps at 2^32.
///
/// In the mode Follow the newest data, that with the largest X, moves the view. While it is visible, new data moves
/// the view so that the newest data lies at nine tenths of the width at most. When the user has moved it out of sight,
/// the view stays; when it is brought into sight, the view follows again. During a gesture the view does not follow.
///
/// The results of the functions that move the view say whether a visible range changed.
class ChartView {
public:
    const ViewAxis& Axis(ChartAxis axis) const { return m_axes[Index(axis)]; }
    ScaleMode Mode(ChartAxis axis) const { return m_modes[Index(axis)]; }

    /// Sets the mode; a gesture ends. The axis shows its home range, but in the mode Follow it keeps its width and
    /// goes to the newest data, if there is any or the axis is moved.
    bool SetMode(ChartAxis axis, ScaleMode mode);
    /// Another kind of an axis ends a gesture, shows the axis's home range and forgets the history.
    bool SetLogarithmic(ChartAxis axis, bool isLogarithmic);
    void SetTime(ChartAxis axis, bool isTime) {
        m_axes[Index(axis)].SetTime(isTime);
    } ///< as ViewAxis::SetTime
    /// Sets the range of an axis that is not moved, as the caller found it.
    bool SetHome(ChartAxis axis, const ViewRange& home) { return m_axes[Index(axis)].SetHome(home); }
    /// Sets the bounds of all data of an axis, on a logarithmic axis of the positive data. The view follows new
    /// bounds of X.
    bool SetData(ChartAxis axis, const ValueBounds& data);

    /// Whether the second Y axis grows the other way than the first one. Shares of Y are those of the first one.
    void SetY2Mirrored(bool isMirrored) { m_isY2Mirrored = isMirrored; }

    // ---- Gestures ----

    /// Begins a gesture; ends the one before it.
    void Begin(GestureKind kind, std::uint32_t time);
    void End();
    /// Ends the gesture and returns to the view before it.
    bool Cancel();
    bool IsInGesture() const { return m_isInGesture; }

    // ---- Moves ----

    /// Multiplies the widths of `axes` by `factor` around the place with these shares.
    bool Zoom(AxisSet axes, double shareX, double shareY, double factor);
    /// Moves the ranges by shares of their widths, 0 for an axis that stays.
    bool Pan(double shareX, double shareY);
    /// As Pan, from the view at the beginning of the gesture.
    bool PanFromBegin(double shareX, double shareY);
    bool ZoomTo(const ViewBox& box);
    bool SetRange(ChartAxis axis, const ViewRange& range);
    /// Shows the home ranges of `axes`.
    bool Fit(AxisSet axes);
    /// Moves X so that the first data lies at its lower end. Nothing if all data is visible in X.
    bool GoToFirst();
    /// Moves X so that the newest data lies at its upper end, or where the view follows it.
    bool GoToNewest();
    /// Returns to the newest entry of the history that differs from the view. False when there is none.
    /// Not to be called during a gesture.
    bool Back();
    bool CanGoBack() const { return !m_history.IsEmpty(); }

private:
    static constexpr std::size_t kAxes = 3;
    struct State {
        std::array<ViewAxis::State, kAxes> axes;
        bool isFollowing = true;
    };

    static constexpr std::size_t Index(ChartAxis axis) { return static_cast<std::size_t>(axis); }
    ViewAxis& X() { return m_axes[0]; }
    bool IsFollowMode() const { return m_modes[0] == ScaleMode::Follow; }
    const ValueBounds& XData() const { return m_axes[0].Data(); }
    bool IsNewestVisible() const { return XData().IsEmpty() || m_axes[0].Shows(XData().max); }
    bool IsAllVisible() const {
        return IsNewestVisible() && (XData().IsEmpty() || m_axes[0].Shows(XData().min));
    }
    bool IsMirrored(ChartAxis axis) const { return axis == ChartAxis::Y2 && m_isY2Mirrored; }
    double PlaceOnY(ChartAxis axis, double share) const { return IsMirrored(axis) ? 1 - share : share; }
    double MoveOnY(ChartAxis axis, double share) const { return IsMirrored(axis) ? -share : share; }
    State Save() const;
    bool Restore(const State& state);
    bool IsAt(const State& state) const;
    bool CatchUp();
    template <class Move> bool MoveAxes(AxisSet axes, Move move);

    std::array<ViewAxis, kAxes> m_axes;
    std::array<ScaleMode, kAxes> m_modes{};
    bool m_isY2Mirrored = false;
    bool m_isFollowing = true; ///< whether new data moves X, in the mode Follow

    bool m_isInGesture = false;
    bool m_isDataNew = false; ///< whether data has come during the gesture
    State m_begin;            ///< the view at the beginning of the gesture
    GestureKind m_kind = GestureKind::Command;
    std::uint32_t m_time = 0; ///< when the latest gesture began
    bool m_isRun = false;     ///< whether the gesture continues the one that the newest entry belongs to
    bool m_canRun = false;    ///< whether the next gesture can continue the latest one
    ViewHistory<State, 64> m_history;
};

} // namespace kavlix
