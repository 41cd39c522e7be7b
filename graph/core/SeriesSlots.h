#pragma once

namespace kavlix {

/// A stretch along an axis.
struct Span {
    double from = 0;
    double to = 0;
};

/// How series share an axis: one slot of equal width each, in order from `from` to `to`, which may lie below
/// `from`. In a slot the bars of the groups stand side by side, with half a bar's width free on either side.
struct SeriesSlots {
    double from = 0;
    double to = 0;
    int count = 0;

    double Width() const { return count > 0 ? (to - from) / count : 0; }
    double Middle(int slot) const { return from + (slot + 0.5) * Width(); }
    /// The bar of group `group`, of `groups`, in slot `slot`.
    Span Bar(int slot, int group, int groups) const {
        const double bar = Width() / (groups + 1.0);
        const double start = from + slot * Width() + (group + 0.5) * bar;
        return {start, start + bar};
    }
    /// The part of slot `slot` that a single bar takes: its middle, as a fraction of the slot's width.
    Span Single(int slot, double fraction) const {
        const double half = Width() * fraction / 2;
        return {Middle(slot) - half, Middle(slot) + half};
    }
};

} // namespace kavlix
