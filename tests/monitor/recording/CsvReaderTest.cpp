// SPDX-License-Identifier: MIT
// Rows, cells, places and faults of comma-separated text, whatever the pieces it is fed in.

#include <gtest/gtest.h>

#include <algorithm>

#include "monitor/recording/CsvReader.h"

namespace kavlix::recording {
namespace {

/// Writes down what the reader delivers: `LINE [CELL]@LINE:COLUMN ... end LINE:COLUMN` and
/// `fault KIND@LINE:COLUMN`.
class Recorder final : public CsvSink {
public:
    bool OnRow(const CsvRow& row) override {
        log += std::to_string(row.line);
        for (const CsvCell& cell : row.cells)
            log += " [" + std::string(cell.text) + "]@" + Place(row.line + cell.line, cell.column);
        log += " end " + Place(row.endLine, row.endColumn) + '\n';
        return ++rows < stopAfter;
    }

    void OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) override {
        log += "fault " + std::to_string(static_cast<int>(fault)) + '@' + Place(line, column) + '\n';
    }
    static std::string Place(std::uint64_t line, std::uint64_t column) {
        return std::to_string(line) + ':' + std::to_string(column);
    }

    std::string log;
    std::size_t rows = 0;
    std::size_t stopAfter = SIZE_MAX;
};

/// The log of reading the text in pieces.
std::string LogOf(std::string_view text, std::size_t piece = SIZE_MAX) {
    Recorder recorder;
    CsvReader reader(recorder);
    for (; !text.empty(); text.remove_prefix(std::min(piece, text.size())))
        reader.Feed(text.data(), std::min(piece, text.size()));
    reader.Finish();
    return recorder.log;
}

TEST(CsvReader, ReadsCellsQuotesSeparatorsAndLineEnds) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"a,b\r\n1,2\r\n", "1 [a]@1:1 [b]@1:3 end 1:4\n2 [1]@2:1 [2]@2:3 end 2:4\n"},
        {"a\r\r\n\nb", "1 [a]@1:1 end 1:2\n2 []@2:1 end 2:1\n3 []@3:1 end 3:1\n4 [b]@4:1 end 4:2\n"},
        {"\xEF\xBB\xBF,\n", "1 []@1:1 []@1:2 end 1:2\n"},
        {"\"a\",\"b,c\",\"\",\"\"\"\"", "1 [a]@1:1 [b,c]@1:5 []@1:11 [\"]@1:14 end 1:18\n"},
        {"a,b\"c\"", "1 [a]@1:1 [b\"c\"]@1:3 end 1:7\n"},
        {"1,\"x\r\ny\rz\",3\n4\n", "1 [1]@1:1 [x\r\ny\rz]@1:3 [3]@3:4 end 3:5\n4 [4]@4:1 end 4:2\n"},
        {"a,\"b\"x,c", "fault 3@1:6\n1 [a]@1:1 [bx]@1:3 [c]@1:8 end 1:9\n"},
        {"1,\"2\n3\n", "fault 2@1:3\n1 [1]@1:1 [2]@1:3 end 1:5\n2 [3]@2:1 end 2:2\n"},
        {"t;a\n1;2,5", "1 [t]@1:1 [a]@1:3 end 1:4\n2 [1]@2:1 [2,5]@2:3 end 2:6\n"},
        {"t\ta,b\tc", "1 [t]@1:1 [a,b]@1:3 [c]@1:7 end 1:8\n"},
        {"\"t,u,v\";a", "1 [t,u,v]@1:1 [a]@1:9 end 1:10\n"},
    };
    for (const auto& [text, log] : cases)
        EXPECT_EQ(LogOf(text), log) << text;

    Recorder recorder;
    recorder.stopAfter = 2;
    CsvReader reader(recorder);
    for (int i = 0; i < 2; ++i)
        reader.Feed("a\nb\nc\n", 6);
    reader.Finish();
    EXPECT_EQ(recorder.rows, 2u) << "the sink stopped the reader";
}

// An open quote far from the end of the file, where the reader no longer waits for its end. Lines that close
// a quote and open one again make the reader search for the row's end: searching anew in every line would
// take hours.
TEST(CsvReader, AnOpenQuoteLosesNoRowAndTakesLinearTime) {
    std::string text = "t,a\n1,\"2\n";
    std::size_t rows = 3;
    for (; text.size() < 3 * CsvReader::kLineLimit; ++rows)
        text += "3,4\n";
    const std::string log = LogOf(text + "5,\"6\n7\"\n");
    EXPECT_EQ(static_cast<std::size_t>(std::count(log.begin(), log.end(), ']')), 2 * rows);
    EXPECT_EQ(log.find("fault 2@2:3\n2 [1]@2:1 [2]@2:3 end"), log.find("fault"));
    EXPECT_NE(log.find(" [6\n7]@"), std::string::npos) << "a later quote is whole";
    text = "t,a\n";
    while (text.size() < 8 * CsvReader::kLineLimit)
        text += "x\",\"\n";
    EXPECT_NE(LogOf(text).find(" end " + std::to_string((text.size() - 4) / 5 + 1) + ':'), std::string::npos);
}

TEST(CsvReader, SkipsLinesBeyondTheLimit) {
    const std::string longest(CsvReader::kLineLimit, 'x');
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        EXPECT_EQ(LogOf("a" + end + longest + end + "b" + end, 4096),
                  "1 [a]@1:1 end 1:2\n2 [" + longest + "]@2:1 end 2:1048577\n3 [b]@3:1 end 3:2\n");
        EXPECT_EQ(LogOf("a" + end + longest + "x" + end + "b" + end, 4096),
                  "1 [a]@1:1 end 1:2\nfault 1@2:1048577\n3 [b]@3:1 end 3:2\n");
    }
    EXPECT_EQ(LogOf(longest), "1 [" + longest + "]@1:1 end 1:1048577\n");
    EXPECT_EQ(LogOf("\"" + longest + longest + "\nb"), "fault 1@1:1048577\n2 [b]@2:1 end 2:2\n");
}

} // namespace
} // namespace kavlix::recording
