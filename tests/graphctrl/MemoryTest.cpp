// The arithmetic behind the control, linked into this program, so that guard bytes stand behind every block
// it asks for and any allocation can be made to fail.

#include "tests/support/AllocationGuard.h"

#include "graphctrl/AxisTicks.h"
#include "graphctrl/SampleStore.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <memory>
#include <new>
#include <random>

using namespace kavlix;

TEST(GraphMemoryTest, SamplesStayInsideTheirBlocks) {
    testkit::AllocationGuard guard;
    {
        SampleStore store;
        std::mt19937 random(3);
        for (int step = 0; step < 3000; ++step) {
            for (unsigned i = random() % 200; i > 0; --i)
                store.Append(step);
            const auto size = static_cast<unsigned>(store.Size());
            if (size > 0)
                store.Remove(static_cast<int>(step % 3 == 0 ? random() % size : 0),
                             static_cast<int>(random() % 220));
            if (step % 500 == 499)
                store.Clear();
        }
        EXPECT_EQ(guard.Damaged(), 0);
        EXPECT_GT(guard.Count(), 100);
    }
    EXPECT_EQ(guard.Damaged(), 0);
    EXPECT_EQ(guard.Live(), 0) << "nothing is kept";
}

TEST(GraphMemoryTest, ARefusedSampleChangesNothing) {
    int refused = 0;
    for (int nth = 1; nth < 200; ++nth) {
        testkit::AllocationGuard guard;
        auto store = std::make_unique<SampleStore>();
        guard.FailAt(nth);
        int stored = 0;
        for (int i = 0; i < 2000; ++i) {
            try {
                store->Append(i);
                ++stored;
            } catch (const std::bad_alloc&) {
                ++refused;
                EXPECT_EQ(store->Size(), stored);
                for (int k = 0; k < stored; ++k)
                    ASSERT_EQ((*store)[k], k);
                store->Append(i); // memory is back
                ++stored;
            }
        }
        EXPECT_EQ(store->Size(), 2000);
        EXPECT_EQ((*store)[1999], 1999.0);
        EXPECT_EQ(guard.Damaged(), 0);
        store.reset();
        EXPECT_EQ(guard.Live(), 0);
        if (!guard.Failed()) {
            EXPECT_GE(refused, 3) << "the failures must reach the store";
            return;
        }
    }
    FAIL() << "no run passed without a failure";
}

TEST(GraphMemoryTest, TickTextsStayInsideTheirBlocks) {
    testkit::AllocationGuard guard;
    for (const double value : {0.0, -1e308, 1e308, 5e-324, 1.0 / 3, double(NAN), double(INFINITY)})
        for (const int decimals :
             {0, 1, 17, 127, 128, 255, 256, 400, 511, 512, 1023, 1024, 100000, INT_MAX, INT_MIN})
            EXPECT_FALSE(FormatTick(value, decimals).empty());
    EXPECT_EQ(guard.Damaged(), 0);
    EXPECT_EQ(guard.Live(), 0);
}
