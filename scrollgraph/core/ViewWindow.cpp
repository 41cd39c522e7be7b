// SPDX-License-Identifier: MIT
// ViewWindow: hosts rely on the order of its comparisons.
#include "scrollgraph/core/ViewWindow.h"

#include <algorithm>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kFollowAt = 0.9;   // share of the view's width to the left of the sample that it follows
constexpr double kRoomBehind = 0.1; // share of the view's width by which a range grows beyond a new sample
constexpr double kLineShare = 0.01; // share of the view's width that a line command or wheel notch moves
constexpr double kPageShare = 0.5;  // share of the view's width that a page command moves

// X units. A view that begins before this x ignores line commands and wheel notches to the left.
constexpr double kAtLeftEnd = 1.0;
// Share of the scroll range for each unit of the thumb's position: 1 / kBarRange. Hosts rely on the rounding
// of this literal.
constexpr double kPerBarUnit = 0.0008333333333333334;

int ToBarUnits(double share) {
    return ToCoordinate(share * ViewWindow::kBarRange);
}

} // namespace

int ViewWindow::BarPosition() const {
    return ToBarUnits((pos - min) / (max - min));
}

int ViewWindow::BarPage() const {
    return std::min(ToBarUnits(width / (max - min)), kLargestPage);
}

void ViewWindow::Rewind() {
    pos = 0;
    max = kInitialMax;
}

void ViewWindow::Follow(double xLast) {
    if (xLast > pos + kFollowAt * width)
        pos = xLast - kFollowAt * width;
}

void ViewWindow::Normalize() {
    if (pos < min)
        pos = min;
    if (pos + width > max)
        max = pos + width;
}

ViewWindow::Arrival ViewWindow::Arrive(bool any, double xLast, double xNext) {
    Arrival arrival{false, false};
    if (any && xLast >= pos && xLast <= pos + width && xNext > pos + kFollowAt * width) {
        pos = xNext - kFollowAt * width;
        arrival = {true, true};
    } else if (xNext > max && xNext > width) {
        max = xNext + kRoomBehind * width;
        arrival.changed = true;
    } else if (xNext < min) {
        min = xNext;
        arrival.changed = true;
    }
    return arrival;
}

void ViewWindow::Clamp() {
    // Where the range is narrower than the view, the range's left end decides.
    if (pos > max - width)
        pos = max - width;
    if (pos < min)
        pos = min;
}

bool ViewWindow::Step(ScrollStep step, unsigned thumb) {
    switch (step) {
    case ScrollStep::LineLeft:
        if (pos < kAtLeftEnd)
            return false;
        pos -= kLineShare * width;
        break;
    case ScrollStep::LineRight:
        pos += kLineShare * width;
        break;
    case ScrollStep::PageLeft:
        pos = std::max(pos - kPageShare * width, 0.0);
        break;
    case ScrollStep::PageRight:
        pos += kPageShare * width;
        break;
    case ScrollStep::ThumbTo:
        pos = (max - min) * (thumb * kPerBarUnit) + min;
        break;
    }
    Clamp();
    return true;
}

bool ViewWindow::Wheel(int delta) {
    if (delta >= 0 && pos < kAtLeftEnd)
        return false;
    const double before = pos;
    pos += (delta < 0 ? kLineShare : -kLineShare) * width;
    Clamp();
    return pos != before;
}

} // namespace kavlix
