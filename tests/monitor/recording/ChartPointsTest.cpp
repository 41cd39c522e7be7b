// SPDX-License-Identifier: MIT
// The points of one series against another, in single and in joined files.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "monitor/recording/ChartPoints.h"

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
                 {{ChartX::Predecessor, 0, 0}, "0:- 1:1,2 2:- 3:- 4:4,5 "},
                 {{ChartX::Time, 0, 1}, "0:0,10 1:- 2:2,30 3:3,40 4:4,50 "}};
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

TEST(ChartPoints, ChoosesWhatThereIsAndUnitsOfPeoplesSize) {
    EXPECT_EQ(DefaultChartChoice({2, 5, 6}), (ChartChoice{ChartX::Series, 2, 5}));
    EXPECT_EQ(DefaultChartChoice({3}), (ChartChoice{ChartX::Predecessor, 0, 3}));
    EXPECT_EQ(DefaultChartChoice({}), (ChartChoice{ChartX::Predecessor, 0, 0}));
    EXPECT_STREQ(TimeUnitOf(2 * kMinute).name, "minutes");
    EXPECT_STREQ(TimeUnitOf(120 * kMinute).name, "hours");
}

} // namespace
} // namespace kavlix::recording
