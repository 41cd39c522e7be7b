// SPDX-License-Identifier: MIT
// Reads header and rows of a file, and describes every fault in a message.

#include "monitor/recording/TableReader.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

bool IsBlankRow(const CsvRow& row) {
    return row.cells.size() == 1 && TrimBlanks(row.cells.front().text).empty();
}

/// Number of cells up to the last one that is not blank. Trailing separators make blank cells at the row's
/// end.
std::size_t CountFilledCells(const CsvRow& row) {
    std::size_t count = row.cells.size();
    while (count > 0 && TrimBlanks(row.cells[count - 1].text).empty())
        --count;
    return count;
}

/// Whether the text holds control characters other than tab and line breaks, which a quoted name may hold.
bool HoldsBinary(std::string_view text) {
    return std::any_of(
        text.begin(), text.end(),
        [](char c) {
            const unsigned char byte = static_cast<unsigned char>(c);
            return byte < 0x20 && c != '\t' && c != '\n' && c != '\r';
        });
}

std::string Counted(std::size_t count, const char* noun) {
    return FormatCount(count) + ' ' + noun + (count == 1 ? "" : "s");
}

} // namespace

TableReader::TableReader(FileSummary& summary, std::size_t maxSeries)
    : m_summary(summary), m_maxSeries(maxSeries), m_csv(*this) {
}

void TableReader::Feed(const char* data, std::size_t size) {
    m_csv.Feed(data, size);
}

Table TableReader::Finish() {
    m_csv.Finish();
    if (m_table.times.empty()) {
        if (m_summary.log.Total() == 0 && m_summary.log.Count(Complaint::File)) {
            m_summary.log.Add(Complaint::File, m_endLine, 1,
                              m_headerSeen
                                  ? "expected rows of data below the header, found the end of the file"
                                  : "expected a header row, found the end of the file");
        }
        m_summary.leftOut = true;
        return {};
    }
    if (m_unsorted)
        SortByTime();
    Summarize();
    return std::move(m_table);
}

void TableReader::RecoverFromLowMemory() {
    m_csv.Stop();
    std::size_t rows = m_table.times.size();
    for (const std::vector<double>& column : m_table.columns)
        rows = std::min(rows, column.size());
    m_table.times.resize(rows);
    for (std::vector<double>& column : m_table.columns)
        column.resize(rows);
    m_summary.rows = rows;
    ++m_summary.rowsLeftOut;
    if (m_summary.log.Count(Complaint::Memory)) {
        m_summary.log.Add(Complaint::Memory, m_endLine, 0,
                          "expected memory for more rows, found none; the rest of the file is left out");
    }
}

void TableReader::OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) {
    const auto tell = [&](Complaint complaint, const std::string& text) {
        if (m_summary.log.Count(complaint))
            m_summary.log.Add(complaint, line, column, text);
    };
    switch (fault) {
    case CsvFault::Utf16:
        tell(Complaint::File, "expected text in UTF-8, found UTF-16; the file is left out");
        break;
    case CsvFault::LineTooLong:
        m_summary.rowsLeftOut += m_headerSeen ? 1 : 0;
        tell(Complaint::Line, "expected a line of at most " + FormatCount(CsvReader::kLineLimit) +
                                  " bytes, found a longer one; it is left out");
        break;
    case CsvFault::OpenQuote:
        tell(Complaint::Quote,
             "expected a closing quote in this line or a later one, found none; it is taken as closed at the "
             "end of the line");
        break;
    case CsvFault::AfterQuote:
        tell(Complaint::Quote,
             "expected a separator or the end of the line behind the closing quote, found more text");
        break;
    }
}

bool TableReader::OnRow(const CsvRow& row) {
    m_endLine = row.endLine + 1;
    if (IsBlankRow(row))
        return true;
    if (!m_headerSeen)
        return ReadHeader(row);
    ReadData(row);
    return true;
}

/// Adds a message about a cell of the row. An index beyond the last cell means the row's end.
void TableReader::Tell(Complaint complaint, const CsvRow& row, std::size_t cell, const std::string& text) {
    if (cell < row.cells.size())
        m_summary.log.Add(complaint, row.line + row.cells[cell].line, row.cells[cell].column, text);
    else
        m_summary.log.Add(complaint, row.endLine, row.endColumn, text);
}

bool TableReader::ReadHeader(const CsvRow& row) {
    const auto binary = std::find_if(row.cells.begin(), row.cells.end(),
                                     [](const CsvCell& cell) { return HoldsBinary(cell.text); });
    if (binary != row.cells.end()) {
        if (m_summary.log.Count(Complaint::File)) {
            Tell(Complaint::File, row, static_cast<std::size_t>(binary - row.cells.begin()),
                 "expected a header row of text, found " + QuoteForMessage(binary->text) +
                     "; the file is left out");
        }
        return false;
    }
    m_headerSeen = true;
    ParsedTime time;
    const bool isData = ParseTime(row.cells.front().text, time);
    const std::size_t cellCount = isData ? row.cells.size() : CountFilledCells(row);
    if (cellCount < 2) {
        if (m_summary.log.Count(Complaint::Header)) {
            Tell(Complaint::Header, row, row.cells.size(),
                 "expected the names of a time column and of at least one series, separated by comma, "
                 "semicolon or tab, found " +
                     Counted(cellCount, "column") + "; the file is left out");
        }
        return false;
    }
    if (isData && m_summary.log.Count(Complaint::Header)) {
        Tell(Complaint::Header, row, 0,
             "expected a header row with the names of the series, found the time " +
                 QuoteForMessage(row.cells.front().text) + "; the row is kept as data");
    }
    if (!TakeNames(row, cellCount, !isData))
        return false;
    if (isData)
        ReadData(row);
    return true;
}

/// Makes a column for each series; false when the limit leaves room for none.
bool TableReader::TakeNames(const CsvRow& row, std::size_t cellCount, bool named) {
    m_cellCount = cellCount;
    const std::size_t taken = std::min(cellCount - 1, m_maxSeries);
    for (std::size_t i = 1; i < cellCount; ++i) {
        std::string name = named ? ToValidUtf8(TrimBlanks(row.cells[i].text)) : std::string();
        name = name.empty() ? "column " + std::to_string(i + 1) : name;
        if (i <= taken) {
            m_table.names.push_back(std::move(name));
        } else if (m_summary.log.Count(Complaint::SeriesLimit)) {
            Tell(Complaint::SeriesLimit, row, i,
                 "expected at most " + std::to_string(kMaxSeries) + " series in all, found one more, " +
                     QuoteForMessage(name) + "; it is left out");
        }
    }
    m_table.columns.resize(taken);
    m_values.resize(taken);
    return taken > 0;
}

void TableReader::ReadData(const CsvRow& row) {
    ParsedTime time;
    if (!ParseTime(row.cells.front().text, time)) {
        ++m_summary.rowsLeftOut;
        if (m_summary.log.Count(Complaint::Time)) {
            Tell(Complaint::Time, row, 0,
                 std::string("expected ") + kTimeExpectation + ", found " +
                     QuoteForMessage(row.cells.front().text) + "; the row is left out");
        }
        return;
    }
    if (!ReadCells(row)) {
        ++m_summary.rowsLeftOut;
        return;
    }
    CheckOrder(row, time.time);
    m_summary.zoned = m_summary.zoned || time.zoned;
    m_table.times.push_back(time.time);
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_table.columns[i].push_back(m_values[i]);
    ++m_summary.rows;
}

/// Reads the numbers of the row into m_values; false when the row must be left out.
bool TableReader::ReadCells(const CsvRow& row) {
    const std::size_t found = row.cells.size();
    if (found > m_cellCount && CountFilledCells(row) > m_cellCount) {
        if (m_summary.log.Count(Complaint::LongRow)) {
            Tell(Complaint::LongRow, row, m_cellCount,
                 "expected the end of the row after " + Counted(m_cellCount, "cell") + ", found " +
                     FormatCount(found) + "; the row is left out");
        }
        return false;
    }
    bool damaged = found < m_cellCount;
    bool anyValue = false;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        m_values[i] = kNoValue;
        if (i + 1 >= found)
            continue;
        const std::string_view text = row.cells[i + 1].text;
        const NumberKind kind = ParseNumber(text, m_values[i], m_csv.Separator() == ';');
        anyValue = anyValue || kind == NumberKind::Value;
        if (kind == NumberKind::Bad) {
            damaged = true;
            if (m_summary.log.Count(Complaint::Cell)) {
                Tell(Complaint::Cell, row, i + 1,
                     std::string("expected ") + kNumberExpectation + " in column " + std::to_string(i + 2) +
                         " (" + QuoteForMessage(m_table.names[i]) + "), found " + QuoteForMessage(text) +
                         "; the cell is left out");
            }
        }
    }
    const bool leftOut = damaged && !anyValue;
    if (found < m_cellCount && m_summary.log.Count(Complaint::ShortRow)) {
        Tell(Complaint::ShortRow, row, found,
             "expected " + Counted(m_cellCount, "cell") + ", found " + FormatCount(found) +
                 (leftOut ? "; the row is left out" : "; the missing ones are left out"));
    }
    return !leftOut;
}

void TableReader::CheckOrder(const CsvRow& row, Time time) {
    if (m_table.times.empty() || time >= m_table.times.back())
        return;
    m_unsorted = true;
    if (m_summary.log.Count(Complaint::TimeBackwards)) {
        const Time before = m_table.times.back();
        Tell(Complaint::TimeBackwards, row, 0,
             "expected a time not before " + FormatExact(before) + ", found " + FormatExact(time) + ", " +
                 FormatDuration(before - time) + " back; the row is kept, in its place by time");
    }
}

void TableReader::SortByTime() {
    const std::vector<Time>& times = m_table.times;
    std::vector<std::size_t> order(times.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(
        order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return times[a] < times[b]; });
    const auto reorder = [&](auto& column) {
        auto sorted = column;
        std::transform(order.begin(), order.end(), sorted.begin(),
                       [&](std::size_t from) { return column[from]; });
        column = std::move(sorted);
    };
    for (std::vector<double>& column : m_table.columns)
        reorder(column);
    reorder(m_table.times);
}

void TableReader::Summarize() {
    const std::vector<Time>& times = m_table.times;
    m_summary.first = times.front();
    m_summary.last = times.back();
    m_summary.interval = MedianInterval(times);
    for (std::size_t i = 1; i < times.size(); ++i) {
        const Time distance = times[i] - times[i - 1];
        if (distance > LongestStep(m_summary.interval)) {
            ++m_summary.timeGaps;
            m_summary.longestGap = std::max(m_summary.longestGap, distance);
        }
    }
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        FileSummary::SeriesSummary series;
        series.name = m_table.names[i];
        bool inGap = false;
        for (const double value : m_table.columns[i]) {
            const bool absent = std::isnan(value);
            ++(absent ? series.absent : series.values);
            series.gaps += absent && !inGap ? 1 : 0;
            inGap = absent;
        }
        const ValueSpan span = SpanOf(m_table.columns[i]);
        series.min = span.min;
        series.max = span.max;
        m_summary.series.push_back(std::move(series));
    }
}

} // namespace kavlix::recording
