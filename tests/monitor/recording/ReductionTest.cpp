// SPDX-License-Identifier: MIT
// What of a long recording reaches the graph, compared with a literal reduction of random recordings.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "monitor/recording/Reduction.h"

namespace kavlix::recording {
namespace {

/// One file or two, with times that ascend or repeat, and three series with gaps.
Recording AnyRecording(std::mt19937& random) {
    Recording recording;
    recording.files.resize(1 + random() % 2);
    recording.files.back().zoned = random() % 2 == 0;
    for (FileSummary& file : recording.files)
        file.interval = static_cast<Time>(10 + random() % 30);
    Time time = 0;
    for (unsigned rows = 1 + random() % 120; rows > 0; --rows)
        recording.times.push_back(time += static_cast<Time>(random() % 25));
    for (std::size_t i = 0; i < 3; ++i) {
        recording.series.push_back({"s", i % recording.files.size(), {}});
        const unsigned gaps = random() % 4;
        for (std::size_t row = 0; row < recording.times.size(); ++row)
            recording.series[i].values.push_back(random() % 4 < gaps ? kNoValue : random() % 50);
    }
    return recording;
}

/// The value of a line at a row: the series' own value, or in joined files that of the connecting line.
double LineValue(const Recording& source, const Series& series, std::size_t first, std::size_t end,
                 std::size_t row) {
    const std::vector<double>& values = series.values;
    std::size_t before = row;
    std::size_t behind = row;
    while (before > first && std::isnan(values[before]))
        --before;
    while (behind + 1 < end && std::isnan(values[behind]))
        ++behind;
    const Time step = source.times[behind] - source.times[before];
    if (source.files.size() < 2 || step <= 0 || 2 * step > 3 * source.files[series.file].interval)
        return values[row];
    const double share =
        static_cast<double>(source.times[row] - source.times[before]) / static_cast<double>(step);
    return values[before] * (1 - share) + values[behind] * share;
}

TEST(Reduction, EqualsALiteralOneAndTellsWhereSamplesComeFrom) {
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        const Recording source = AnyRecording(random);
        const std::size_t first = random() % source.times.size();
        const std::size_t last = first + random() % 130;
        const std::size_t end = std::min(last + 1, source.times.size());
        const std::size_t count = end - first;
        const bool bars = random() % 2 == 0;
        const std::size_t limit = random() % 60;
        const std::size_t runs = std::max<std::size_t>(bars ? limit : limit / 2, 1);
        const bool reduced = count > std::max<std::size_t>(limit, bars ? 1 : 2);
        const std::size_t each = reduced ? (count + runs - 1) / runs : 1;

        std::vector<Time> times;
        std::vector<double> values[3];
        for (std::size_t begin = first; begin < end; begin += each) {
            const std::size_t runEnd = std::min(begin + each, end);
            times.push_back(source.times[begin]);
            if (reduced && !bars)
                times.push_back(source.times[begin + (runEnd - begin) / 2]);
            for (std::size_t i = 0; i < 3; ++i) {
                const Series& series = source.series[i];
                std::vector<double> run;
                for (std::size_t row = begin; row < runEnd; ++row)
                    run.push_back(bars ? series.values[row] : LineValue(source, series, first, end, row));
                run.erase(std::remove_if(run.begin(), run.end(), [](double v) { return std::isnan(v); }),
                          run.end());
                const auto [low, high] = std::pair(std::min_element(run.begin(), run.end()),
                                                   std::max_element(run.begin(), run.end()));
                if (run.empty())
                    values[i].insert(values[i].end(), reduced && !bars ? 2 : 1, kNoValue);
                else if (reduced && !bars)
                    values[i].insert(values[i].end(), {*std::min(low, high), *std::max(low, high)});
                else
                    values[i].push_back(std::accumulate(run.begin(), run.end(), 0.0) /
                                        static_cast<double>(run.size()));
            }
        }

        const ShownSamples shown = (bars ? ReduceForBars : ReduceForLines)(source, {first, last}, limit);
        ASSERT_EQ(shown.samplesEach, each);
        ASSERT_EQ(shown.recording.times, times);
        ASSERT_EQ(shown.recording.Zoned(), source.Zoned()) << "the time axis says UTC";
        for (std::size_t i = 0; i < 3; ++i) {
            const std::vector<double>& found = shown.recording.series[i].values;
            ASSERT_EQ(found.size(), times.size());
            for (std::size_t k = 0; k < found.size(); ++k)
                ASSERT_TRUE(std::isnan(values[i][k]) ? std::isnan(found[k])
                                                     : std::abs(found[k] - values[i][k]) < 1e-9)
                    << found[k] << " for " << values[i][k];
        }
        for (std::size_t i = 0; i < times.size(); ++i) {
            const std::size_t sample = shown.SampleOf(i, count);
            ASSERT_EQ(source.times[first + sample], times[i]);
            ASSERT_EQ(times[shown.ShownFor(sample, count)], times[i]);
        }
        for (std::size_t sample = 0; sample < count; ++sample)
            ASSERT_EQ(shown.RunOf(shown.ShownFor(sample, count)), sample / each * each);
    }
}

} // namespace
} // namespace kavlix::recording
