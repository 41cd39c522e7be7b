// SPDX-License-Identifier: MIT
// The places of series and of their bars along an axis.
#pragma once

namespace kavlix {

/// A part of an axis, in positions. `to` may lie before `from`.
struct Span {
    double from = 0;
    double to = 0;
};

/// The slots that series have along an axis: equally wide, in order from `from` to `to`. `to` may be less
/// than `from`; widths are then negative. In a slot the bars of the groups stand side by side, with half a
/// bar's width free at each end.
struct SeriesSlots {
    double from = 0;
    double to = 0;
    int count = 0;

    double Width() const { return count > 0 ? (to - from) / count : 0; }
    double Middle(int slot) const { return from + (slot + 0.5) * Width(); }
    /// The place of group `group`'s bar in slot `slot`, when the slot holds the bars of `groups` groups.
    Span Bar(int slot, int group, int groups) const {
        const double bar = Width() / (groups + 1.0);
        const double start = from + slot * Width() + (group + 0.5) * bar;
        return {start, start + bar};
    }
    /// The middle part of slot `slot`. `fraction` is its width as a fraction of the slot's width.
    Span Single(int slot, double fraction) const {
        const double half = Width() * fraction / 2;
        return {Middle(slot) - half, Middle(slot) + half};
    }
};

} // namespace kavlix
