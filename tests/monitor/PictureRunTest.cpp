// KavlixMonitor --shot: the saved picture shows the recording.

#include "monitor/GraphSettings.h"
#include "tests/monitor/MonitorProcess.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kavlix::test {
namespace {

/// The colour of a series in a picture.
std::uint32_t ColorOf(std::size_t series) {
    const COLORREF color = monitor::DefaultSeriesColor(series);
    return static_cast<std::uint32_t>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

/// A recording of `rows` rows, a minute apart; `value` gives each series' value by row.
template <class Value> std::string Csv(int rows, int series, Value value) {
    std::string text = "time";
    for (int s = 0; s < series; ++s)
        text += ",series " + std::to_string(s);
    text += "\n";
    for (int row = 0; row < rows; ++row) {
        text += std::to_string(row * 60);
        for (int s = 0; s < series; ++s)
            text += "," + std::to_string(value(row, s));
        text += "\n";
    }
    return text;
}

class MonitorPicture : public testing::Test {
protected:
    /// The picture that the Monitor saves with these arguments, which must end it with this status.
    Picture Shot(std::vector<std::string> arguments, unsigned status = 0) {
        const std::string shot = m_folder.Path("out.png");
        arguments.insert(arguments.end(), {"--shot", shot});
        m_run = RunMonitor(arguments);
        EXPECT_EQ(m_run.status, status) << m_run.error;
        return ReadPicture(shot);
    }

    TempFolder m_folder;
    MonitorRun m_run; ///< the last
};

TEST_F(MonitorPicture, HasTheSizeAskedForAndTheLineFromEndToEnd) {
    const std::string recording =
        m_folder.Write("wave.csv", Csv(500, 1, [](int row, int) { return 50 + 40 * std::sin(row / 20.0); }));
    struct {
        const char* text;
        int width;
        int height;
    } const sizes[] = {{"500x350", 500, 350},
                       {"1000x640", 1000, 640},
                       {"2000x1500", 2000, 1500}}; // one larger than the screen
    for (const auto& size : sizes) {
        const Picture picture = Shot({recording, "--size", size.text});
        ASSERT_EQ(picture.width, size.width);
        ASSERT_EQ(picture.height, size.height);
        EXPECT_GT(picture.Count(ColorOf(0)), size.width) << "a line through the plot";
        EXPECT_LT(picture.Where(ColorOf(0)).left, size.width / 4);
        EXPECT_GT(picture.Where(ColorOf(0)).right, size.width - size.width / 10)
            << "one series: no legend beside it";
        const int swing = picture.Where(ColorOf(0)).bottom - picture.Where(ColorOf(0)).top;
        EXPECT_GT(swing, size.height / 3) << "the range is chosen from the values";
    }
}

TEST_F(MonitorPicture, BarsStandWhereLinesWouldAndCoverTheWholeRecording) {
    // Far more samples than there is room for bars; the values rise in the middle of the recording.
    const std::string recording = m_folder.Write(
        "many.csv", Csv(20'000, 1, [](int row, int) { return row > 8'000 && row < 12'000 ? 90.0 : 10.0; }));
    const Picture picture = Shot({recording, "--size", "800x500", "--style", "bar"});
    ASSERT_EQ(picture.width, 800);
    const int left = picture.Where(ColorOf(0)).left;
    const int right = picture.Where(ColorOf(0)).right;
    EXPECT_GT(right - left, 600);
    const auto filled = [&](double from, double to) {
        return picture.Count(ColorOf(0), left + static_cast<int>((right - left) * from),
                             left + static_cast<int>((right - left) * to));
    };
    EXPECT_GT(filled(0.45, 0.55), 5 * filled(0.15, 0.25)) << "high bars in the middle";
    EXPECT_GT(filled(0.85, 0.95), 0) << "low bars to the end";
}

TEST_F(MonitorPicture, SeveralFilesGiveSeveralColours) {
    const std::string first =
        m_folder.Write("first.csv", Csv(200, 1, [](int row, int) { return 20 + 5 * std::sin(row / 9.0); }));
    const std::string second = m_folder.Write(
        "second.csv", Csv(200, 2, [](int row, int s) { return 40 + 20 * s + 5 * std::cos(row / 7.0); }));
    for (const char* style : {"line", "twoaxis"}) {
        const Picture picture = Shot({first, second, "--style", style});
        EXPECT_GT(picture.Count(ColorOf(0)), 200) << style;
        EXPECT_GT(picture.Count(ColorOf(1)), 200) << style;
        if (std::string(style) == "line")
            EXPECT_GT(picture.Count(ColorOf(2)), 200);
        else
            EXPECT_EQ(picture.Count(ColorOf(2)), 0) << "two axes serve two series";
    }
}

TEST_F(MonitorPicture, WhatIsWrongIsToldAndTheRestIsShown) {
    const std::string recording =
        m_folder.Write("bad.csv", Csv(50, 1, [](int row, int) { return row * 1.5; }) + "no time,1\n");
    EXPECT_GT(Shot({recording}, 1).Count(ColorOf(0)), 50);
    EXPECT_NE(m_run.error.find(recording + ":52:1: "), std::string::npos) << m_run.error;

    // What cannot be shown or written ends it with 2.
    EXPECT_GT(Shot({m_folder.Path("none.csv")}, 2).width, 0) << "the window told it: a picture of that";
    EXPECT_NE(m_run.error.find("none.csv"), std::string::npos) << m_run.error;
    m_run = RunMonitor({recording, "--shot", m_folder.Path("no such folder\\out.png")});
    EXPECT_EQ(m_run.status, 2u);
    EXPECT_NE(m_run.error.find("no such folder"), std::string::npos) << m_run.error;
}

TEST_F(MonitorPicture, LiveReadingsRunAsLongAsAsked) {
    const Picture picture = Shot({"--seconds", "3.5", "--page", "graph"});
    // The memory's line has three readings: it covers a good part of the axis, and cannot lie at 0.
    EXPECT_GT(picture.Count(ColorOf(1)), 100);

    const Picture two = Shot({"--seconds", "1.5"});
    // A graph for percents over one for rates: each has its legend.
    EXPECT_GT(two.Count(ColorOf(0)), 0);
    EXPECT_LT(two.Where(ColorOf(0)).top, two.height / 2);
    EXPECT_GT(two.Where(ColorOf(2)).top, two.height / 2);
}

} // namespace
} // namespace kavlix::test
