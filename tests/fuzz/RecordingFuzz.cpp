// SPDX-License-Identifier: MIT
// The fuzz target: feeds arbitrary bytes to all readers of recordings and checks what must hold for any input.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "monitor/recording/CheckReport.h"
#include "monitor/recording/NumberText.h"
#include "monitor/recording/Options.h"
#include "monitor/recording/TableJoin.h"
#include "monitor/recording/TableReader.h"
#include "monitor/recording/ViewChoice.h"

namespace {

using namespace kavlix::recording;

void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

struct ReadFile {
    FileSummary summary;
    Table table;
};

ReadFile ReadPieces(std::string_view text, std::size_t piece) {
    ReadFile read;
    read.summary.path = "fuzz.csv";
    read.summary.log = MessageLog("fuzz.csv");
    TableReader reader(read.summary, kMaxSeries);
    for (std::size_t at = 0; at < text.size(); at += piece) {
        reader.Feed(text.data() + at, std::min(piece, text.size() - at));
    }
    read.table = reader.Finish();
    return read;
}

bool SameValues(const std::vector<double>& a, const std::vector<double>& b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0);
}

void CheckSame(const ReadFile& a, const ReadFile& b) {
    Require(a.table.times == b.table.times, "times do not depend on the pieces");
    Require(a.table.names == b.table.names, "names do not depend on the pieces");
    Require(std::equal(a.table.columns.begin(), a.table.columns.end(), b.table.columns.begin(),
                       b.table.columns.end(), SameValues),
            "values do not depend on the pieces");
    Require(a.summary.log.Lines() == b.summary.log.Lines(), "messages do not depend on the pieces");
    Require(a.summary.rowsLeftOut == b.summary.rowsLeftOut, "counts do not depend on the pieces");
}

void CheckTable(const ReadFile& read) {
    Require(std::is_sorted(read.table.times.begin(), read.table.times.end()), "times ascend");
    Require(read.table.names.size() == read.table.columns.size(), "every column has a name");
    Require(read.table.names.size() <= kMaxSeries, "no more series than can be shown");
    Require(read.summary.leftOut == read.table.times.empty(), "a file without rows is left out");
    Require(read.summary.rows == read.table.times.size(), "rows are counted");
    for (const std::vector<double>& column : read.table.columns) {
        Require(column.size() == read.table.times.size(), "every column is as long as the times");
        Require(std::none_of(column.begin(), column.end(), [](double value) { return std::isinf(value); }),
                "no infinities are read");
    }
}

void CheckScale(const ValueScale& scale) {
    Require(std::isfinite(scale.min) && std::isfinite(scale.max) && scale.min < scale.max,
            "a scale has a width");
    Require(ValueLabels(scale).size() == static_cast<std::size_t>(scale.ticks), "every tick has a label");
}

void CheckRecording(std::string_view first, std::string_view second, int ticks) {
    std::vector<Table> tables;
    Recording recording;
    std::size_t rows = 0;
    std::size_t taken = 0;
    for (const std::string_view text : {first, second}) {
        ReadFile read;
        read.summary.log = MessageLog("fuzz.csv");
        TableReader reader(read.summary, kMaxSeries - taken);
        reader.Feed(text.data(), text.size());
        read.table = reader.Finish();
        taken += read.table.columns.size();
        rows += read.table.times.size();
        tables.push_back(std::move(read.table));
        recording.files.push_back(std::move(read.summary));
    }
    JoinTables(std::move(tables), recording);
    Require(recording.series.size() == taken, "every series is joined");
    Require(recording.times.size() <= rows && recording.times.size() * 2 >= rows,
            "rows join in pairs at most");
    for (const Series& series : recording.series) {
        Require(series.values.size() == recording.times.size(), "every series is as long as the times");
        Require(!series.name.empty(), "every series has a name");
        Require(std::count_if(recording.series.begin(), recording.series.end(),
                              [&](const Series& other) { return other.name == series.name; }) == 1,
                "names are distinct");
    }
    Require(!CheckReport(recording).empty() && !StatusLine(recording).empty(), "there is a report");
    MessageReport(recording);
    for (const ViewStyle style : {ViewStyle::Line, ViewStyle::Bar, ViewStyle::TwoAxis}) {
        const ViewChoice choice = ChooseView(recording, {style, ticks, ticks * 100});
        CheckScale(choice.y);
        CheckScale(choice.y2);
        for (const Time time : recording.times) {
            Require(static_cast<int>(MakeTimeLabel(choice.labels, time).size()) == choice.labels.chars,
                    "labels have the length of their style");
        }
    }
}

void CheckTexts(std::string_view text) {
    ParsedTime time;
    if (ParseTime(text, time)) {
        ParsedTime again;
        Require(ParseTime(FormatExact(time.time), again) && again.time == time.time, "times read back");
    }
    double value = 0;
    if (ParseNumber(text, value) == NumberKind::Value) {
        double again = 0;
        Require(ParseNumber(FormatNumber(value), again) == NumberKind::Value && again == value,
                "numbers read back");
    }
    ToValidUtf8(text);
    QuoteForMessage(text);
    std::vector<std::string> arguments;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        arguments.emplace_back(text.substr(at, end - at));
        at = end + 1;
    }
    ParseOptions(arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    // The first two bytes choose the size of the pieces and the place where the text is divided into two files.
    const std::size_t piece = data[0] % 16 + std::size_t{1};
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const std::size_t half = std::min<std::size_t>(text.size(), data[1] * std::size_t{4});

    const ReadFile whole = ReadPieces(text, text.size() + 1);
    CheckTable(whole);
    CheckSame(whole, ReadPieces(text, piece));
    CheckRecording(text.substr(0, half), text.substr(half), data[0]);
    CheckTexts(text.substr(0, half));
    return 0;
}
