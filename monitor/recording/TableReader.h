// SPDX-License-Identifier: MIT
// Makes a table of times and numbers from the rows of one file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "monitor/recording/CsvReader.h"
#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// The rows kept of one file.
struct Table {
    std::vector<Time> times;
    std::vector<std::string> names;           ///< of the series, from the header or made up; not yet distinct
    std::vector<std::vector<double>> columns; ///< one for each name, as long as `times`; NaN is a gap
};

/// Makes a table of one file's rows, and a message for everything that is wrong. The rules:
///
/// - The header names the series. When the first row is data, the reader makes up names and keeps the row.
/// - Blank lines are skipped.
/// - A row with an unreadable time is left out. A row with too many cells is left out too, because their
///   series are unknown; blank cells at the row's end do not count.
/// - A cell that is no number is a gap. A cell missing at the end of the row is a gap too. A row with bad
///   or missing cells and without any value is left out. A complete row of empty cells is kept.
/// - A time before the previous row's causes a message. The row is kept, and sorted by time at the end.
class TableReader final : public CsvSink {
public:
    /// `summary` receives the messages and counts, and must outlive the reader. The reader takes at most
    /// `maxSeries` series.
    TableReader(FileSummary& summary, std::size_t maxSeries);

    /// Feeds bytes of the file.
    void Feed(const char* data, std::size_t size);

    /// Ends the file and completes the summary. Without any row the table is empty, and the file is left out.
    Table Finish();

    /// Whether the rest of the file need not be read.
    bool Stopped() const { return m_csv.Stopped(); }

    /// Number of rows kept until now.
    std::size_t Rows() const { return m_table.times.size(); }

    /// Stops reading after a failed allocation: removes the incomplete last row, and adds a message.
    void RecoverFromLowMemory();

    bool OnRow(const CsvRow& row) override;
    void OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) override;

private:
    bool ReadHeader(const CsvRow& row);
    bool TakeNames(const CsvRow& row, std::size_t cellCount, bool named);
    void ReadData(const CsvRow& row);
    bool ReadCells(const CsvRow& row);
    void CheckOrder(const CsvRow& row, Time time);
    void Tell(Complaint complaint, const CsvRow& row, std::size_t cell, const std::string& text);
    void SortByTime();
    void Summarize();

    FileSummary& m_summary;
    std::size_t m_maxSeries;
    CsvReader m_csv;
    Table m_table;
    std::size_t m_cellCount = 0;  ///< cells of a complete row, including the time
    std::vector<double> m_values; ///< the current row's values
    std::uint64_t m_endLine = 1;  ///< number of the line after the last row
    bool m_headerSeen = false;
    bool m_unsorted = false; ///< a row's time was before the previous row's
};

} // namespace kavlix::recording
