// SPDX-License-Identifier: MIT
// The rows of one file: what is kept, and the message for every fault.

#include <gtest/gtest.h>

#include <algorithm>

#include "monitor/recording/NumberText.h"
#include "monitor/recording/TableReader.h"

namespace kavlix::recording {
namespace {

/// What becomes of a table's text: the messages, `time:value` for each row with the value of the first series,
/// and the number of rows that are left out.
std::string Told(std::string_view text) {
    FileSummary summary;
    summary.log = MessageLog("f.csv");
    TableReader reader(summary, kMaxSeries);
    reader.Feed(text.data(), text.size());
    const Table table = reader.Finish();
    std::string told;
    for (const std::string& line : summary.log.Lines())
        told += line + '\n';
    for (std::size_t row = 0; row < table.times.size(); ++row)
        told += std::to_string(table.times[row] / kMicrosPerSecond) + ':' +
                FormatNumber(table.columns[0][row]) + ' ';
    return summary.leftOut ? told : told + '-' + std::to_string(summary.rowsLeftOut);
}

// Every kind of bad input: the message names the place, what was expected and what was found; the rest
// is kept.
TEST(TableReader, TellsWhatIsWrongAndKeepsTheRest) {
    const std::pair<const char*, const char*> cases[] = {
        {"t,a\n10,1\n20,12abc\n30,3\n", "f.csv:3:4: expected a number or nothing in column 2 (\"a\"), found "
                                        "\"12abc\"; the cell is left out\n10:1 30:3 -1"},
        {"t,a\n10,\n20,NaN\n30,NA\n40,4\n", "10:nan 20:nan 30:nan 40:4 -0"},
        {"t,a\n10\n20,2\n", "f.csv:2:3: expected 2 cells, found 1; the row is left out\n20:2 -1"},
        {"t,a\n10,1,5\n20,2\n",
         "f.csv:2:6: expected the end of the row after 2 cells, found 3; the row is left out\n20:2 -1"},
        {"t,a,\n10,1,\n20,2,,,\n30,3\n", "10:1 20:2 30:3 -0"},
        {"t,a\nx,1\n20,2\n", "f.csv:2:1: expected a time (YYYY-MM-DD HH:MM:SS, ISO 8601 or seconds since "
                             "1970), found \"x\"; the row is left out\n20:2 -1"},
        {"t,a\n100,1\n40,2\n110,3\n",
         "f.csv:3:1: expected a time not before 1970-01-01 00:01:40, found 1970-01-01 00:00:40, 1 min back; "
         "the row is kept, in its place by time\n40:2 100:1 110:3 -0"},
        {"10,1\n20,2\n", "f.csv:1:1: expected a header row with the names of the series, found the time "
                         "\"10\"; the row is kept as data\n10:1 20:2 -0"},
        {"t,a\n10,\"1\n20,2\n", "f.csv:2:4: expected a closing quote in this line or a later one, found "
                                "none; it is taken as closed at the end of the line\n10:1 20:2 -0"},
        {"t,a\n10,\"1\"2\n", "f.csv:2:7: expected a separator or the end of the line behind the closing "
                             "quote, found more text\n10:12 -0"},
        {"\n \nt,a\n\n10,1\n\n\n20,2\n\n", "10:1 20:2 -0"},
        {"t;a\n10;1,5\n20;-2,5\n", "10:1.5 20:-2.5 -0"},
        {"t,a,b\n10,\"1\n\",x\n", "f.csv:2:4: expected a number or nothing in column 2 (\"a\"), found "
                                  "\"1\\x0A\"; the cell is left out\nf.csv:3:3: expected a number or nothing "
                                  "in column 3 (\"b\"), found \"x\"; the cell is left out\n"},
    };
    for (const auto& [text, told] : cases)
        EXPECT_EQ(Told(text), told);
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
    for (const auto& [text, told] : cases)
        EXPECT_EQ(Told(text), told);
}

TEST(TableReader, KeepsFiveMessagesOfAKindAndCountsTheRest) {
    std::string text = "t,a\n";
    for (int i = 0; i < 1000; ++i)
        text += std::to_string(i) + (i % 2 == 0 ? ",x\n" : "\n");
    const std::string told = Told(text);
    EXPECT_NE(told.find("f.csv: and 495 more about cells that are no numbers\n"
                        "f.csv: and 495 more about rows too short\n"),
              std::string::npos);
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 12);
}

TEST(TableReader, NamesEverySeries) {
    FileSummary summary;
    TableReader reader(summary, kMaxSeries);
    const std::string text = "t, temp ,,\"in, \"\"out\"\"\",\xB0-\n10,1,2,3,4\n";
    reader.Feed(text.data(), text.size());
    EXPECT_EQ(reader.Finish().names,
              (std::vector<std::string>{"temp", "column 3", "in, \"out\"", "\xC2\xB0-"}));
}

} // namespace
} // namespace kavlix::recording
