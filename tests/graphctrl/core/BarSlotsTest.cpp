#include <gtest/gtest.h>

#include <cmath>

#include "graphctrl/core/BarSlots.h"

namespace kavlix {
namespace {

BarSlots Slots(std::initializer_list<int> sizes, double min, double max, int width) {
    BarSlots slots{-7, -7, -7};
    if (!ComputeBarSlots(sizes.begin(), static_cast<int>(sizes.size()), min, max, width, slots)) {
        EXPECT_EQ(slots.barWidth, -7);
        EXPECT_EQ(slots.datasets, -7);
        EXPECT_EQ(slots.visible, -7);
        return {};
    }
    return slots;
}

TEST(BarSlotsTest, TwoDatasetsOfTenOver3000Units) {
    const BarSlots slots = Slots({10, 10}, 0, 10, 3000);
    EXPECT_EQ(slots.barWidth, 90);
    EXPECT_EQ(slots.datasets, 2);
    EXPECT_EQ(slots.visible, 10);
    EXPECT_EQ(slots.GroupWidth(), 180);
    EXPECT_EQ(slots.SlotLeft(3, 2230), 2230 + 3 * 270);
    EXPECT_EQ(slots.SlotMiddle(3, 2230), 2230 + 3 * 270 + 90);
    const Rect band = slots.Band(3, {2230, 1100, 5230, 3800});
    EXPECT_EQ(band, (Rect{2230 + 3 * 270 - 45, 1100, 2230 + 3 * 270 + 180 + 45, 3800}));
    EXPECT_EQ(band.Width(), slots.GroupWidth() + slots.barWidth);
}

TEST(BarSlotsTest, FirstDatasetWithAVisiblePointCounts) {
    // Dataset 0 has none, dataset 1 has three points before the range, dataset 2 decides, all with points
    // share.
    const BarSlots slots = Slots({0, 3, 8, 100}, 5, 20, 3000);
    EXPECT_EQ(slots.datasets, 3);
    EXPECT_EQ(slots.visible, 3);                            // 5, 6, 7
    EXPECT_EQ(slots.barWidth, (7 - 5) * 3000 / 15 / 3 / 4); // the span ends at the last visible point
    EXPECT_EQ(IndicesInSlots(3, 5, slots).Count(), 0);
    EXPECT_EQ(IndicesInSlots(8, 5, slots).first, 5);
    EXPECT_EQ(IndicesInSlots(8, 5, slots).last, 7);
    EXPECT_EQ(IndicesInSlots(100, 5, slots).last, 7);
    EXPECT_EQ(IndicesInSlots(6, 5, slots).Count(), 1);
}

TEST(BarSlotsTest, NothingToDivide) {
    EXPECT_EQ(Slots({}, 0, 10, 3000).visible, 0);
    EXPECT_EQ(Slots({0, 0}, 0, 10, 3000).visible, 0);
    EXPECT_EQ(Slots({5}, 5, 10, 3000).visible, 0);
    EXPECT_EQ(Slots({5}, 0.2, 0.8, 3000).visible, 0);
    EXPECT_EQ(Slots({5}, 10, 0, 3000).visible, 0);
    EXPECT_EQ(Slots({5}, std::nan(""), 10, 3000).visible, 0);
    // A range of 0 on a point: one slot of no width.
    const BarSlots zero = Slots({5}, 2, 2, 3000);
    EXPECT_EQ(zero.visible, 1);
    EXPECT_EQ(zero.barWidth, 0);
    EXPECT_EQ(Slots({5}, 0, INFINITY, 3000).barWidth, 0);
    EXPECT_EQ(Slots({5}, -1e300, 1e300, 3000).visible, 5);
    const BarSlots wide = Slots({2}, 0, 1.001, 1 << 28);
    EXPECT_GT(wide.barWidth, 0);
    EXPECT_LE(wide.SlotLeft(1, 0), 1 << 28);
}

} // namespace
} // namespace kavlix
