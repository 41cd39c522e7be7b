#include "scrollgraph/core/ViewWindow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

namespace kavlix {

bool operator==(const ViewWindow& a, const ViewWindow& b) {
    return a.pos == b.pos && a.max == b.max && a.min == b.min && a.width == b.width;
}

std::ostream& operator<<(std::ostream& out, const ViewWindow& view) {
    return out << "pos " << view.pos << " max " << view.max << " min " << view.min << " width " << view.width;
}

namespace {

TEST(ViewWindowTest, ScrolledBackItStaysAndOnlyTheRangeGrows) {
    ViewWindow view{100, 5000, 0, 1200};
    ViewWindow::Arrival arrival = view.Arrive(true, 4880, 4900);
    EXPECT_FALSE(arrival.changed);
    EXPECT_EQ(view, (ViewWindow{100, 5000, 0, 1200}));
    arrival = view.Arrive(true, 4980, 5001);
    EXPECT_TRUE(arrival.changed);
    EXPECT_FALSE(arrival.followed);
    EXPECT_EQ(view, (ViewWindow{100, 5121, 0, 1200}));
    // At the view's very edges the newest sample is still in sight.
    for (const auto& [last, followed] : {std::pair(1300.0, true), {1300.5, false}, {99.5, false}}) {
        view = {100, 5000, 0, 1200};
        EXPECT_EQ(view.Arrive(true, last, 1320).followed, followed) << last;
    }
}

TEST(ViewWindowTest, TheFirstSampleAndTimesThatStepBackMoveOnlyTheMinimum) {
    ViewWindow view{0, 1200, 50, 1200};
    EXPECT_TRUE(view.Arrive(false, 0, 0).changed);
    EXPECT_EQ(view, (ViewWindow{0, 1200, 0, 1200}));
    EXPECT_TRUE(view.Arrive(true, 0, -40).changed);
    EXPECT_EQ(view.min, -40);
    // Beyond the range, but not beyond the view's width: the range stays.
    view = {0, 100, 0, 1200};
    EXPECT_FALSE(view.Arrive(true, 2000, 150).changed);
}

TEST(ViewWindowTest, WhatTheScrollBarIsToldOfOddViews) {
    EXPECT_EQ((ViewWindow{-7, 1201, 0, 1200}).BarPosition(), -6) << "truncated toward zero";
    // A range without width has no sensible answer, and must not fault.
    EXPECT_EQ((ViewWindow{5, 0, 0, 1200}).BarPage(), 1197);
    EXPECT_EQ((ViewWindow{0, 0, 0, 0}).BarPosition(), 0);
    EXPECT_EQ((ViewWindow{std::nan(""), 1, 0, 1}).BarPosition(), 0);
}

} // namespace
} // namespace kavlix
