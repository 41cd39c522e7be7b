// SPDX-License-Identifier: MIT
// Recordings as rows of whole seconds, and the choices of the scroll page.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "monitor/recording/ScrollChoice.h"
#include "monitor/recording/ScrollRows.h"
#include "monitor/recording/SpanIndex.h"

namespace kavlix::recording {
namespace {

constexpr Time S = kMicrosPerSecond;
constexpr double kNone = NAN;

Recording At(std::vector<Time> times, Time interval) {
    Recording recording;
    recording.times = std::move(times);
    recording.files.resize(1);
    recording.files[0].interval = interval;
    return recording;
}

std::vector<ScrollRow> RowsOf(const Recording& recording, const ScrollPlan& plan, std::size_t slice) {
    std::vector<ScrollRow> rows;
    for (std::size_t sample = plan.first; sample < recording.times.size();)
        AppendRows(recording, plan, sample, slice, rows);
    return rows;
}

TEST(ScrollRows, RowsAreWholeSecondsAndGapsAreFilledWhateverTheSlice) {
    // Before 1970 too; three in one second; a gap of five intervals; then regular ones.
    std::vector<Time> times = {-1 * S - 1, S, S + 1, S + S / 2, 2 * S, 3 * S};
    for (Time i = 8; i < 40; ++i)
        times.push_back(i * S);
    const Recording recording = At(times, S);
    const ScrollPlan plan = PlanScrollRows(recording);
    EXPECT_EQ(plan.interval, S);
    EXPECT_FALSE(plan.wholeSeconds);
    for (const std::size_t slice : {1u, 2u, 1000u}) {
        const std::vector<ScrollRow> rows = RowsOf(recording, plan, slice);
        ASSERT_EQ(rows.size(), 1 + 2 + 3 + 4 + 32u) << slice;
        for (std::size_t i = 0; i < rows.size(); ++i)
            EXPECT_EQ(rows[i].time, (static_cast<Time>(i) - 2) * S) << slice;
        EXPECT_EQ(rows[3].sample, 1u);
        EXPECT_EQ(rows[3].count, 3u);
        EXPECT_EQ(rows[6].count, 0u) << "a gap";
        EXPECT_EQ(rows[6].sample, 6u) << "goes with the sample behind it";
    }
}

TEST(ScrollRows, GapsThatAreUsualOrEndlessStayBoundedAndSoDoTimes) {
    std::vector<Time> bursts;
    for (Time i = 0; i < 100; ++i)
        bursts.push_back((i / 2 * 60 + i % 2) * S);
    EXPECT_EQ(PlanScrollRows(At(bursts, S)).interval, 0) << "gaps are usual here";
    std::vector<ScrollRow> rows;
    AppendGapRows(0, 100'000'000 * S, S, 7, rows);
    EXPECT_LE(rows.size(), 1001u);
    EXPECT_GE(rows.size(), 900u);
    const Time year = 31'536'000 * S;
    EXPECT_EQ(PlanScrollRows(At({0, year, 2 * year, 3 * year, 4 * year}, year)).first, 1u);
    EXPECT_EQ(PlanScrollRows(At({-100 * year, 0, year}, year)).first, 1u) << "not before 1901";
    EXPECT_EQ(PlanScrollRows(At({100 * year, 101 * year}, year)).first, 2u);
}

TEST(ScrollRows, OfSeveralValuesThePeakIsShown) {
    const std::vector<double> values = {1, kNone, 9, 2, -3};
    EXPECT_EQ(PeakValue(values, {0, 0, 4}, 2), 9);
    EXPECT_EQ(PeakValue(values, {0, 0, 5}, 8), -3);
    EXPECT_EQ(PeakValue(values, {0, 0, 5}, kNone), 1) << "nothing before";
    EXPECT_TRUE(std::isnan(PeakValue(values, {0, 2, 0}, 2))) << "a gap";
}

TEST(ScrollRows, SeriesAreSharedOutByMagnitudeAndTheRangeFollowsFromTheLength) {
    const auto share = [](std::vector<double> magnitudes) {
        std::vector<ValueSpan> spans;
        for (const double magnitude : magnitudes)
            spans.push_back({true, -magnitude / 2, magnitude});
        std::string text;
        for (const bool below : DivideByMagnitude(spans))
            text += below ? 'v' : '^';
        return text;
    };
    EXPECT_EQ(share({100, 90, 1e6, 30, 0.1}), "^^v^v");
    EXPECT_EQ(share({100, 90, 80}), "^vv") << "none is of another magnitude";
    for (const auto& [seconds, range] : {std::pair(61, 0u), {150, 1}, {90'000, 5}, {100'000'000, 6}})
        EXPECT_EQ(ChooseViewRange(seconds * S), range) << seconds;
}

TEST(SpanIndex, FindsWhatLookingAtEveryValueFinds) {
    std::mt19937 random(7);
    std::vector<double> values;
    SpanIndex index;
    for (int round = 0; round < 400; ++round) {
        for (unsigned i = random() % 60; i > 0; --i) {
            const double value = random() % 9 == 0 ? kNone : static_cast<double>(random() % 100'000);
            values.push_back(value);
            index.Append(value);
        }
        const std::size_t gone = std::min<std::size_t>(random() % 50, values.size());
        values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(gone));
        index.RemoveHead(gone);
        ASSERT_EQ(index.Size(), values.size());
        const std::size_t first = random() % (values.size() + 1);
        const std::size_t count = random() % (values.size() + 2);
        std::size_t asked = 0;
        const ValueSpan found = index.Of(first, first + count, [&](std::size_t i) {
            ++asked;
            return values[i];
        });
        const ValueSpan plain = SpanOf(values, std::min(first, values.size()), count);
        ASSERT_EQ(found.any, plain.any);
        ASSERT_EQ(found.min, plain.min);
        ASSERT_EQ(found.max, plain.max);
        EXPECT_LE(asked, 512u);
    }
}

} // namespace
} // namespace kavlix::recording
