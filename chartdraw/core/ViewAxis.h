// SPDX-License-Identifier: MIT
// The visible range of one axis of a chart: where it lies, how far it can be moved, and how it moves.
#pragma once

#include "plot/ValueBounds.h"

namespace kavlix {

/// The values from `min` to `max`.
struct ViewRange {
    double min = 0;
    double max = 1;
};

inline bool operator==(const ViewRange& a, const ViewRange& b) {
    return a.min == b.min && a.max == b.max;
}
inline bool operator!=(const ViewRange& a, const ViewRange& b) {
    return !(a == b);
}

/// The visible range of an axis. It is the axis's home range, unless the user or the host has moved it.
///
/// A range is never empty, inverted, infinite or NaN. Its ends lie within 1e300; on a logarithmic axis they
/// lie between 1e-300 and 1e300. The width is at least 2e-12 of the larger end, because in a narrower range a
/// double has too few digits for pixels and ticks. On a time axis the width is at least 10 ns and 16 steps of a double,
/// 6 microseconds near today; for less, the host counts time from an origin of its own. A logarithmic range spans at least 1e-9 decades.
///
/// The user's zooming and panning end at the reach: all data and the home range, with half of their width as
/// room on either side. A range that lies outside of the reach already does not jump; it can only come
/// nearer. On a logarithmic axis, widths and moves are those of the logarithms.
///
/// A share is a part of the visible range: 0 at its lower end, 1 at its upper end. A move by a NaN, or by a
/// factor that is not positive, does nothing. The results of the functions that move the range say whether
/// it changed.
class ViewAxis {
public:
    /// A range in the units in which the axis is linear: values, or decimal logarithms.
    struct Span {
        double min = 0;
        double max = 1;
        double width = 1;
        double rest = 0;  ///< what rounding took from `min` in a row of moves
        ViewRange values; ///< the same range as values
    };
    /// What a history keeps of an axis.
    struct State {
        bool isMoved = false;
        Span span; ///< the visible range, also of an axis that is not moved
    };

    bool IsLogarithmic() const { return m_isLogarithmic; }
    /// Changes the kind of the axis. The axis then shows its home range.
    bool SetLogarithmic(bool isLogarithmic);
    /// Whether a linear axis shows time, in seconds; only the narrowest range depends on this.
    void SetTime(bool isTime) { m_isTime = isTime; }
    /// Sets the range of an axis that is not moved. An unusable range is replaced by a similar usable one.
    bool SetHome(const ViewRange& home);
    const ViewRange& Home() const { return m_home.values; }
    /// The bounds of all data; they only decide how far the axis can be moved.
    void SetData(const ValueBounds& data) { m_data = data; }
    const ValueBounds& Data() const { return m_data; }

    const ViewRange& Range() const { return Shown().values; }
    bool IsMoved() const { return m_state.isMoved; }
    /// Whether `value` lies in the visible range; the ends belong to it.
    bool Shows(double value) const { return value >= Range().min && value <= Range().max; }
    /// The share at which `value` lies. NaN for values without a position.
    double ShareOf(double value) const;
    /// The value that lies at `share`.
    double ValueAt(double share) const;

    /// Shows the home range.
    bool Fit();
    /// Whether Set shows exactly this range.
    bool CanShow(const ViewRange& range) const { return SpanOf(range).values == range; }
    /// Shows a range of the host's choice, also outside of the reach.
    bool Set(const ViewRange& range);
    /// Multiplies the width by `factor`. The value at `share` stays there, unless the reach ends.
    bool Zoom(double share, double factor);
    /// Moves the range by `share` of its width, and keeps the width to the last bit.
    bool Pan(double share);
    /// Shows the range between two shares, in any order.
    bool ZoomTo(double from, double to);
    /// Moves the range so that `value` lies at `share`, also outside of the reach.
    bool Place(double value, double share);

    State Save() const { return {IsMoved(), Shown()}; }
    /// Returns to a state of this axis; the kind must be the same as then. An axis that was not moved shows its
    /// present home range.
    bool Restore(const State& state);
    /// As Pan, from the range of `state` instead of the visible one. A `share` of 0 restores `state`.
    bool PanFrom(const State& state, double share);

private:
    const Span& Shown() const { return m_state.isMoved ? m_state.span : m_home; }
    double Limit() const;
    double NarrowestAt(double min, double width) const;
    double ToScale(double value) const;
    double FromScale(double position) const;
    Span SpanOf(const ViewRange& range) const;
    Span Reach() const;
    bool ShowWithin(const Span& reach, double min, double width, double rest);
    bool Show(const Span& span);

    bool m_isLogarithmic = false;
    bool m_isTime = false;
    Span m_home;
    ValueBounds m_data;
    State m_state;
};

} // namespace kavlix
