#pragma once

namespace kavlix {

/// How a scroll bar or wheel moves the view.
enum class ScrollStep { LineLeft, LineRight, PageLeft, PageRight, ThumbTo };

/// The part of the time line that is in view, and the range it can be scrolled over, in x units. All
/// arithmetic is the scrolling graph's own, down to the order of the clamps: hosts rely on where views land.
struct ViewWindow {
    double pos = 0;   ///< left edge of the view
    double max = 0;   ///< right end of the scroll range
    double min = 0;   ///< left end of the scroll range
    double width = 0; ///< of the view

    /// What SetHorzRange and everything that rewinds sets as the right end, and the scroll bar's own range.
    static constexpr double kInitialMax = 1200.0;
    static constexpr int kBarRange = 1200;
    /// The thumb never fills the whole bar.
    static constexpr int kLargestPage = kBarRange - 3;

    /// Position and page of the scroll bar, whose range is 0 to kBarRange.
    int BarPosition() const;
    int BarPage() const;

    /// Back to the left end, before the newest sample is followed again.
    void Rewind();
    /// Moves the view so that the newest sample, at `xLast`, stands at most at nine tenths of it.
    void Follow(double xLast);
    /// Moves the view into the range at the left end, and the range's right end out to the view's.
    void Normalize();

    /// What one more sample does to the view: `xLast` is the place of the newest one so far, `xNext` of the
    /// one that comes. `any` tells whether there is a newest one.
    struct Arrival {
        bool followed; ///< the view moved with the samples
        bool changed;  ///< view or range changed: the scroll bar must be told once the sample is stored
    };
    Arrival Arrive(bool any, double xLast, double xNext);

    /// A step of the scroll bar; `thumb` (0 to kBarRange) counts for ThumbTo only. False when nothing is to
    /// be done at all: a line to the left at the left end.
    bool Step(ScrollStep step, unsigned thumb);
    /// One notch of the wheel, to older samples when `delta` is not negative. True when the view moved.
    bool Wheel(int delta);

private:
    void Clamp();
};

} // namespace kavlix
