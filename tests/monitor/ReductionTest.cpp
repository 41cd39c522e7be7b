// What of a long recording reaches the graph.

#include "monitor/Reduction.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavlix::test {
namespace {

using monitor::ReduceForBars;
using monitor::ReduceForLines;
using monitor::ShownSamples;
using recording::Recording;
using recording::VisibleRange;

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

Recording Make(std::vector<std::vector<double>> series) {
    Recording recording;
    recording.files.resize(1);
    recording.files[0].zoned = true;
    for (std::size_t i = 0; i < series.front().size(); ++i)
        recording.times.push_back(static_cast<recording::Time>(i) * 1000);
    for (auto& values : series)
        recording.series.push_back({"series", 0, std::move(values)});
    return recording;
}

/// Values side by side, gaps as NaN, compared with NaN equal to NaN.
void ExpectValues(const std::vector<double>& actual, const std::vector<double>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (std::isnan(expected[i]))
            EXPECT_TRUE(std::isnan(actual[i])) << "at " << i << ": " << actual[i];
        else
            EXPECT_DOUBLE_EQ(actual[i], expected[i]) << "at " << i;
    }
}

TEST(Reduction, AShortPartIsHandedOverAsItIs) {
    const Recording source = Make({{1, 2, kGap, 4, 5, 6}, {9, 8, 7, 6, 5, 4}});
    for (const auto reduce : {ReduceForLines, ReduceForBars}) {
        const ShownSamples shown = reduce(source, {1, 4}, 4);
        EXPECT_EQ(shown.samplesEach, 1u);
        EXPECT_EQ(shown.recording.times, (std::vector<recording::Time>{1000, 2000, 3000, 4000}));
        ASSERT_EQ(shown.recording.series.size(), 2u);
        ExpectValues(shown.recording.series[0].values, {2, kGap, 4, 5});
        ExpectValues(shown.recording.series[1].values, {8, 7, 6, 5});
        EXPECT_TRUE(shown.recording.Zoned()) << "the time axis says UTC";
    }
}

TEST(Reduction, LinesKeepLowestAndHighestOfEveryRunInTheirOrder) {
    //                              run 0          run 1              run 2            run 3: shorter
    const Recording source = Make({{3, 9, 1, 4, /**/ 5, kGap, 7, 6, /**/ kGap, kGap, kGap, kGap, /**/ 2, 2}});
    const ShownSamples shown = ReduceForLines(source, {0, 13}, 8);
    EXPECT_EQ(shown.samplesEach, 4u);
    EXPECT_EQ(shown.recording.times,
              (std::vector<recording::Time>{0, 2000, 4000, 6000, 8000, 10000, 12000, 13000}));
    ExpectValues(shown.recording.series[0].values, {9, 1, 5, 7, kGap, kGap, 2, 2});
}

TEST(Reduction, BarsAreMeansOfWhatIsThere) {
    const Recording source = Make({{1, 3, /**/ kGap, 5, /**/ kGap, kGap, /**/ 8}});
    const ShownSamples shown = ReduceForBars(source, {0, 6}, 4);
    EXPECT_EQ(shown.samplesEach, 2u);
    EXPECT_EQ(shown.recording.times, (std::vector<recording::Time>{0, 2000, 4000, 6000}));
    ExpectValues(shown.recording.series[0].values, {2, 5, kGap, 8});

    const double huge = std::numeric_limits<double>::max();
    ExpectValues(ReduceForBars(Make({{huge, huge, huge, huge}}), {0, 3}, 1).recording.series[0].values,
                 {huge});
}

TEST(Reduction, LinesGoOnAcrossTheTimesOfOtherFiles) {
    // Two files whose rows, every 2 time units, stand between one another; the first lacks the row at 6.
    Recording source = Make({{1, kGap, 3, kGap, 5, kGap, kGap, kGap, 9, kGap},
                             {kGap, 10, kGap, 20, kGap, kGap, kGap, 40, kGap, 50}});
    source.files.resize(2);
    source.files[0].interval = 2000;
    source.files[1].interval = 2000;
    source.series[1].file = 1;
    ShownSamples shown = ReduceForLines(source, {0, 9}, 100);
    ExpectValues(shown.recording.series[0].values, {1, 2, 3, 4, 5, kGap, kGap, kGap, 9, kGap});
    ExpectValues(shown.recording.series[1].values, {kGap, 10, 15, 20, kGap, kGap, kGap, 40, 45, 50});
    shown = ReduceForLines(source, {2, 5}, 2);
    ExpectValues(shown.recording.series[0].values, {3, 5});
    shown = ReduceForBars(source, {0, 3}, 100);
    ExpectValues(shown.recording.series[0].values, {1, kGap, 3, kGap});
    source.files.resize(1);
    source.series[1].file = 0;
    shown = ReduceForLines(source, {0, 9}, 100);
    ExpectValues(shown.recording.series[0].values, source.series[0].values);
}

TEST(Reduction, NeverPassesTheLimitAndNeverLosesAnEnd) {
    for (const std::size_t count : {1u, 2u, 3u, 7u, 100u, 101u, 1000u}) {
        std::vector<double> values;
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(static_cast<double>((i * 7919) % 1009));
        const Recording source = Make({values});
        for (const std::size_t limit : {0u, 1u, 2u, 3u, 8u, 99u, 100u, 5000u}) {
            const VisibleRange all{0, count - 1};
            const ShownSamples lines = ReduceForLines(source, all, limit);
            EXPECT_LE(lines.recording.times.size(), std::max<std::size_t>(limit, 2)) << count << " " << limit;
            EXPECT_EQ(lines.recording.series[0].values.size(), lines.recording.times.size());
            const auto& drawn = lines.recording.series[0].values;
            EXPECT_EQ(*std::max_element(drawn.begin(), drawn.end()),
                      *std::max_element(values.begin(), values.end()));
            EXPECT_EQ(*std::min_element(drawn.begin(), drawn.end()),
                      *std::min_element(values.begin(), values.end()));

            const ShownSamples bars = ReduceForBars(source, all, limit);
            EXPECT_LE(bars.recording.times.size(), std::max<std::size_t>(limit, 1)) << count << " " << limit;
            EXPECT_GE(bars.recording.times.size() * bars.samplesEach, count) << "every sample is in a bar";
        }
    }
}

TEST(Reduction, RangesBeyondTheRecordingAreCut) {
    const Recording source = Make({{1, 2, 3}});
    EXPECT_EQ(ReduceForLines(source, {1, 99}, 10).recording.times.size(), 2u);
    EXPECT_EQ(ReduceForLines(source, {7, 99}, 10).recording.times.size(), 0u);
    EXPECT_TRUE(ReduceForBars(Recording(), {0, 0}, 10).recording.times.empty());
    EXPECT_TRUE(ReduceForLines(Recording(), {0, 0}, 10).recording.times.empty());
}

TEST(Reduction, EveryShownSampleTellsWhereItComesFrom) {
    const Recording source = Make({std::vector<double>(1003, 1)});
    struct {
        ShownSamples shown;
        std::size_t first; ///< of the part that is shown
        std::size_t count;
    } const cases[] = {{ReduceForLines(source, {0, 1002}, 2000), 0, 1003},
                       {ReduceForLines(source, {0, 1002}, 200), 0, 1003},
                       {ReduceForLines(source, {7, 1001}, 100), 7, 995},
                       {ReduceForBars(source, {0, 1002}, 90), 0, 1003}};
    for (const auto& given : cases) {
        const ShownSamples& shown = given.shown;
        for (std::size_t i = 0; i < shown.recording.times.size(); ++i) {
            const std::size_t sample = shown.SampleOf(i, given.count);
            ASSERT_EQ(source.times[given.first + sample], shown.recording.times[i]) << i;
            ASSERT_LE(shown.RunOf(i), sample);
            ASSERT_EQ(shown.recording.times[shown.ShownFor(sample, given.count)], shown.recording.times[i])
                << i;
        }
        for (std::size_t sample = 0; sample < given.count; ++sample) {
            const std::size_t run = shown.RunOf(shown.ShownFor(sample, given.count));
            ASSERT_TRUE(run <= sample && sample < run + shown.samplesEach) << sample;
        }
    }
}

} // namespace
} // namespace kavlix::test
