// SPDX-License-Identifier: MIT
// The store of samples against a vector.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "graphctrl/core/SampleStore.h"

namespace kavlix {
namespace {

using Model = std::vector<double>;

/// What the store must say about a range, by a walk over it.
Extremes PlainExtremes(const Model& model, int first, int last) {
    Extremes extremes{INFINITY, -INFINITY};
    for (int i = first; i <= last; ++i) {
        const double value = model[static_cast<std::size_t>(i)];
        if (std::isnan(value))
            return {value, value};
        extremes = {std::min(extremes.low, value), std::max(extremes.high, value)};
    }
    return extremes;
}

bool IsSame(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

/// Compares everything that a store tells about a range with its model.
void CompareRange(const SampleStore& store, const Model& model, int first, int last, double limit) {
    const Extremes found = store.ExtremesOf(first, last), expected = PlainExtremes(model, first, last);
    ASSERT_TRUE(IsSame(found.low, expected.low) && IsSame(found.high, expected.high));

    int wanted = last;
    while (wanted >= first && !(model[static_cast<std::size_t>(wanted)] >= limit))
        --wanted;
    ASSERT_EQ(store.FindLast(
                  first, last, [&](const Extremes& block) { return block.high < limit; },
                  [&](double value) { return value >= limit; }),
              wanted);

    // Visited: all that reach the limit, in order, and of the others some.
    std::vector<double> visited, expectedVisits;
    int walked = 0;
    store.VisitUnless(
        first, last, [&](const Extremes& block) { return block.high < limit; },
        [&](double value) {
            ++walked;
            if (value >= limit)
                visited.push_back(value);
        });
    for (int i = first; i <= last; ++i)
        if (model[static_cast<std::size_t>(i)] >= limit)
            expectedVisits.push_back(model[static_cast<std::size_t>(i)]);
    ASSERT_EQ(visited, expectedVisits);
    ASSERT_LE(walked, last - first + 1);
}

/// Compares some ranges, half of them with ends at the edges of blocks. `dropped` values were removed from
/// the head.
void CompareRanges(const SampleStore& store, const Model& model, std::int64_t dropped, std::mt19937& random) {
    const int size = store.Size();
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    const auto place = [&](int from) {
        const int any = from + below(size - from);
        const int block = 32 << below(7);
        const auto edge = static_cast<int>((dropped + any) / block * block - dropped) + below(3) - 1;
        return below(2) == 0 ? any : std::clamp(edge, from, size - 1);
    };
    for (int round = 0; round < 6 && size > 0; ++round) {
        const int first = place(0);
        const int last = round == 0 ? std::min(size - 1, first + 40) : place(first);
        ASSERT_NO_FATAL_FAILURE(CompareRange(store, model, first, last, 100 + below(900)));
    }
}

/// Values in stretches: quiet, loud, infinite, with gaps.
double NextValue(std::mt19937& random, std::size_t index) {
    const unsigned number = random() % 1000;
    switch (index / 300 % 5) {
    case 0:
        return number % 100;
    case 1:
        return number < 3 ? std::nan("") : number;
    case 2:
        return number < 5 ? INFINITY : number < 10 ? -INFINITY : number;
    default:
        return -5.5;
    }
}

TEST(SampleStoreTest, BehavesLikeAVector) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        std::mt19937 random(seed);
        SampleStore store;
        Model model;
        std::size_t appended = 0;
        std::int64_t dropped = 0;
        for (int step = 0; step < 2000; ++step) {
            const unsigned action = random() % 100;
            if (action < 60) {
                for (unsigned i = random() % (seed == 1 ? 60 : 700); i > 0; --i) {
                    const double value = NextValue(random, appended++);
                    store.Append(value);
                    model.push_back(value);
                }
            } else if (action < 97 && !model.empty()) {
                // Mostly from the head, as a running recording does; counts beyond the end and below 0 too.
                const int size = static_cast<int>(model.size());
                const int first = action < 85 ? 0 : static_cast<int>(random() % model.size());
                const int count = static_cast<int>(random() % (action == 96 ? 9000u : 900u)) - 50;
                store.Remove(first, count);
                dropped += first == 0 ? std::clamp(count, 0, size) : 0;
                const auto begin = model.begin() + first;
                model.erase(begin, begin + std::clamp(count, 0, size - first));
            } else if (action == 98 && random() % 8 == 0) {
                store.Remove(1, store.Size());
                model.resize(std::min<std::size_t>(model.size(), 1));
            } else if (action == 99) {
                store.Clear();
                model.clear();
                dropped = 0;
            }
            ASSERT_EQ(store.Size(), static_cast<int>(model.size()));
            for (unsigned i = 0; i < 5 && !model.empty(); ++i) {
                const int index = static_cast<int>(random() % model.size());
                ASSERT_TRUE(IsSame(store[index], model[static_cast<std::size_t>(index)])) << index;
            }
            ASSERT_NO_FATAL_FAILURE(CompareRanges(store, model, dropped, random)) << "step " << step;
            ASSERT_FALSE(store.Has(-1));
            ASSERT_FALSE(store.Has(store.Size()));
            ASSERT_EQ(store.Has(0), !model.empty());
        }
        for (int i = 0; i < store.Size(); ++i)
            ASSERT_TRUE(IsSame(store[i], model[static_cast<std::size_t>(i)])) << i;
    }
}

TEST(SampleStoreTest, LongRangesAreNotWalked) {
    SampleStore store;
    constexpr int size = 300000;
    for (int i = 0; i < size; ++i)
        store.Append(i == 777 ? 1.0 : 0.0);
    int looks = 0;
    const auto isQuiet = [&](const Extremes& block) {
        ++looks;
        return block.high == 0;
    };
    EXPECT_EQ(store.FindLast(3, size - 4, isQuiet, [&](double value) { return ++looks, value != 0; }), 777);
    EXPECT_LT(looks, 1500);
    looks = 0;
    store.VisitUnless(3, size - 4, isQuiet, [&](double) { ++looks; });
    EXPECT_LT(looks, 1500);
}

} // namespace
} // namespace kavlix
