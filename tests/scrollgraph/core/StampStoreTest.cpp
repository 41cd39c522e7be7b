// SPDX-License-Identifier: MIT
// StampStore beside a vector.
#include "scrollgraph/core/StampStore.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <random>

using kavlix::StampStore;

TEST(StampStore, HoldsWhatADequeHolds) {
    std::mt19937 random(7);
    // The pace, and how far stamps are away from it.
    const struct {
        std::int64_t step, jitter;
    } paces[] = {{1, 0}, {1, 1}, {0, 0}, {-1, 3}, {60, 100}, {3600, 200}, {1 << 21, 0}, {7, 1LL << 33}};
    for (const auto& pace : paces) {
        StampStore store;
        std::deque<std::int32_t> model;
        std::int64_t time = 1700000000;
        for (int step = 0; step < 60; ++step) {
            const std::size_t some = random() % (model.size() / 2 + 1);
            switch (random() % 8) {
            case 0:
                store.RemoveHead(some);
                model.erase(model.begin(), model.begin() + static_cast<std::ptrdiff_t>(some));
                break;
            case 1:
                if (!model.empty() && random() % 4 == 0) {
                    store.KeepOne();
                    model.resize(1);
                } else if (random() % 8 == 0) {
                    store.Clear();
                    model.clear();
                }
                break;
            default:
                for (std::size_t added = random() % 2000; added > 0; --added) {
                    time += pace.step;
                    const std::int64_t away =
                        pace.jitter == 0
                            ? 0
                            : static_cast<std::int64_t>(random()) % (2 * pace.jitter + 1) - pace.jitter;
                    model.push_back(static_cast<std::int32_t>(time + away));
                    store.Add(model.back());
                }
            }
            ASSERT_EQ(store.Size(), model.size());
            ASSERT_EQ(store.IsEmpty(), model.empty());
            for (std::size_t i = 0; i < model.size(); ++i)
                ASSERT_EQ(store[i], model[i]) << "pace " << pace.step << ", stamp " << i;
        }
    }
    StampStore store;
    for (const std::int32_t stamp : {INT32_MIN, INT32_MAX, INT32_MIN, 0, INT32_MAX}) {
        store.Add(stamp);
        EXPECT_EQ(store.Back(), stamp);
    }
    EXPECT_EQ(store[0], INT32_MIN);
    EXPECT_EQ(store[1], INT32_MAX);
}
