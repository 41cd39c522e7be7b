// SPDX-License-Identifier: MIT
// Time labels, and the view of the graph page.

#include <gtest/gtest.h>

#include <cmath>

#include "monitor/recording/ViewChoice.h"

namespace kavlix::recording {
namespace {

Time At(const char* text) {
    ParsedTime time;
    EXPECT_TRUE(ParseTime(text, time)) << text;
    return time.time;
}

TEST(TimeLabels, SuitTheRecordingsLength) {
    const struct {
        std::vector<const char*> times;
        int labels;
        const char* label;
        const char* title;
    } cases[] = {
        {{"2013-12-02 14:05:00.25", "2013-12-02 14:05:30"}, 20, "14:05:00.250", "2013-12-02"},
        {{"2013-12-02 14:05:00.000001", "2013-12-02 18:05:01"}, 20, "14:05:00", "2013-12-02"},
        {{"2013-12-02 14:05:00", "2013-12-02 23:55:00"}, 20, "14:05", "2013-12-02"},
        {{"2013-12-02 21:15:00", "2014-02-19 15:25:00"}, 20, "2013-12-02", "2013-12-02 to 2014-02-19"},
        {{"2013-12-02 21:15:07", "2013-12-12 21:15:07"}, 10, "2013-12-02", "2013-12-02 to 2013-12-12"},
        {{"2013-12-02 21:15:07", "2013-12-12 21:15:06"},
         10,
         "12-02 21:15",
         "2013-12-02 21:15 to 2013-12-12 21:15"},
        {{"2013-12-02", "2013-12-03", "2013-12-04"}, 20, "2013-12-02", "2013-12-02 to 2013-12-04"},
        {{"2013-12-01", "2014-01-01", "2014-02-01"}, 20, "2013-12", "2013-12 to 2014-02"},
        {{"1990-01-01", "1991-01-01"}, 20, "1990", "1990 to 1991"},
        {{"1969-12-31"}, 20, "1969-12-31", "1969-12-31"},
    };
    for (const auto& one : cases) {
        std::vector<Time> times;
        for (const char* text : one.times)
            times.push_back(At(text));
        const TimeLabelStyle style = ChooseTimeLabels(times, one.labels);
        const std::string label = MakeTimeLabel(style, times.front());
        EXPECT_EQ(label, one.label) << one.title;
        EXPECT_EQ(TimeAxisTitle(times, style, false), one.title);
        EXPECT_EQ(TimeAxisTitle(times, style, true), std::string(one.title) + " (UTC)");
        // A digit of the labels' font is about 150 units wide.
        EXPECT_GE(style.bandHeight, 100 + 150 * static_cast<int>(label.size())) << one.title;
    }
    EXPECT_EQ(TimeAxisTitle({}, ChooseTimeLabels({}, 20), false), "Time");
}

Recording MakeRecording(std::vector<double> sizes) {
    Recording recording;
    recording.series.resize(sizes.size());
    for (std::size_t i = 0; i < 1000; ++i) {
        recording.times.push_back(static_cast<Time>(i) * kMicrosPerSecond);
        for (std::size_t k = 0; k < sizes.size(); ++k)
            recording.series[k].values.push_back(
                i % 10 == 3 ? NAN : sizes[k] * static_cast<double>(i % 7 + 4) / 10.0);
    }
    return recording;
}

TEST(ViewChoice, EveryStyleGetsItsRanges) {
    const Recording recording = MakeRecording({100, 5000, 400});
    ViewRequest request;
    const ViewChoice line = ChooseView(recording, request);
    EXPECT_GE(line.y.max, 5000);
    EXPECT_EQ(line.y2.max, line.y.max);
    EXPECT_EQ(line.visible.first, 0u);

    request.style = ViewStyle::TwoAxis;
    const ViewChoice two = ChooseView(recording, request);
    EXPECT_GE(two.y.max, 100) << "series 0 on the left axis, series 1 on the right, no other is drawn";
    EXPECT_LE(two.y.max, 120);
    EXPECT_EQ(two.y.min, 40);
    EXPECT_GE(two.y2.max, 5000);

    request.style = ViewStyle::Bar;
    request.plotWidth = 12'000;
    const ViewChoice bar = ChooseView(MakeRecording({1}), request);
    EXPECT_EQ(bar.visible.last, 999u);
    EXPECT_EQ(bar.visible.last - bar.visible.first + 1, 200u);
    EXPECT_EQ(bar.y.min, 0);
}

} // namespace
} // namespace kavlix::recording
