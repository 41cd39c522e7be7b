// Rates out of the system's counters, and the history they are shown from.

#include "monitor/LiveReadings.h"
#include "monitor/MachineCounters.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kavlix::test {
namespace {

using monitor::InterfaceCounters, monitor::LiveReadings, monitor::MachineCounters, monitor::MachineRates;

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

TEST(MachineRates, InterfacesThatComeGoOrStartAnewCountNothing) {
    const MachineRates rates = RatesBetween(Counters(0, 0, 0, {{1, 5000, 5000}, {2, 900, 900}}),
                                            Counters(1, 0, 1, {{1, 100, 5010}, {3, 1'000'000, 1'000'000}}));
    EXPECT_DOUBLE_EQ(*rates.bytesInPerSecond, 0);
    EXPECT_DOUBLE_EQ(*rates.bytesOutPerSecond, 10);
}

TEST(MachineRates, WhatIsNotToldIsAbsentAndNotZero) {
    const MachineCounters full = Counters(1, 10, 20, {{1, 1, 1}});
    MachineCounters bare;
    bare.seconds = 2;
    const MachineRates none = RatesBetween(full, bare);
    EXPECT_FALSE(none.processorPercent || none.memoryPercent || none.bytesInPerSecond ||
                 none.bytesOutPerSecond);
    const MachineRates sameMoment = RatesBetween(full, full);
    EXPECT_FALSE(sameMoment.processorPercent || sameMoment.bytesInPerSecond);
    EXPECT_FALSE(RatesBetween(Counters(1, 0, 1, {}), Counters(2, 0, 2, {})).bytesInPerSecond)
        << "a machine without a network";
    // Idle time may be told a little ahead of the total.
    EXPECT_DOUBLE_EQ(*RatesBetween(Counters(1, 0, 0, {}), Counters(2, 11, 10, {})).processorPercent, 0);
}

TEST(MachineRates, UnitsHoldRatesBetween0And100) {
    struct {
        double highest;
        double unit;
        const char* text;
    } const cases[] = {{0, 1e3, "kB/s"},          {1e5, 1e3, "kB/s"},     {1.1e5, 1e4, "10 kB/s"},
                       {1e6, 1e4, "10 kB/s"},     {5e6, 1e5, "100 kB/s"}, {2e7, 1e6, "MB/s"},
                       {1.25e9, 1e8, "100 MB/s"}, {NAN, 1e3, "kB/s"}};
    for (const auto& given : cases) {
        const monitor::RateUnit unit = monitor::ChooseRateUnit(given.highest);
        EXPECT_NEAR(unit.bytesPerSecond / given.unit, 1, 1e-9) << given.highest;
        EXPECT_EQ(unit.text, given.text) << given.highest;
    }
    EXPECT_GT(monitor::ChooseRateUnit(INFINITY).bytesPerSecond, 1e9) << "and it ends";
}

TEST(MachineRates, AreWrittenForPeople) {
    struct {
        double rate;
        const char* text;
    } const cases[] = {{0, "0 B/s"},       {812.4, "812 B/s"},   {999.4, "999 B/s"},    {999.6, "1.0 kB/s"},
                       {3400, "3.4 kB/s"}, {99'960, "100 kB/s"}, {999'600, "1.0 MB/s"}, {1.2e8, "120 MB/s"},
                       {-5, "0 B/s"},      {NAN, "0 B/s"}};
    for (const auto& given : cases)
        EXPECT_EQ(monitor::FormatRate(given.rate), given.text);
}

TEST(MachineCountersOfThisMachine, AreRealAndOnlyGrow) {
    const MachineCounters first = monitor::ReadMachineCounters();
    ASSERT_TRUE(first.processor && first.memoryPercent);
    EXPECT_GT(first.processor->total, first.processor->idle);
    EXPECT_GT(*first.memoryPercent, 0);
    EXPECT_LT(*first.memoryPercent, 100);
    MachineCounters second = monitor::ReadMachineCounters();
    // The system counts in ticks: some work passes until it has counted one.
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

TEST(LiveReadings, KeepTheLatestAndTellWhatWent) {
    LiveReadings live;
    EXPECT_EQ(live.History()->series.size(), 4u);
    EXPECT_TRUE(live.History()->times.empty());
    for (std::size_t i = 0; i < LiveReadings::kHistory; ++i)
        EXPECT_EQ(live.Add(static_cast<recording::Time>(i), Rates(static_cast<double>(i), 0)).removed, 0u);
    EXPECT_EQ(live.Add(5000, Rates(77, 0)).removed, 1u);
    const auto history = live.History();
    EXPECT_EQ(history->times.size(), LiveReadings::kHistory);
    EXPECT_EQ(history->times.front(), 1);
    EXPECT_EQ(history->series[0].values.front(), 1);
    EXPECT_EQ(history->series[0].values.back(), 77);
}

TEST(LiveReadings, LoseTheirHeadAndGoOn) {
    LiveReadings live;
    EXPECT_EQ(live.RemoveHead(5).removed, 0u);
    live.Add(1, Rates(1, 4e6));
    for (recording::Time time = 2; time <= 6; ++time)
        live.Add(time, Rates(static_cast<double>(time), 0));
    EXPECT_TRUE(live.RemoveHead(2).unitChanged) << "the peak went";
    EXPECT_EQ(live.History()->times, (std::vector<recording::Time>{3, 4, 5, 6}));
    EXPECT_EQ(live.History()->series[0].values.front(), 3);
    live.Add(7, Rates(7, 0));
    EXPECT_EQ(live.History()->times.size(), 5u);
    EXPECT_EQ(live.RemoveHead(100).removed, 4u) << "the latest stays";
}

TEST(LiveReadings, TimesAscendAlsoWhenTheClockIsSetBack) {
    LiveReadings live;
    for (const recording::Time time : {1000, 2000, 500, 500, 3000})
        live.Add(time, Rates(1, 1));
    const auto& times = live.History()->times;
    for (std::size_t i = 1; i < times.size(); ++i)
        EXPECT_GT(times[i], times[i - 1]);
    EXPECT_EQ(times.back(), 3000);
}

TEST(LiveReadings, NetworkChangesItsUnitForAllReadingsAtOnceAndBack) {
    LiveReadings live;
    EXPECT_FALSE(live.Add(1, Rates(1, 50'000)).unitChanged);
    EXPECT_EQ(live.SeriesNames()[2], "Network in, kB/s");
    EXPECT_TRUE(live.Add(2, Rates(1, 4e6)).unitChanged);
    EXPECT_EQ(live.SeriesNames()[2], "Network in, 100 kB/s");
    EXPECT_EQ(live.SeriesNames()[3], "Network out, 100 kB/s");
    EXPECT_DOUBLE_EQ(live.History()->series[2].values[0], 0.5);
    EXPECT_DOUBLE_EQ(live.History()->series[2].values[1], 40);
    EXPECT_DOUBLE_EQ(live.History()->series[0].values[1], 1) << "percents stay percents";
    bool changedBack = false;
    for (std::size_t i = 0; i < LiveReadings::kHistory; ++i)
        changedBack |= live.Add(static_cast<recording::Time>(10 + i), Rates(1, 0)).unitChanged;
    EXPECT_TRUE(changedBack) << "the peak has left the history";
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
    live.Add(2, Rates(1, 5));
    EXPECT_EQ(live.SeriesNames()[2], "Network in, kB/s") << "once it was to be had, gaps are gaps";
}

} // namespace
} // namespace kavlix::test
