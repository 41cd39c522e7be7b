// SPDX-License-Identifier: MIT
// The points of series over time and of one against another, in single and in joined files.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>

#include "monitor/recording/ChartPoints.h"
#include "monitor/recording/RecordingLoader.h"
#include "tests/support/TempFolder.h"

namespace kavlix::recording {
namespace {

constexpr Time kMinute = kMicrosPerMinute;

/// `row:x,y` of every point; `row:-` of a gap.
std::string TextOf(const std::vector<ChartPoint>& points) {
    std::string text;
    for (const ChartPoint& point : points) {
        char part[64] = "- ";
        if (!std::isnan(point.x) && !std::isnan(point.y))
            std::snprintf(part, sizeof part, "%g,%g ", point.x, point.y);
        text += std::to_string(point.row) + ':' + part;
    }
    return text;
}

TEST(ChartPoints, OfOneFileMakesARowAPointAndAMissingValueAGap) {
    Recording recording;
    for (int row = 0; row < 5; ++row)
        recording.times.push_back((row + 100) * kMinute);
    recording.series = {{"a", 0, {1, 2, NAN, 4, 5}}, {"b", 0, {10, NAN, 30, 40, 50}}};
    recording.files.resize(1);
    const struct {
        ChartChoice choice;
        const char* points;
    } cases[] = {{{ChartX::Series, 0, 1}, "0:1,10 1:- 2:- 3:4,40 4:5,50 "},
                 {{ChartX::Predecessor, 0, 0}, "0:- 1:1,2 2:- 3:- 4:4,5 "}};
    for (const auto& given : cases)
        EXPECT_EQ(TextOf(ChartPointsOf(recording, given.choice)), given.points);
}

TEST(ChartPoints, OfJoinedFilesTakesTheNearestValueWithinTheFilesInterval) {
    Recording recording;
    // a at 0, 10, 20, 90, 100 minutes, b at 4, 14, 93 minutes.
    for (const int minute : {0, 4, 10, 14, 20, 90, 93, 100})
        recording.times.push_back(minute * kMinute);
    recording.series = {{"a", 0, {1, NAN, 2, NAN, 3, 9, NAN, 10}},
                        {"b", 1, {NAN, 40, NAN, 50, NAN, NAN, 90, NAN}}};
    recording.files.resize(2);
    recording.files[0].interval = recording.files[1].interval = 10 * kMinute;
    EXPECT_EQ(TextOf(ChartPointsOf(recording, {ChartX::Series, 0, 1})),
              "0:1,40 2:2,50 4:3,50 5:- 5:9,90 7:10,90 ");
    EXPECT_EQ(TextOf(ChartPointsOf(recording, {ChartX::Predecessor, 0, 0})),
              "0:- 2:1,2 4:2,3 5:- 5:- 7:9,10 ");
    recording.files[1].interval = 5 * kMinute;
    EXPECT_EQ(TextOf(ChartPointsOf(recording, {ChartX::Series, 0, 1})), "0:1,40 2:2,50 4:- 5:- 5:9,90 7:- ");
}

TEST(ChartPoints, OverTimeASeriesHasTheRowsOfItsFile) {
    const testkit::TempFolder folder;
    const Recording recording =
        RecordingLoader::Load({folder.Write("slow.csv", "t,a,b\n10,1,2\n20,,\n30,,6\n"),
                               folder.Write("fast.csv", "t,c\n20.3,7\n20.800001,8\n30,9\n")});
    const auto text = [](const Recording& of, std::size_t series, std::size_t firstRow) {
        const TimedSamples samples = SamplesOverTime(of, series, 10 * kMicrosPerSecond, firstRow);
        std::vector<ChartPoint> points;
        for (std::size_t i = 0; i < samples.x.size(); ++i)
            points.push_back({i, samples.x[i], samples.y[i]});
        return TextOf(points);
    };
    EXPECT_EQ(text(recording, 0, 0), "0:0,1 1:- 2:- ") << "a row without values is a gap";
    EXPECT_EQ(text(recording, 1, 0), "0:0,2 1:- 2:20,6 ");
    EXPECT_EQ(text(recording, 2, 0), "0:10.3,7 1:10.8,8 2:20,9 ") << "rows of the other file are not";
    EXPECT_EQ(text(WithoutHead(recording, 2), 2, 1), "0:10.8,8 1:20,9 ");
    EXPECT_EQ(text(WithoutHead(recording, 2), 1, 0), "0:20,6 ");
}

TEST(ChartPoints, RowsAreFoundByTimeAsAPlainWalkFindsThem) {
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        std::vector<Time> times(1 + random() % 12);
        for (Time& time : times)
            time = static_cast<Time>(random() % 20) * kMicrosPerSecond - 10 * kMicrosPerSecond;
        std::sort(times.begin(), times.end());
        const Time origin = static_cast<Time>(random() % 5) * kMicrosPerSecond;
        const double from = static_cast<double>(random() % 60) / 2 - 20;
        const double to = from + static_cast<double>(random() % 20) / 2;
        std::size_t nearest = 0;
        std::vector<std::size_t> inside;
        for (std::size_t row = 0; row < times.size(); ++row) {
            const auto away = [&](std::size_t of) { return std::abs(SecondsFrom(origin, times[of]) - from); };
            nearest = away(row) < away(nearest) ? row : nearest;
            if (SecondsFrom(origin, times[row]) >= from && SecondsFrom(origin, times[row]) <= to)
                inside.push_back(row);
        }
        ASSERT_EQ(RowNear(times, origin, from), nearest);
        const VisibleRange found = RowsBetween(times, origin, from, to);
        ASSERT_EQ(found.first, inside.empty() ? nearest : inside.front());
        ASSERT_EQ(found.last, inside.empty() ? nearest : inside.back());
    }
}

} // namespace
} // namespace kavlix::recording
