// KavlixMonitor --shot: the saved picture shows the recording.

#include <gtest/gtest.h>

#include <cmath>

#include "monitor/GraphSettings.h"
#include "tests/monitor/MonitorProcess.h"

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
    /// Runs the Monitor with these arguments and --shot; returns the saved picture and checks the
    /// exit status.
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

TEST_F(MonitorPicture, ShowsEveryStyleInTheSizeAskedFor) {
    const auto wave = [](int row, int series) {
        return 50 + 20 * series + 15 * std::sin(row / 20.0 + series);
    };
    const std::string first = m_folder.Write("first.csv", Csv(500, 1, wave));
    const std::string second =
        m_folder.Write("second.csv", Csv(500, 2, [&](int row, int s) { return wave(row, s + 1); }));
    const struct {
        const char* style;
        const char* size;
        int width;
        int height;
        int series; ///< drawn
    } cases[] = {{"line", "500x350", 500, 350, 3},
                 {"twoaxis", "1000x640", 1000, 640, 2},
                 {"bar", "2000x1500", 2000, 1500, 3}}; // larger than the screen
    for (const auto& given : cases) {
        SCOPED_TRACE(given.style);
        const Picture picture = Shot({first, second, "--size", given.size, "--style", given.style});
        ASSERT_EQ(picture.width, given.width);
        ASSERT_EQ(picture.height, given.height);
        for (std::size_t series = 0; series < 3; ++series)
            EXPECT_EQ(picture.Count(ColorOf(series)) > 200, static_cast<int>(series) < given.series)
                << series;
        const Picture::Place place = picture.Where(ColorOf(0));
        EXPECT_LT(place.left, given.width / 3) << "from end";
        EXPECT_GT(place.right, given.width / 2) << "to end";
        EXPECT_GT(place.bottom - place.top, given.height / 12) << "the range is chosen from the values";
    }
}

TEST_F(MonitorPicture, WhatIsWrongIsToldAndTheRestIsShown) {
    const std::string recording =
        m_folder.Write("bad.csv", Csv(50, 1, [](int row, int) { return row * 1.5; }) + "no time,1\n");
    EXPECT_GT(Shot({recording}, 1).Count(ColorOf(0)), 50);
    EXPECT_NE(m_run.error.find(recording + ":52:1: "), std::string::npos) << m_run.error;
    EXPECT_GT(Shot({m_folder.Path("none.csv")}, 2).width, 0) << "the window told it: a picture of that";
    EXPECT_NE(m_run.error.find("none.csv"), std::string::npos) << m_run.error;
    m_run = RunMonitor({recording, "--shot", m_folder.Path("no such folder\\out.png")});
    EXPECT_EQ(m_run.status, 2u);
    EXPECT_NE(m_run.error.find("no such folder"), std::string::npos) << m_run.error;
}

TEST_F(MonitorPicture, LiveReadingsRunAsLongAsAsked) {
    const Picture picture = Shot({"--seconds", "3.5", "--page", "graph"});
    // With three readings, the line of the memory covers a third of the axis.
    EXPECT_GT(picture.Count(ColorOf(1)), 100);

    const Picture two = Shot({"--seconds", "1.5"});
    // The graph of percents is above the graph of rates.
    EXPECT_GT(two.Count(ColorOf(0)), 0);
    EXPECT_LT(two.Where(ColorOf(0)).top, two.height / 2);
    EXPECT_GT(two.Where(ColorOf(2)).top, two.height / 2);
}

} // namespace
} // namespace kavlix::test
