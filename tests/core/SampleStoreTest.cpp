#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "graphctrl/SampleStore.h"

namespace kavlix {
namespace {

TEST(SampleStoreTest, BehavesLikeAVector) {
    std::mt19937 random(1);
    SampleStore store;
    std::vector<double> model;
    for (int step = 0; step < 4000; ++step) {
        const unsigned action = random() % 100;
        if (action < 60) {
            for (unsigned i = random() % 400; i > 0; --i) {
                const double value = static_cast<double>(random());
                store.Append(value);
                model.push_back(value);
            }
        } else if (action < 98 && !model.empty()) {
            // Mostly from the head, as a running recording does; counts beyond the end and below 0 too.
            const int size = static_cast<int>(model.size());
            const int first = action < 80 ? 0 : static_cast<int>(random() % model.size());
            const int count = static_cast<int>(random() % 700) - 50;
            store.Remove(first, count);
            const auto begin = model.begin() + first;
            model.erase(begin, begin + std::clamp(count, 0, size - first));
        } else if (action == 99) {
            store.Clear();
            model.clear();
        }
        ASSERT_EQ(store.Size(), static_cast<int>(model.size()));
        for (unsigned i = 0; i < 5 && !model.empty(); ++i) {
            const int index = static_cast<int>(random() % model.size());
            ASSERT_EQ(store[index], model[static_cast<std::size_t>(index)]);
        }
        ASSERT_FALSE(store.Has(-1));
        ASSERT_FALSE(store.Has(store.Size()));
        ASSERT_EQ(store.Has(0), !model.empty());
    }
    for (int i = 0; i < store.Size(); ++i)
        ASSERT_EQ(store[i], model[static_cast<std::size_t>(i)]);
}

} // namespace
} // namespace kavlix
