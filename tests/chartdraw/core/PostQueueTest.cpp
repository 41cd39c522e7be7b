// SPDX-License-Identifier: MIT
// The queue of posted points: against a literal model, and with several threads.
#include "chartdraw/core/PostQueue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <thread>

#include "tests/support/Numbers.h"

using namespace kavlix;

TEST(PostQueueTest, AnyCallsAgreeWithALiteralModel) {
    testkit::Numbers numbers(4711);
    PostQueue queue;
    const std::vector<double> values = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(queue.Push(0, values.data(), values.data(), 1), 0) << "not open yet";
    int woken = 0;
    bool canWake = true;
    const auto wake = [&] { return canWake && ++woken > 0; };
    queue.Open(wake);

    std::vector<PostedPoint> model;
    std::size_t capacity = PostQueue::kDefaultCapacity;
    bool isOpen = true, isAwake = false,
         isBusy = false; // a wake message is on its way; the owner has taken points and is not ready
    int expectedWakes = 0, refusals = 0;
    const auto wakeIfDue = [&] {
        if (!isOpen || isAwake || model.empty() || (isBusy && model.size() * 2 < capacity))
            return true;
        expectedWakes += canWake;
        isAwake = canWake;
        isBusy = isBusy && !canWake;
        return canWake;
    };
    for (int step = 0; step < 20000; ++step) {
        canWake = !numbers.OneIn(5);
        const int dataset = numbers.Below(4);
        switch (numbers.Below(13)) {
        case 0: {
            const auto& taken = queue.Take();
            ASSERT_EQ(taken.size(), model.size());
            for (std::size_t i = 0; i < taken.size(); ++i)
                ASSERT_TRUE(taken[i].x == model[i].x && taken[i].y == -model[i].x &&
                            taken[i].dataset == model[i].dataset);
            queue.Release();
            model.clear();
            isAwake = false;
            isBusy = true;
            break;
        }
        case 1:
            queue.Ready();
            if (isBusy) {
                isBusy = false;
                wakeIfDue();
            }
            break;
        case 5:
            ASSERT_EQ(queue.ReadyIfEmpty(), !isBusy || model.empty());
            isBusy = isBusy && !model.empty();
            break;
        case 2:
            capacity = static_cast<std::size_t>(1 + numbers.Below(60));
            queue.SetCapacity(static_cast<int>(capacity));
            wakeIfDue();
            break;
        case 3:
            queue.RemoveDataset(dataset);
            for (PostedPoint& point : model)
                point.dataset = point.dataset == dataset  ? -1
                                : point.dataset > dataset ? point.dataset - 1
                                                          : point.dataset;
            break;
        case 4:
            if (numbers.OneIn(10)) {
                isOpen = numbers.OneIn(2);
                isOpen ? queue.Open(wake) : queue.Close();
                model.clear();
                isAwake = isBusy = false;
            }
            break;
        default: {
            const std::size_t before = model.size();
            std::vector<double> ys;
            for (const double value : values)
                ys.push_back(-value);
            const int count = numbers.Below(10);
            for (int i = 0; i < count && isOpen && model.size() < capacity; ++i)
                model.push_back({values[static_cast<std::size_t>(i)], 0, dataset});
            if (model.size() > before && !wakeIfDue()) {
                model.resize(before);
                ++refusals;
            }
            ASSERT_EQ(queue.Push(dataset, values.data(), ys.data(), count),
                      static_cast<int>(model.size() - before))
                << step;
        }
        }
        ASSERT_EQ(woken, expectedWakes) << step;
        ASSERT_EQ(queue.Count(), static_cast<int>(model.size()));
    }
    EXPECT_GT(refusals, 100);
}

TEST(PostQueueTest, ThreadsLoseNothingAndEachKeepsItsOrder) {
    constexpr int kThreads = 4, kPoints = 50000;
    PostQueue queue;
    std::mutex mutex;
    std::condition_variable condition;
    bool isWoken = false;
    queue.Open([&] {
        const std::lock_guard<std::mutex> lock(mutex);
        isWoken = true;
        condition.notify_one();
        return true;
    });
    queue.SetCapacity(5000);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&queue, t] {
            testkit::Numbers numbers(static_cast<std::uint32_t>(t + 1));
            std::vector<double> xs(kPoints);
            for (int i = 0; i < kPoints; ++i)
                xs[static_cast<std::size_t>(i)] = i;
            for (int i = 0; i < kPoints;) {
                const int pushed = queue.Push(t, &xs[static_cast<std::size_t>(i)], xs.data(),
                                              std::min(numbers.Below(50), kPoints - i));
                i += pushed;
                if (pushed == 0)
                    std::this_thread::yield();
            }
        });
    int next[kThreads] = {};
    testkit::Numbers numbers(99);
    for (int all = 0; all < kThreads * kPoints;) {
        std::unique_lock<std::mutex> lock(mutex);
        condition.wait(lock, [&] { return isWoken; });
        isWoken = false;
        lock.unlock();
        for (const PostedPoint& point : queue.Take()) {
            EXPECT_EQ(point.x, next[point.dataset]++);
            ++all;
        }
        queue.Release();
        // An owner who is not ready is woken all the same, while more points than half the capacity are to come.
        if (all > kThreads * kPoints / 2 || !numbers.OneIn(3))
            queue.Ready();
    }
    for (std::thread& thread : threads)
        thread.join();
}
