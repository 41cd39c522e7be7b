// KavlixMonitor --shot: the saved picture shows the recording.

#include "monitor/GraphSettings.h"
#include "tests/monitor_app/MonitorProcess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

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
        char cell[64];
        std::snprintf(cell, sizeof cell, "2021-03-%02d %02d:%02d:00", 1 + row / 1440, row / 60 % 24,
                      row % 60);
        text += cell;
        for (int s = 0; s < series; ++s) {
            std::snprintf(cell, sizeof cell, ",%.3f", value(row, s));
            text += cell;
        }
        text += "\n";
    }
    return text;
}

TEST(MonitorPicture, HasTheSizeAskedForAndTheLineFromEndToEnd) {
    const TempFolder folder;
    const std::string recording =
        folder.Write("wave.csv", Csv(500, 1, [](int row, int) { return 50 + 40 * std::sin(row / 20.0); }));
    const std::string shot = folder.Path("out.png");
    struct {
        const char* text;
        int width;
        int height;
    } const sizes[] = {{"500x350", 500, 350}, {"1000x640", 1000, 640}};
    for (const auto& size : sizes) {
        const MonitorRun run = RunMonitor({recording, "--shot", shot, "--size", size.text});
        ASSERT_TRUE(run.ended);
        EXPECT_EQ(run.status, 0u) << run.error;
        const Picture picture = ReadPicture(shot);
        ASSERT_EQ(picture.width, size.width);
        ASSERT_EQ(picture.height, size.height);
        EXPECT_GT(picture.Count(ColorOf(0)), size.width) << "a line through the plot";
        EXPECT_LT(picture.LeftOf(ColorOf(0)), size.width / 4);
        EXPECT_GT(picture.RightOf(ColorOf(0)), size.width - size.width / 10)
            << "one series: no legend beside it";
        const int swing = picture.BottomOf(ColorOf(0)) - picture.TopOf(ColorOf(0));
        EXPECT_GT(swing, size.height / 3) << "the range is chosen from the values";
    }
}

TEST(MonitorPicture, LargerThanTheScreenIsWhole) {
    const TempFolder folder;
    const std::string recording =
        folder.Write("ramp.csv", Csv(100, 1, [](int row, int) { return static_cast<double>(row); }));
    const std::string shot = folder.Path("out.png");
    const MonitorRun run = RunMonitor({recording, "--shot", shot, "--size", "2000x1500"});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.error;
    const Picture picture = ReadPicture(shot);
    ASSERT_EQ(picture.width, 2000);
    ASSERT_EQ(picture.height, 1500);
    // A ramp goes from the lower left to the upper right corner of the plot.
    EXPECT_GT(picture.RightOf(ColorOf(0)), 1850);
    EXPECT_LT(picture.LeftOf(ColorOf(0)), 200);
    EXPECT_LT(picture.TopOf(ColorOf(0)), 450);
    EXPECT_GT(picture.BottomOf(ColorOf(0)), 1100);
}

TEST(MonitorPicture, BarsStandWhereLinesWouldAndCoverTheWholeRecording) {
    const TempFolder folder;
    // Far more samples than there is room for bars; the values rise in the middle of the recording.
    const std::string recording = folder.Write(
        "many.csv", Csv(20'000, 1, [](int row, int) { return row > 8'000 && row < 12'000 ? 90.0 : 10.0; }));
    const std::string shot = folder.Path("out.png");
    const MonitorRun run = RunMonitor({recording, "--shot", shot, "--size", "800x500", "--style", "bar"});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.error;
    const Picture picture = ReadPicture(shot);
    ASSERT_EQ(picture.width, 800);
    const int left = picture.LeftOf(ColorOf(0));
    const int right = picture.RightOf(ColorOf(0));
    EXPECT_GT(right - left, 600);
    const auto filled = [&](double from, double to) {
        return picture.Count(ColorOf(0), left + static_cast<int>((right - left) * from),
                             left + static_cast<int>((right - left) * to));
    };
    EXPECT_GT(filled(0.45, 0.55), 5 * filled(0.15, 0.25)) << "high bars in the middle";
    EXPECT_GT(filled(0.85, 0.95), 0) << "low bars to the end";
}

TEST(MonitorPicture, SeveralFilesGiveSeveralColours) {
    const TempFolder folder;
    const std::string first =
        folder.Write("first.csv", Csv(200, 1, [](int row, int) { return 20 + 5 * std::sin(row / 9.0); }));
    const std::string second = folder.Write(
        "second.csv", Csv(200, 2, [](int row, int s) { return 40 + 20 * s + 5 * std::cos(row / 7.0); }));
    const std::string shot = folder.Path("out.png");
    for (const char* style : {"line", "twoaxis"}) {
        const MonitorRun run = RunMonitor({first, second, "--shot", shot, "--style", style});
        ASSERT_TRUE(run.ended);
        EXPECT_EQ(run.status, 0u) << run.error;
        const Picture picture = ReadPicture(shot);
        EXPECT_GT(picture.Count(ColorOf(0)), 200) << style;
        EXPECT_GT(picture.Count(ColorOf(1)), 200) << style;
        if (std::string(style) == "line")
            EXPECT_GT(picture.Count(ColorOf(2)), 200);
        else
            EXPECT_EQ(picture.Count(ColorOf(2)), 0) << "two axes serve two series";
    }
}

TEST(MonitorPicture, FilesSampledAtDifferentTimesAreLinesAndNotDots) {
    const TempFolder folder;
    std::string even = "time,even\n";
    std::string odd = "time,odd\n";
    for (int i = 0; i < 400; ++i) {
        char row[64];
        std::snprintf(row, sizeof row, "2021-03-01 %02d:%02d:%02d,%d\n", i / 60 % 24, i % 60, 0, 20 + i % 3);
        even += row;
        std::snprintf(row, sizeof row, "2021-03-01 %02d:%02d:%02d,%d\n", i / 60 % 24, i % 60, 30, 60 + i % 3);
        odd += row;
    }
    const std::string shot = folder.Path("out.png");
    const MonitorRun run =
        RunMonitor({folder.Write("even.csv", even), folder.Write("odd.csv", odd), "--shot", shot});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.error;
    const Picture picture = ReadPicture(shot);
    EXPECT_GT(picture.Count(ColorOf(0)), 600);
    EXPECT_GT(picture.Count(ColorOf(1)), 600);
}

TEST(MonitorPicture, WrongRowsAreToldAndTheRestIsShown) {
    const TempFolder folder;
    const std::string recording =
        folder.Write("bad.csv", Csv(50, 1, [](int row, int) { return row * 1.5; }) + "no time,1\n");
    const std::string shot = folder.Path("out.png");
    const MonitorRun run = RunMonitor({recording, "--shot", shot});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 1u);
    EXPECT_NE(run.error.find(recording + ":52:1: "), std::string::npos) << run.error;
    EXPECT_GT(ReadPicture(shot).Count(ColorOf(0)), 50);
}

TEST(MonitorPicture, NothingToShowEndsWith2) {
    const TempFolder folder;
    const std::string shot = folder.Path("out.png");
    const MonitorRun run = RunMonitor({folder.Path("none.csv"), "--shot", shot});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 2u);
    EXPECT_NE(run.error.find("none.csv"), std::string::npos) << run.error;
    EXPECT_GT(ReadPicture(shot).width, 0) << "the window told it, so there is a picture of it";
}

TEST(MonitorPicture, AFileThatCannotBeWrittenEndsWith2) {
    const TempFolder folder;
    const std::string recording =
        folder.Write("a.csv", "time,a\n2020-01-01 00:00:00,1\n2020-01-01 00:01:00,2\n");
    const MonitorRun run = RunMonitor({recording, "--shot", folder.Path("no such folder\\out.png")});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 2u);
    EXPECT_NE(run.error.find("no such folder"), std::string::npos) << run.error;
}

TEST(MonitorPicture, LiveReadingsRunAsLongAsAsked) {
    const TempFolder folder;
    const std::string shot = folder.Path("out.png");
    const MonitorRun run = RunMonitor({"--seconds", "3.5", "--page", "graph", "--shot", shot});
    ASSERT_TRUE(run.ended);
    EXPECT_EQ(run.status, 0u) << run.error;
    const Picture picture = ReadPicture(shot);
    // The memory's line has three readings: it covers a good part of the axis, and cannot lie at 0.
    EXPECT_GT(picture.Count(ColorOf(1)), 100);

    ASSERT_EQ(RunMonitor({"--seconds", "1.5", "--shot", shot}).status, 0u);
    const Picture two = ReadPicture(shot);
    // A graph for percents over one for rates: each has its legend.
    EXPECT_GT(two.Count(ColorOf(0)), 0);
    EXPECT_LT(two.TopOf(ColorOf(0)), two.height / 2);
    EXPECT_GT(two.TopOf(ColorOf(2)), two.height / 2);
}

} // namespace
} // namespace kavlix::test
