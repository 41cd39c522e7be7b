#include "scrollgraph/ViewWindow.h"

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

constexpr ViewWindow kFresh{0, 1200, 0, 1200};

TEST(ViewWindowTest, SamplesASecondApartAreFollowedFromTheFiftyFifthOn) {
    ViewWindow view = kFresh;
    for (int i = 0; i < 200; ++i) {
        const ViewWindow::Arrival arrival = view.Arrive(i > 0, (i - 1) * 20.0, i > 0 ? i * 20.0 : 0);
        if (arrival.changed)
            view.Normalize();
        EXPECT_EQ(arrival.followed, i >= 55) << i;
        EXPECT_EQ(view.pos, i >= 55 ? i * 20.0 - 1080 : 0) << i;
        EXPECT_EQ(view.max, i >= 55 ? i * 20.0 + 120 : 1200) << i;
    }
}

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

TEST(ViewWindowTest, StepsOfTheScrollBar) {
    struct Case {
        const char* name;
        ViewWindow before;
        ScrollStep step;
        unsigned thumb;
        bool done;
        double pos;
    };
    const Case cases[] = {
        {"line left", {500, 5000, 0, 1200}, ScrollStep::LineLeft, 0, true, 488},
        {"line left at the end", {0.99, 5000, 0, 1200}, ScrollStep::LineLeft, 0, false, 0.99},
        {"line left into the end", {1, 5000, 0, 1200}, ScrollStep::LineLeft, 0, true, 0},
        {"line right", {500, 5000, 0, 1200}, ScrollStep::LineRight, 0, true, 512},
        {"line right at the end", {3795, 5000, 0, 1200}, ScrollStep::LineRight, 0, true, 3800},
        {"page left", {700, 5000, 0, 1200}, ScrollStep::PageLeft, 0, true, 100},
        {"page left into the end", {500, 5000, 0, 1200}, ScrollStep::PageLeft, 0, true, 0},
        {"page left over a lower minimum", {500, 5000, -900, 1200}, ScrollStep::PageLeft, 0, true, 0},
        {"page right", {500, 5000, 0, 1200}, ScrollStep::PageRight, 0, true, 1100},
        {"thumb", {500, 5200, 200, 1200}, ScrollStep::ThumbTo, 600, true, 2700},
        {"thumb at the end", {500, 5200, 200, 1200}, ScrollStep::ThumbTo, 1200, true, 4000},
        {"range narrower than the view", {500, 1000, 300, 1200}, ScrollStep::PageRight, 0, true, 300},
    };
    for (const Case& each : cases) {
        ViewWindow view = each.before;
        EXPECT_EQ(view.Step(each.step, each.thumb), each.done) << each.name;
        EXPECT_EQ(view.pos, each.pos) << each.name;
        EXPECT_EQ(view.max, each.before.max) << each.name;
    }
}

TEST(ViewWindowTest, TheWheelMovesOneStepWhateverItsDelta) {
    struct Case {
        ViewWindow before;
        int delta;
        bool moved;
        double pos;
    };
    const Case cases[] = {
        {{500, 5000, 0, 1200}, 120, true, 488},  {{500, 5000, 0, 1200}, 0, true, 488},
        {{500, 5000, 0, 1200}, -1, true, 512},   {{500, 5000, 0, 1200}, -1200, true, 512},
        {{0.5, 5000, 0, 1200}, 120, false, 0.5}, {{3800, 5000, 0, 1200}, -120, false, 3800},
        {{5, 5000, 0, 1200}, 120, true, 0},
    };
    for (const Case& each : cases) {
        ViewWindow view = each.before;
        EXPECT_EQ(view.Wheel(each.delta), each.moved) << each.before << " by " << each.delta;
        EXPECT_EQ(view.pos, each.pos) << each.before << " by " << each.delta;
    }
}

TEST(ViewWindowTest, WhatTheScrollBarIsTold) {
    EXPECT_EQ(kFresh.BarPosition(), 0);
    EXPECT_EQ(kFresh.BarPage(), 1197) << "the thumb never fills the bar";
    const ViewWindow deep{2700, 5200, 200, 1200};
    EXPECT_EQ(deep.BarPosition(), 600);
    EXPECT_EQ(deep.BarPage(), 288);
    EXPECT_EQ((ViewWindow{0, 1000, 0, 5000}).BarPage(), 1197);
    EXPECT_EQ((ViewWindow{-7, 1201, 0, 1200}).BarPosition(), -6) << "truncated toward zero";
    // A range without width has no sensible answer, and must not fault.
    EXPECT_EQ((ViewWindow{5, 0, 0, 1200}).BarPage(), 1197);
    EXPECT_EQ((ViewWindow{0, 0, 0, 0}).BarPosition(), 0);
    EXPECT_EQ((ViewWindow{std::nan(""), 1, 0, 1}).BarPosition(), 0);
}

TEST(ViewWindowTest, FollowAndNormalize) {
    ViewWindow view{700, 9000, 100, 1200};
    view.Rewind();
    EXPECT_EQ(view, (ViewWindow{0, 1200, 100, 1200}));
    view.Follow(1080);
    EXPECT_EQ(view.pos, 0);
    view.Follow(2000);
    EXPECT_EQ(view.pos, 920);
    view.Normalize();
    EXPECT_EQ(view.max, 2120);
    view.pos = 20;
    view.Normalize();
    EXPECT_EQ(view.pos, 100);
    EXPECT_EQ(view.max, 2120);
}

} // namespace
} // namespace kavlix
