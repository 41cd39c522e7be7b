// SPDX-License-Identifier: MIT
// Presses that become clicks, drags and boxes.
#include "chartdraw/core/PointerGesture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

using namespace kavlix;
using Step = PointerGesture::Step;

TEST(PointerGesture, AClickLeavesThePressByLessThanADrag) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        PointerGesture gesture;
        const Point start{50, 50};
        const int width = static_cast<int>(random() % 6), height = 1 + static_cast<int>(random() % 6);
        const auto button = random() % 2 == 0 ? MouseButton::Left : MouseButton::Right;
        const auto other = button == MouseButton::Left ? MouseButton::Right : MouseButton::Left;
        ASSERT_TRUE(gesture.Press(button, start, DragPurpose::Pan, width, height));
        bool isDrag = false;
        Point last = start;
        for (int i = 0; i < 5; ++i) {
            const Point at{46 + static_cast<int>(random() % 9), 46 + static_cast<int>(random() % 9)};
            const bool isFar =
                std::abs(at.x - start.x) >= std::max(width, 1) || std::abs(at.y - start.y) >= height;
            const Step expected = at == last ? Step::None
                                  : isDrag   ? Step::Drag
                                  : isFar    ? Step::Begin
                                             : Step::None;
            ASSERT_EQ(gesture.Move(at), expected) << round;
            isDrag = isDrag || isFar;
            last = at;
            ASSERT_FALSE(gesture.Press(other, at, DragPurpose::Box, 1, 1));
            ASSERT_EQ(gesture.Release(other), Step::None);
        }
        if (round % 2 == 0)
            ASSERT_EQ(gesture.Cancel(), isDrag);
        else
            ASSERT_EQ(gesture.Release(button), isDrag ? Step::Drop : Step::Click);
        ASSERT_EQ(gesture.Release(button), Step::None);
        ASSERT_EQ(gesture.Move({0, 0}), Step::None);
    }
}

TEST(PointerGesture, TheShapeOfABoxChoosesTheAxes) {
    const Rect plot{100, 10, 300, 110};
    const struct {
        Point from, to;
        AxisSet allowed, axes;
        Rect area;
    } cases[] = {
        {{120, 20}, {160, 60}, kAllAxes, kAllAxes, {120, 20, 161, 61}},
        {{160, 60}, {120, 20}, kAllAxes, kAllAxes, {120, 20, 161, 61}},
        {{120, 20}, {160, 35}, kAllAxes, kAllAxes, {120, 20, 161, 36}},
        {{120, 20}, {160, 34}, kAllAxes, kAxisX, {120, 10, 161, 110}}, // flat
        {{120, 20}, {134, 60}, kAllAxes, kAxesY, {100, 20, 300, 61}},  // narrow
        {{120, 20}, {160, 60}, kAxisX, kAxisX, {120, 10, 161, 110}},
        {{120, 20}, {160, 60}, kAxesY, kAxesY, {100, 20, 300, 61}},
        {{0, 0}, {999, 999}, kAllAxes, kAllAxes, {100, 10, 300, 110}}, // cut at the plot
        {{120, 20}, {123, 22}, kAllAxes, 0, {}},                       // no box
        {{120, 20}, {123, 99}, kAxisX, 0, {}},
        {{120, 20}, {180, 60}, 0, 0, {}},
    };
    for (const auto& each : cases) {
        const DragBox box = BoxBetween(plot, each.from, each.to, each.allowed, 4);
        EXPECT_EQ(box.axes, each.axes) << &each - cases;
        EXPECT_EQ(box.area, each.area) << &each - cases;
    }
}

TEST(PointerGesture, SmallTurnsOfTheWheelAddUp) {
    double factor = 1;
    for (int i = 0; i < 120; ++i)
        factor *= WheelFactor(1);
    EXPECT_NEAR(factor, WheelFactor(120), 1e-12);
    EXPECT_LT(WheelFactor(120), 1);
    EXPECT_NEAR(WheelFactor(120) * WheelFactor(-120), 1, 1e-15);
}
