#include "monitor/recording/CsvReader.h"

#include <gtest/gtest.h>

#include <random>

namespace kavlix::recording {
namespace {

/// Writes down what the reader delivers, as text that a failed test can show.
class Recorder final : public CsvSink {
public:
    bool OnRow(const CsvRow& row) override {
        log += std::to_string(row.line);
        for (const CsvCell& cell : row.cells) {
            log += " [" + std::string(cell.text) + "]@" + std::to_string(row.line + cell.line) + ':' +
                   std::to_string(cell.column);
        }
        log += " end " + std::to_string(row.endLine) + ':' + std::to_string(row.endColumn) + '\n';
        cells.emplace_back();
        for (const CsvCell& cell : row.cells)
            cells.back().emplace_back(cell.text);
        return cells.size() < stopAfter;
    }

    void OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) override {
        log += "fault " + std::to_string(static_cast<int>(fault)) + '@' + std::to_string(line) + ':' +
               std::to_string(column) + '\n';
        faults.push_back(fault);
    }

    std::string log;
    std::vector<std::vector<std::string>> cells;
    std::vector<CsvFault> faults;
    std::size_t stopAfter = SIZE_MAX;
};

Recorder ReadWhole(std::string_view text) {
    Recorder recorder;
    CsvReader reader(recorder);
    reader.Feed(text.data(), text.size());
    reader.Finish();
    return recorder;
}

/// The log of reading the text in pieces of at most so many bytes.
std::string LogOfPieces(std::string_view text, std::size_t most, std::mt19937& random) {
    Recorder recorder;
    CsvReader reader(recorder);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = std::min<std::size_t>(text.size() - at, 1 + random() % most);
        reader.Feed(text.data() + at, size);
        at += size;
    }
    reader.Finish();
    return recorder.log;
}

using Rows = std::vector<std::vector<std::string>>;

TEST(CsvReader, ReadsCellsRowsAndQuotes) {
    const struct {
        std::string_view text;
        Rows rows;
    } cases[] = {
        {"", {}},
        {"a", {{"a"}}},
        {"a,b\n", {{"a", "b"}}},
        {"a,b\r\n1,2\r\n", {{"a", "b"}, {"1", "2"}}},
        {"a,b\r1,2\r", {{"a", "b"}, {"1", "2"}}},
        {"a,b\n1,2", {{"a", "b"}, {"1", "2"}}},
        {"a,b\n\n1,2\n", {{"a", "b"}, {""}, {"1", "2"}}},
        {"a,b\r\r\n\n1,2\n", {{"a", "b"}, {""}, {""}, {"1", "2"}}},
        {"a,,\n,\n", {{"a", "", ""}, {"", ""}}},
        {"\xEF\xBB\xBF"
         "a,b\n",
         {{"a", "b"}}},
        {"\"a\",\"b,c\"\n\"\",\"\"\"\"\n", {{"a", "b,c"}, {"", "\""}}},
        {"a,\"x\ny\r\nz\",c\n1,2,3\n", {{"a", "x\ny\r\nz", "c"}, {"1", "2", "3"}}},
        {"a,b\"c\"\n", {{"a", "b\"c\""}}},
        {"a,\"b\"\"c\",\"d\"\"\"\n", {{"a", "b\"c", "d\""}}},
        {std::string_view("a,b\n\0,1\n", 8), {{"a", "b"}, {std::string(1, '\0'), "1"}}},
    };
    for (const auto& one : cases) {
        const Recorder read = ReadWhole(one.text);
        EXPECT_EQ(read.cells, one.rows) << one.text;
        EXPECT_TRUE(read.faults.empty()) << one.text;
    }
}

TEST(CsvReader, FindsTheSeparatorInTheFirstLine) {
    const std::pair<const char*, Rows> cases[] = {
        {"t;a\n1;2,5\n", {{"t", "a"}, {"1", "2,5"}}},
        {"t\ta\n1\t2,5\n", {{"t", "a"}, {"1", "2,5"}}},
        {"\"t,u,v\";a\n", {{"t,u,v", "a"}}},
        {"t;a, b\n", {{"t", "a, b"}}}, // as many of both: the first counts
        {"t,a;b;c\n", {{"t,a", "b", "c"}}},
        {"t\n1,2\n", {{"t"}, {"1", "2"}}},
    };
    for (const auto& [text, rows] : cases)
        EXPECT_EQ(ReadWhole(text).cells, rows) << text;
}

TEST(CsvReader, TellsPlacesAcrossQuotedLineBreaks) {
    EXPECT_EQ(ReadWhole("ab,c\n1,\"x\r\ny\",3\n4\n").log, "1 [ab]@1:1 [c]@1:4 end 1:5\n"
                                                          "2 [1]@2:1 [x\r\ny]@2:3 [3]@3:4 end 3:5\n"
                                                          "4 [4]@4:1 end 4:2\n");
    EXPECT_EQ(ReadWhole("a,\"b\"x,c\n").log, "fault 3@1:6\n1 [a]@1:1 [bx]@1:3 [c]@1:8 end 1:9\n");
}

TEST(CsvReader, AnOpenQuoteLosesNoRowBelow) {
    const Recorder read = ReadWhole("t,a\n1,\"2\n3,4\n5,6\n");
    EXPECT_EQ(read.cells, (Rows{{"t", "a"}, {"1", "2"}, {"3", "4"}, {"5", "6"}}));
    EXPECT_EQ(read.faults, std::vector<CsvFault>{CsvFault::OpenQuote});
    EXPECT_NE(read.log.find("fault 2@2:3\n"), std::string::npos);

    // The same far from the end of the file, where the reader gives up waiting.
    std::string text = "t,a\n1,\"2\n";
    std::size_t rows = 2;
    while (text.size() < 3 * CsvReader::kLineLimit) {
        text += "3,4\n";
        ++rows;
    }
    const Recorder large = ReadWhole(text + "5,\"6\n7\"\n");
    EXPECT_EQ(large.faults, std::vector<CsvFault>{CsvFault::OpenQuote});
    ASSERT_EQ(large.cells.size(), rows + 1);
    EXPECT_EQ(large.cells[1], (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(large.cells.back(), (std::vector<std::string>{"5", "6\n7"}));
}

TEST(CsvReader, SkipsLinesBeyondTheLimit) {
    const std::string longest(CsvReader::kLineLimit, 'x');
    for (const char* lineEnd : {"\n", "\r\n", "\r"}) {
        const std::string end = lineEnd;
        const Recorder fits = ReadWhole("a" + end + longest + end + "b" + end);
        EXPECT_EQ(fits.cells, (Rows{{"a"}, {longest}, {"b"}}));
        EXPECT_TRUE(fits.faults.empty());

        const Recorder skipped = ReadWhole("a" + end + longest + "x" + end + "b" + end);
        EXPECT_EQ(skipped.cells, (Rows{{"a"}, {"b"}}));
        EXPECT_EQ(skipped.faults, std::vector<CsvFault>{CsvFault::LineTooLong});
        EXPECT_NE(skipped.log.find("3 [b]@3:1"), std::string::npos) << "the line number goes on";
    }
    const Recorder quoted = ReadWhole("a\n\"" + longest + longest + "\nb\n");
    EXPECT_EQ(quoted.cells, (Rows{{"a"}, {"b"}}));
    const Recorder only = ReadWhole(longest + longest);
    EXPECT_TRUE(only.cells.empty());
    EXPECT_EQ(only.faults, std::vector<CsvFault>{CsvFault::LineTooLong});
}

TEST(CsvReader, StopsWhenTheSinkSaysSo) {
    Recorder recorder;
    recorder.stopAfter = 2;
    CsvReader reader(recorder);
    const std::string text = "a\nb\nc\nd\n";
    reader.Feed(text.data(), text.size());
    EXPECT_TRUE(reader.Stopped());
    reader.Feed(text.data(), text.size());
    reader.Finish();
    EXPECT_EQ(recorder.cells.size(), 2u);
}

TEST(CsvReader, ThePiecesDoNotMatter) {
    const std::string_view parts[] = {"a",    "1.5",   ",",  ",",    ";",    "\t", "\"",           "\"",
                                      "\"\"", "\n",    "\r", "\r\n", "\n\n", " ",  "\xEF\xBB\xBF", "\xFF",
                                      "\xFE", "x\",\""};
    std::mt19937 random(3);
    for (int round = 0; round < 3000; ++round) {
        std::string text;
        for (unsigned i = random() % 40; i > 0; --i)
            text += parts[random() % std::size(parts)];
        const std::size_t most = round % 3 == 0 ? 1 : 1 + random() % 7;
        ASSERT_EQ(LogOfPieces(text, most, random), ReadWhole(text).log) << text;
    }
}

TEST(CsvReader, ThePiecesDoNotMatterAroundTheLimit) {
    std::mt19937 random(4);
    for (int round = 0; round < 12; ++round) {
        std::string text = round % 2 == 0 ? "\xEF\xBB\xBF" : "";
        text += round % 3 == 0 ? "t,a\n1,\"2\n" : "";
        for (std::size_t i = 0; text.size() < CsvReader::kLineLimit - 20; ++i) {
            text += round % 4 < 2 ? "x\",\"yyyyyyyyyyyyyyyyyyyyyyyyy" : "12345678901234567890123456789012345";
            text += round % 3 == 0 && i % 1000 == 0 ? "\r\n" : "";
        }
        for (int i = 0; i < 60; ++i)
            text += "x,\"\n\r\""[random() % 6];
        ASSERT_TRUE(LogOfPieces(text, 5000, random) == ReadWhole(text).log) << "round " << round;
    }
}

// Lines that close a quote and open one again keep a reader searching for the end of the row: it must not
// begin anew at every line. Read so, this text would take hours.
TEST(CsvReader, QuotesThatNeverCloseTakeLinearTime) {
    std::string text = "t,a\n";
    while (text.size() < 8 * CsvReader::kLineLimit)
        text += "x\",\"\n";
    const Recorder read = ReadWhole(text);
    EXPECT_EQ(read.cells.size(), (text.size() - 4) / 5 + 1);
}

} // namespace
} // namespace kavlix::recording
