// SPDX-License-Identifier: MIT
// The view of a scrolling graph: following, scrolling, and the state of the scroll bar.
#pragma once

namespace kavlix {

/// Commands of the scroll bar.
enum class ScrollStep { LineLeft, LineRight, PageLeft, PageRight, ThumbTo };

/// The view on the time line and the range that it can be scrolled over, in x units. Hosts rely on the
/// resulting positions, so the order of the comparisons and clamps matters.
struct ViewWindow {
    double pos = 0;   ///< left edge of the view, x units
    double max = 0;   ///< right end of the scroll range, x units
    double min = 0;   ///< left end of the scroll range, x units
    double width = 0; ///< width of the view, x units

    static constexpr double kInitialMax = 1200.0;      ///< right end of the range after Rewind, x units
    static constexpr int kBarRange = 1200;             ///< the scroll bar's range is 0 to this value
    static constexpr int kLargestPage = kBarRange - 3; ///< smaller than the bar's range: the thumb can move

    /// Position and page of the scroll bar, whose range is 0 to kBarRange.
    int BarPosition() const;
    int BarPage() const;

    /// Moves the view to 0 and gives the range its initial right end.
    void Rewind();
    /// If the newest sample, at `xLast`, lies beyond nine tenths of the view's width, moves the view to the
    /// right until the sample lies at nine tenths.
    void Follow(double xLast);
    /// If the view begins left of the range, moves it to the range's left end. If the view then ends right of
    /// the range, extends the range to the view's right edge.
    void Normalize();

    struct Arrival {
        bool followed; ///< the view moved with the samples
        bool changed;  ///< view or range changed, so the scroll bar must be updated once the sample is stored
    };
    /// Adapts view and range to a new sample at `xNext`. `any` tells whether there are samples already;
    /// `xLast` is the x of the newest of them.
    Arrival Arrive(bool any, double xLast, double xNext);

    /// Executes a command of the scroll bar; only ThumbTo reads `thumb` (0 to kBarRange). LineLeft does
    /// nothing and returns false when the view begins before x = 1; otherwise the result is true.
    bool Step(ScrollStep step, unsigned thumb);
    /// Moves the view by a hundredth of its width, to older samples when `delta` is not negative. True when
    /// the view moved.
    bool Wheel(int delta);

private:
    void Clamp();
};

} // namespace kavlix
