// SPDX-License-Identifier: MIT
// Rates from the system's counters, and the live readings made of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "monitor/LiveReadings.h"
#include "monitor/MachineCounters.h"

namespace kavlix::test {
namespace {

using monitor::LiveReadings, recording::InterfaceCounters, recording::MachineCounters,
    recording::MachineRates;

MachineCounters Counters(double seconds, std::uint64_t idle, std::uint64_t total,
                         std::vector<InterfaceCounters> net) {
    MachineCounters counters;
    counters.seconds = seconds;
    counters.processor = MachineCounters::Processor{idle, total};
    counters.memoryPercent = 40;
    counters.interfaces = std::move(net);
    return counters;
}

TEST(MachineRates, AreDifferencesByTheTimeThatPassed) {
    const MachineRates rates = RatesBetween(Counters(10, 1000, 2000, {{7, 100, 50}, {8, 1000, 1000}}),
                                            Counters(12, 1150, 2200, {{8, 3000, 1000}, {7, 300, 60}}));
    EXPECT_DOUBLE_EQ(*rates.processorPercent, 25);
    EXPECT_DOUBLE_EQ(*rates.memoryPercent, 40);
    EXPECT_DOUBLE_EQ(*rates.bytesInPerSecond, 1100);
    EXPECT_DOUBLE_EQ(*rates.bytesOutPerSecond, 5);
}

TEST(MachineRates, WhatIsNotToldIsAbsentAndNotZero) {
    // Interfaces that come, go or start anew count nothing.
    const MachineRates rates = RatesBetween(Counters(0, 0, 0, {{1, 5000, 5000}, {2, 900, 900}}),
                                            Counters(1, 0, 1, {{1, 100, 5010}, {3, 1'000'000, 1'000'000}}));
    EXPECT_DOUBLE_EQ(*rates.bytesInPerSecond, 0);
    EXPECT_DOUBLE_EQ(*rates.bytesOutPerSecond, 10);
    const MachineCounters full = Counters(1, 10, 20, {{1, 1, 1}});
    MachineCounters bare;
    bare.seconds = 2;
    const MachineRates none = RatesBetween(full, bare);
    EXPECT_FALSE(none.processorPercent || none.memoryPercent || none.bytesInPerSecond);
    const MachineRates sameMoment = RatesBetween(full, full);
    EXPECT_FALSE(sameMoment.processorPercent || sameMoment.bytesInPerSecond);
    // The system may count idle time slightly ahead of the total.
    EXPECT_DOUBLE_EQ(*RatesBetween(Counters(1, 0, 0, {}), Counters(2, 11, 10, {})).processorPercent, 0);
}

TEST(MachineRates, AreWrittenForPeopleInUnitsThatHoldThemBetween0And100) {
    EXPECT_EQ(recording::ChooseRateUnit(1e5).text, "kB/s");
    EXPECT_EQ(recording::ChooseRateUnit(1.1e5).text, "10 kB/s");
    EXPECT_NEAR(recording::ChooseRateUnit(2e7).bytesPerSecond, 1e6, 1e-3);
    EXPECT_EQ(recording::FormatRate(999.4), "999 B/s");
    EXPECT_EQ(recording::FormatRate(999.6), "1.0 kB/s");
    EXPECT_EQ(recording::FormatRate(99'960), "100 kB/s");
    EXPECT_EQ(recording::FormatRate(999'600), "1.0 MB/s");
}

TEST(MachineCountersOfThisMachine, AreRealAndOnlyGrow) {
    const MachineCounters first = monitor::ReadMachineCounters();
    ASSERT_TRUE(first.processor && first.memoryPercent);
    EXPECT_GT(first.processor->total, first.processor->idle);
    EXPECT_TRUE(*first.memoryPercent > 0 && *first.memoryPercent < 100);
    MachineCounters second = monitor::ReadMachineCounters();
    // The counters advance in ticks: read until one has passed.
    for (int i = 0; i < 1'000'000 && second.processor->total == first.processor->total; ++i)
        second = monitor::ReadMachineCounters();
    EXPECT_GT(second.processor->total, first.processor->total);
    EXPECT_GT(second.seconds, first.seconds);
}

MachineRates Rates(double cpu, double in) {
    MachineRates rates;
    rates.processorPercent = cpu;
    rates.memoryPercent = 30;
    rates.bytesInPerSecond = in;
    rates.bytesOutPerSecond = 10;
    return rates;
}

// Against a list of all readings that were ever added.
TEST(LiveReadings, EqualAListOfReadings) {
    std::mt19937 random(9);
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        LiveReadings live;
        std::vector<recording::Time> times;
        std::size_t first = 0;   // the oldest kept reading
        std::size_t history = 0; // the oldest one of the recording
        std::size_t most = LiveReadings::kKept;
        for (int step = 0; step < 500; ++step) {
            LiveReadings::Change change;
            const unsigned action = random() % 60;
            if (action == 0) {
                const std::size_t count = random() % 20;
                change = live.RemoveHead(count);
                first = times.empty() ? 0 : std::min(first + count, times.size() - 1);
            } else if (action == 1 && round % 2 == 0) {
                const std::size_t asked = random() % 40 * 10;
                change = live.KeepAtMost(asked);
                most = std::max<std::size_t>(asked, 1);
            } else {
                // Now and then the clock is set back.
                const auto now = static_cast<recording::Time>(step * 10 - (action == 2 ? 500 : 0));
                change = live.Add(now, Rates(static_cast<double>(times.size()), 0));
                times.push_back(times.empty() ? now : std::max(now, times.back() + 1));
            }
            first = std::max(first, times.size() - std::min(times.size(), most));
            const std::size_t before = history;
            history =
                std::max({history, first, times.size() - std::min(times.size(), LiveReadings::kHistory)});
            ASSERT_EQ(change.removed, history - before);
            ASSERT_EQ(live.First(), first);
            ASSERT_EQ(live.End(), times.size());
            const auto shown = live.History();
            ASSERT_EQ(shown->times, std::vector(times.begin() + static_cast<int>(history), times.end()));
            for (std::size_t i = 0; i < shown->times.size(); ++i)
                ASSERT_EQ(shown->series[0].values[i], static_cast<double>(history + i));
            ASSERT_TRUE(times.empty() || live.ValueOf(first, 0) == static_cast<double>(first));
        }
    }
}

TEST(LiveReadings, NetworkChangesItsUnitForAllReadingsAtOnceAndBack) {
    LiveReadings live;
    EXPECT_FALSE(live.Add(1, Rates(1, 50'000)).unitChanged);
    EXPECT_EQ(live.SeriesNames()[2], "Network in, kB/s");
    EXPECT_TRUE(live.Add(2, Rates(1, 4e6)).unitChanged);
    EXPECT_EQ(live.SeriesNames()[2], "Network in, 100 kB/s");
    EXPECT_DOUBLE_EQ(live.History()->series[2].values[0], 0.5);
    EXPECT_DOUBLE_EQ(live.History()->series[2].values[1], 40);
    live.Add(3, Rates(1, 0));
    EXPECT_TRUE(live.RemoveHead(2).unitChanged) << "the peak has left the history";
    EXPECT_EQ(live.SeriesNames()[2], "Network in, kB/s");
}

TEST(LiveReadings, WhatIsNotToBeHadIsSaidAndIsAGap) {
    LiveReadings live;
    MachineRates rates = Rates(12.34, 0);
    rates.bytesInPerSecond.reset();
    rates.bytesOutPerSecond.reset();
    live.Add(1, rates);
    EXPECT_EQ(live.SeriesNames()[2], "Network in (not available)");
    EXPECT_TRUE(std::isnan(live.History()->series[2].values[0]));
    EXPECT_NE(live.LatestText().find("CPU 12.3 %"), std::string::npos) << live.LatestText();
    EXPECT_NE(live.LatestText().find("Network in not available"), std::string::npos) << live.LatestText();
}

} // namespace
} // namespace kavlix::test
