// The rows of one file: what is kept, and the message for every fault.

#include <gtest/gtest.h>

#include <cmath>

#include "monitor/recording/NumberText.h"
#include "monitor/recording/TableReader.h"

namespace kavlix::recording {
namespace {

struct Read {
    FileSummary summary;
    Table table;

    std::string Messages() const {
        std::string text;
        for (const std::string& line : summary.log.Lines())
            text += line + '\n';
        return text;
    }
};

Read ReadTable(std::string_view text, std::size_t maxSeries = kMaxSeries) {
    Read read;
    read.summary.log = MessageLog("f.csv");
    TableReader reader(read.summary, maxSeries);
    reader.Feed(text.data(), text.size());
    read.table = reader.Finish();
    return read;
}

/// Values as text, with `-` for a gap.
std::string Values(const std::vector<double>& values) {
    std::string text;
    for (const double value : values)
        text += (text.empty() ? "" : " ") + (std::isnan(value) ? std::string("-") : FormatNumber(value));
    return text;
}

std::string Times(const Table& table) {
    std::string text;
    for (const Time time : table.times)
        text += (text.empty() ? "" : " ") + std::to_string(time / kMicrosPerSecond);
    return text;
}

// Every kind of bad input: the message names the place, what was expected and what was found; the rest
// is kept.
TEST(TableReader, TellsWhatIsWrongAndKeepsTheRest) {
    const struct {
        const char* what;
        const char* text;
        const char* messages;
        const char* times;
        const char* firstSeries;
        std::uint64_t leftOut;
    } cases[] = {
        {"a cell that is no number", "t,a\n10,1\n20,12abc\n30,3\n",
         "f.csv:3:4: expected a number or nothing in column 2 (\"a\"), found \"12abc\"; the cell is left "
         "out\n",
         "10 30", "1 3", 1},
        {"absent values are no fault", "t,a\n10,\n20,NaN\n30,NA\n40,4\n", "", "10 20 30 40", "- - - 4", 0},
        {"a row too short", "t,a\n10\n20,2\n", "f.csv:2:3: expected 2 cells, found 1; the row is left out\n",
         "20", "2", 1},
        {"a row too long", "t,a\n10,1,5\n20,2\n",
         "f.csv:2:6: expected the end of the row after 2 cells, found 3; the row is left out\n", "20", "2",
         1},
        {"separators at the end hold nothing", "t,a,\n10,1,\n20,2,,,\n30,3\n", "", "10 20 30", "1 2 3", 0},
        {"a time that cannot be read", "t,a\nx,1\n20,2\n",
         "f.csv:2:1: expected a time (YYYY-MM-DD HH:MM:SS, ISO 8601 or seconds since 1970), found \"x\"; the "
         "row is left out\n",
         "20", "2", 1},
        {"a time that goes backwards", "t,a\n100,1\n40,2\n110,3\n",
         "f.csv:3:1: expected a time not before 1970-01-01 00:01:40, found 1970-01-01 00:00:40, 1 min back; "
         "the row is kept, in its place by time\n",
         "40 100 110", "2 1 3", 0},
        {"no header", "10,1\n20,2\n",
         "f.csv:1:1: expected a header row with the names of the series, found the time \"10\"; the row is "
         "kept as data\n",
         "10 20", "1 2", 0},
        {"an open quote", "t,a\n10,\"1\n20,2\n",
         "f.csv:2:4: expected a closing quote in this line or a later one, found none; it is taken as closed "
         "at the end of the line\n",
         "10 20", "1 2", 0},
        {"text behind a quote", "t,a\n10,\"1\"2\n",
         "f.csv:2:7: expected a separator or the end of the line behind the closing quote, found more text\n",
         "10", "12", 0},
        {"blank lines are nothing", "\n \nt,a\n\n10,1\n\n\n20,2\n\n", "", "10 20", "1 2", 0},
        {"decimal commas between semicolons", "t;a\n10;1,5\n20;-2,5\n", "", "10 20", "1.5 -2.5", 0},
        {"a place within a quoted cell's row", "t,a,b\n10,\"1\n\",x\n",
         "f.csv:2:4: expected a number or nothing in column 2 (\"a\"), found \"1\\x0A\"; the cell is left "
         "out\n"
         "f.csv:3:3: expected a number or nothing in column 3 (\"b\"), found \"x\"; the cell is left out\n",
         "", "", 1},
    };
    for (const auto& one : cases) {
        const Read read = ReadTable(one.text);
        SCOPED_TRACE(one.what);
        EXPECT_EQ(read.Messages(), one.messages);
        EXPECT_EQ(Times(read.table), one.times);
        EXPECT_EQ(read.table.columns.empty() ? "" : Values(read.table.columns[0]), one.firstSeries);
        EXPECT_EQ(read.summary.rowsLeftOut, one.leftOut);
    }
}

TEST(TableReader, LeavesOutFilesThatAreNoRecordings) {
    const std::pair<std::string_view, const char*> cases[] = {
        {"", "f.csv:1:1: expected a header row, found the end of the file\n"},
        {"t,a\n", "f.csv:2:1: expected rows of data below the header, found the end of the file\n"},
        {"t\n10\n",
         "f.csv:1:2: expected the names of a time column and of at least one series, separated by comma, "
         "semicolon or tab, found 1 column; the file is left out\n"},
        {std::string_view("\x7F"
                          "ELF\x02\x01\0\0,\0\n10,1\n",
                          17),
         "f.csv:1:1: expected a header row of text, found \"\\x7F"
         "ELF\\x02\\x01\\x00\\x00\"; the file is left out\n"},
        {"\xFF\xFE", "f.csv:1:1: expected text in UTF-8, found UTF-16; the file is left out\n"},
    };
    for (const auto& [text, messages] : cases) {
        const Read read = ReadTable(text);
        EXPECT_EQ(read.Messages(), messages);
        EXPECT_TRUE(read.summary.leftOut) << messages;
    }
}

TEST(TableReader, TakesNoMoreSeriesThanMayBeShown) {
    const Read read = ReadTable("t,a,b,c,d\n10,1,2,3,x\n20,4,5\n", 2);
    EXPECT_EQ(read.Messages(),
              "f.csv:1:7: expected at most 13 series in all, found one more, \"c\"; it is left out\n"
              "f.csv:1:9: expected at most 13 series in all, found one more, \"d\"; it is left out\n"
              "f.csv:3:7: expected 5 cells, found 3; the missing ones are left out\n");
    EXPECT_EQ(Values(read.table.columns[1]), "2 5");
}

TEST(TableReader, KeepsFiveMessagesOfAKindAndCountsTheRest) {
    std::string text = "t,a\n";
    for (int i = 0; i < 1000; ++i)
        text += std::to_string(i) + (i % 2 == 0 ? ",x\n" : "\n");
    const Read read = ReadTable(text);
    const std::vector<std::string> lines = read.summary.log.Lines();
    ASSERT_EQ(lines.size(), 12u);
    EXPECT_EQ(lines[10], "f.csv: and 495 more about cells that are no numbers");
    EXPECT_EQ(lines[11], "f.csv: and 495 more about rows too short");
}

TEST(TableReader, NamesEverySeries) {
    const Read read = ReadTable("t, temp ,,\"in, \"\"out\"\"\",\xB0"
                                "C\n10,1,2,3,4\n");
    EXPECT_EQ(read.table.names, (std::vector<std::string>{"temp", "column 3", "in, \"out\"",
                                                          "\xC2\xB0"
                                                          "C"}));
}

TEST(TableReader, LeavesOutALineBeyondTheLimit) {
    const Read read = ReadTable("t,a\n10,1\n20," + std::string(CsvReader::kLineLimit, '7') + "\n30,3\n");
    EXPECT_EQ(read.Messages(),
              "f.csv:3:1048577: expected a line of at most 1,048,576 bytes, found a longer one; it is "
              "left out\n");
    EXPECT_EQ(Times(read.table), "10 30");
}

TEST(TableReader, GivesBackHalfARowWhenTheMemoryRanOut) {
    Read read;
    read.summary.log = MessageLog("f.csv");
    TableReader reader(read.summary, kMaxSeries);
    const std::string text = "t,a,b\n1,2,3\n4,5,6\n7,8";
    reader.Feed(text.data(), text.size());
    reader.RecoverFromLowMemory();
    reader.Feed(text.data(), text.size());
    read.table = reader.Finish();
    EXPECT_EQ(Times(read.table), "1 4");
    EXPECT_EQ(Values(read.table.columns[1]), "3 6");
    EXPECT_EQ(read.summary.rowsLeftOut, 1u);
    EXPECT_NE(read.Messages().find("expected memory"), std::string::npos);
}

} // namespace
} // namespace kavlix::recording
