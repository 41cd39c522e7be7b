// SPDX-License-Identifier: MIT
// Reading and joining files, progress and cancelling, and the reports.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <random>

#include "monitor/recording/CheckReport.h"
#include "monitor/recording/RecordingLoader.h"
#include "tests/support/TempFolder.h"

namespace kavlix::recording {
namespace {

/// Rows as text: `time value value ...`, with `-` for a gap.
std::string Rows(const Recording& recording) {
    std::string text;
    for (std::size_t i = 0; i < recording.times.size(); ++i) {
        text += std::to_string(recording.times[i] / kMicrosPerSecond);
        for (const Series& series : recording.series) {
            const double value = series.values[i];
            text += std::isnan(value) ? " -" : ' ' + std::to_string(static_cast<int>(value));
        }
        text += '\n';
    }
    return text;
}

// Against a model: a map from time and occurrence to the values by series. Times repeat and go backwards.
TEST(Recording, JoinEqualsAModel) {
    const testkit::TempFolder folder;
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        std::map<std::pair<int, int>, std::map<std::size_t, int>> model;
        std::vector<std::string> paths;
        std::vector<std::size_t> files;
        for (std::size_t file = 0; file < 1 + round % 4u; ++file) {
            const std::size_t first = files.size();
            files.insert(files.end(), 1 + random() % 2, file);
            std::string text = "t";
            for (std::size_t i = first; i < files.size(); ++i)
                text += ",s" + std::to_string(i);
            std::map<int, int> occurrences;
            for (unsigned row = 1 + random() % 30; row > 0; --row) {
                const int time = static_cast<int>(random() % 20);
                text += '\n' + std::to_string(time);
                auto& values = model[{time, occurrences[time]++}];
                for (std::size_t i = first; i < files.size(); ++i) {
                    const int value = static_cast<int>(random() % 100);
                    text += value < 20 ? "," : ',' + std::to_string(value);
                    if (value >= 20)
                        values[i] = value;
                }
            }
            paths.push_back(folder.Write("f" + std::to_string(file) + ".csv", text));
        }
        std::string expected;
        for (const auto& [key, values] : model) {
            expected += std::to_string(key.first);
            for (std::size_t i = 0; i < files.size(); ++i)
                expected += values.count(i) == 0 ? " -" : ' ' + std::to_string(values.at(i));
            expected += '\n';
        }
        const Recording recording = RecordingLoader::Load(paths);
        ASSERT_EQ(Rows(recording), expected);
        for (std::size_t i = 0; i < files.size(); ++i)
            ASSERT_EQ(recording.series[i].file, files[i]);
    }
}

TEST(Recording, NamesAreDistinct) {
    const testkit::TempFolder folder;
    const std::string first = folder.Write("pump.csv", "t,value\n10,1\n");
    const std::string second = folder.Write("fan.1.csv", "t,value,rpm\n10,1,2\n");
    const std::string third = folder.Write("rpm", "t,speed,speed,fan.1: value\n10,1,2,3\n");
    const Recording recording = RecordingLoader::Load({first, second, third, first, first});
    std::string names;
    for (const Series& series : recording.series)
        names += series.name + '|';
    EXPECT_EQ(names, "pump|fan.1: value|rpm|speed|speed (2)|fan.1: value (2)|pump (2)|pump (3)|");
    EXPECT_EQ(recording.files[2].series[1].name, "speed (2)");
}

TEST(Recording, ThirteenSeriesInAll) {
    const testkit::TempFolder folder;
    const std::string eight = folder.Write("eight.csv", "t,a,b,c,d,e,f,g,h\n10,1,2,3,4,5,6,7,8\n");
    const Recording two = RecordingLoader::Load({eight, eight});
    EXPECT_EQ(two.series.size(), kMaxSeries);
    EXPECT_EQ(two.files[1].log.CountOf(Complaint::SeriesLimit), 3u);
    EXPECT_EQ(two.GetStatus(), Status::Fine) << "every row is shown";
}

TEST(Recording, StatusTellsWhatWasLeftOut) {
    const testkit::TempFolder folder;
    const std::string good = folder.Write("good.csv", "t,a\n10,1\n");
    const std::string bad = folder.Write("bad.csv", "t,b\n10,1\n20,x\n");
    const std::string gaps = folder.Write("gaps.csv", "t,c\n10,\n20,NaN\n");
    const std::string missing = good + ".missing";
    const std::pair<std::vector<std::string>, Status> cases[] = {
        {{good, gaps}, Status::Fine},
        {{bad}, Status::LeftOut},
        {{good, missing}, Status::LeftOut},
        {{folder.Path(), good}, Status::LeftOut},
        {{gaps}, Status::Nothing},
        {{missing}, Status::Nothing},
        {{}, Status::Nothing},
    };
    for (const auto& [paths, status] : cases) {
        const Recording recording = RecordingLoader::Load(paths);
        EXPECT_EQ(recording.GetStatus(), status) << CheckReport(recording);
    }
}

TEST(RecordingLoader, SlicesDoNotMatterAndProgressRises) {
    const testkit::TempFolder folder;
    std::string text = "t,a\n";
    for (int i = 0; i < 2000; ++i)
        text += std::to_string(i) + ',' + std::to_string(i % 7) + (i % 50 == 0 ? "x\n" : "\n");
    const std::string first = folder.Write("first.csv", text);
    const std::string second = folder.Write("second.csv", "t,b\n1,2\n");
    const std::vector<std::string> paths = {first, first + ".missing", second};
    const std::string whole = Rows(RecordingLoader::Load(paths));
    for (const std::size_t budget : {std::size_t{0}, std::size_t{777}, SIZE_MAX}) {
        RecordingLoader loader(paths);
        Progress before = loader.GetProgress();
        EXPECT_EQ(before.Percent(), 0);
        while (!before.finished) {
            const Progress now = loader.Step(budget);
            EXPECT_GE(now.Percent(), before.Percent());
            EXPECT_EQ(now.Percent() == 100, now.finished);
            before = now;
        }
        EXPECT_EQ(before.bytesDone, text.size() + 8);
        EXPECT_EQ(before.rows, 1961u);
        EXPECT_EQ(Rows(loader.Take()), whole);
    }
}

TEST(RecordingLoader, CancelKeepsWhatWasReadAndARefusedFileCountsAsDone) {
    const testkit::TempFolder folder;
    const std::string refused = folder.Write("refused.csv", "t,a\x01\n" + std::string(3'000'000, 'x'));
    std::string text = "t,a\n";
    for (int i = 0; i < 5000; ++i)
        text += std::to_string(i) + ",1\n";
    const std::string good = folder.Write("good.csv", text);
    RecordingLoader loader({refused, good, good});
    Progress progress;
    while (progress.file == 0)
        progress = loader.Step(1000);
    EXPECT_GE(progress.bytesDone, 3'000'000u);
    loader.Step(1000);
    loader.Cancel();
    EXPECT_TRUE(loader.Step(1000).finished);
    const Recording recording = loader.Take();
    EXPECT_TRUE(recording.cancelled);
    EXPECT_TRUE(recording.times.size() > 50 && recording.times.size() < 500) << recording.times.size();
    EXPECT_EQ(recording.GetStatus(), Status::LeftOut);
}

TEST(CheckReport, TellsAll) {
    const testkit::TempFolder folder;
    const std::string first = folder.Write("first.csv", "t,a,b\n0,1,\n10,,\n20,2.5,5\n60,3,x\n70,x,x\n");
    const std::string empty = folder.Write("empty.csv", "");
    const Recording recording = RecordingLoader::Load({first, empty});
    std::string report = CheckReport(recording);
    for (const auto& [path, name] : {std::pair(first, "FIRST"), std::pair(empty, "EMPTY")})
        for (std::size_t at; (at = report.find(path)) != std::string::npos;)
            report.replace(at, path.size(), name);
    EXPECT_EQ(report, R"(FIRST
  rows: 4
  series "a": 3 samples, 1 to 3, 1 gap (1 value absent)
  series "b": 1 sample, 5 to 5, 2 gaps (3 values absent)
  time: 1970-01-01 00:00:00 to 1970-01-01 00:01:00, every 10 s
  time gaps: 1, the longest 40 s
  rows left out: 1
  wrong:
    FIRST:5:6: expected a number or nothing in column 3 ("b"), found "x"; the cell is left out
    FIRST:6:4: expected a number or nothing in column 2 ("a"), found "x"; the cell is left out
    FIRST:6:6: expected a number or nothing in column 3 ("b"), found "x"; the cell is left out
EMPTY
  nothing of it is kept
  rows left out: 0
  wrong:
    EMPTY:1:1: expected a header row, found the end of the file
in all: 4 time stamps, 2 series, 1970-01-01 00:00:00 to 1970-01-01 00:01:00; rows left out: 1
)");
    EXPECT_EQ(StatusLine(recording), "4 rows, 2 series; 1 row left out; 4 messages");
    EXPECT_NE(MessageReport(recording).find(":6:4"), std::string::npos);
    const Recording rest = WithoutHead(recording, 1);
    EXPECT_EQ(StatusLine(rest), "3 rows, 2 series; 1 row removed; 1 row left out; 4 messages");
    const std::string zoned = folder.Write("zoned.csv", "t,a\n2013-12-02T21:15:00Z,1\n");
    EXPECT_NE(CheckReport(RecordingLoader::Load({zoned})).find("21:15:00 (UTC)\n"), std::string::npos);
}

TEST(RealRecordings, AreReadWhole) {
    const char* const folder = std::getenv("KAVLIX_DATA_DIR");
    if (folder == nullptr || !std::filesystem::exists(folder))
        GTEST_SKIP() << "KAVLIX_DATA_DIR names no folder of recordings";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".csv")
            continue;
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const auto lines = std::count(text.begin(), text.end(), '\n');
        const Recording recording = RecordingLoader::Load({entry.path().string()});
        EXPECT_EQ(recording.GetStatus(), Status::Fine) << CheckReport(recording);
        EXPECT_EQ(recording.times.size(), static_cast<std::size_t>(lines) - 1) << "all but the header";
        EXPECT_EQ(recording.files[0].series.at(0).values, recording.times.size());
    }
}

} // namespace
} // namespace kavlix::recording
