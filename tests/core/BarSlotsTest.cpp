#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "graphctrl/BarSlots.h"
#include "graphctrl/HitTest.h"

namespace kavlix {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

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
    EXPECT_EQ(Slots({5}, 0, kInfinity, 3000).barWidth, 0);
    EXPECT_EQ(Slots({5}, -1e300, 1e300, 3000).visible, 5);
    const BarSlots wide = Slots({2}, 0, 1.001, 1 << 28);
    EXPECT_GT(wide.barWidth, 0);
    EXPECT_LE(wide.SlotLeft(1, 0), 1 << 28);
}

int NearestByWalk(const LinearMap& map, const std::vector<int>& sizes, int x) {
    int found = -1;
    long long best = 1000000;
    for (const int size : sizes) {
        for (int i = 0; i < size; ++i)
            if (const auto position = map.Position(i)) {
                const long long distance = std::llabs(static_cast<long long>(*position) - x);
                if (distance < best) {
                    best = distance;
                    found = i;
                }
            }
        if (best < 1000000)
            break;
    }
    return found;
}

TEST(HitTestTest, NearestEqualsTheWalkOverEverySample) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> uniform(-1, 1);
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        const double min = uniform(random) * 60;
        const double range =
            uniform(random) * std::pow(10, uniform(random) * 4); // either direction, any crowding
        const LinearMap map(min, min + range, 2230, 3370);
        std::vector<int> sizes(1 + random() % 3);
        for (int& size : sizes)
            size = static_cast<int>(random() % 50);
        const int x = static_cast<int>(uniform(random) * (round % 5 == 0 ? 3e6 : 9000));
        const int expected = NearestByWalk(map, sizes, x);
        ASSERT_EQ(NearestIndex(map, sizes.data(), static_cast<int>(sizes.size()), x), expected)
            << "x " << x << " in " << min << " + " << range << ", " << sizes[0] << " samples";
        found += expected >= 0;
    }
    EXPECT_GT(found, 10000);
}

TEST(HitTestTest, NearestCorners) {
    const auto nearest = [](double min, double max, int size, int x) {
        return NearestIndex(LinearMap(min, max, 0, 3000), &size, 1, x);
    };
    EXPECT_EQ(nearest(0, 10, 11, 450), 1);   // half way between 300 and 600: the lower index
    EXPECT_EQ(nearest(10, 0, 11, 450), 8);   // turned round as well
    EXPECT_EQ(nearest(0, 1e6, 5, 0), 0);     // all on one position
    EXPECT_EQ(nearest(0, 10, 11, 9000), 10); // outside the visible range
    EXPECT_EQ(nearest(0, 10, 0, 0), -1);
    EXPECT_EQ(nearest(3, 3, 5, 0), -1);
    EXPECT_EQ(nearest(std::nan(""), 3, 5, 0), -1);
    EXPECT_EQ(nearest(0, 10, 11, std::numeric_limits<int>::min()), -1);
    // A dataset too far away leaves the decision to the next.
    const int sizes[] = {1, 5000};
    EXPECT_EQ(NearestIndex(LinearMap(4000, 4010, 0, 3000), sizes, 2, 300), 4001);
}

TEST(HitTestTest, BarGroupEqualsTheWalkOverEverySlot) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> uniform(0, 1);
    int hits = 0;
    for (int round = 0; round < 20000; ++round) {
        const Rect plot{2230, 1100, 2230 + static_cast<int>(random() % 6000), 3800};
        const double min = uniform(random) * 20 - 5;
        const double max = min + uniform(random) * 30;
        int sizes[3];
        for (int& size : sizes)
            size = static_cast<int>(random() % 4 * (random() % 8));
        const Point point{2000 + static_cast<int>(random() % 7000), 1000 + static_cast<int>(random() % 3000)};

        int expected = -1;
        BarSlots slots;
        if (ComputeBarSlots(sizes, 3, min, max, plot.Width(), slots)) {
            const int size = *std::find_if(sizes, sizes + 3, [](int n) { return n > 0; });
            int slot = 0;
            for (int i = 0; i < size && slot < slots.visible && expected < 0; ++i) {
                if (i < min)
                    continue;
                const int left = plot.left + slot * (slots.barWidth + slots.barWidth * slots.datasets);
                if (point.x >= left - slots.barWidth / 2 &&
                    point.x < left + slots.barWidth * slots.datasets + slots.barWidth / 2 &&
                    point.y >= plot.top && point.y < plot.bottom)
                    expected = i;
                ++slot;
            }
        }
        ASSERT_EQ(BarGroupAt(sizes, 3, min, max, plot, point), expected);
        hits += expected >= 0;
    }
    EXPECT_GT(hits, 1000);
}

} // namespace
} // namespace kavlix
