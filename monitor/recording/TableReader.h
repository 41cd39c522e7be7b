#pragma once

#include "monitor/recording/CsvReader.h"
#include "monitor/recording/Recording.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kavlix::recording {

/// The rows kept of one file.
struct Table {
    std::vector<Time> times;
    std::vector<std::string> names;           ///< of the series, from the header; not yet distinct
    std::vector<std::vector<double>> columns; ///< one a name, as long as times; NaN is a gap
};

/// Makes a table of one file's rows and says what is wrong with them. The rules:
///
/// - The header names the series. Where the first row is data already, names are made up and the row is kept.
/// - A row with an unreadable time is left out. So is one with too many cells: nobody can tell which of them
/// belong
///   to which series.
/// - A cell that is no number, or is missing at the end of the row, is a gap; when that leaves nothing
///   of the row, it is left out and counted.
/// - A time before the one above is told; the row is kept, and sorted in at the end.
class TableReader final : public CsvSink {
public:
    /// @param summary receives the messages and counts; it must outlive the reader.
    /// @param maxSeries series that may still be taken.
    TableReader(FileSummary& summary, std::size_t maxSeries);

    /// Feeds bytes of the file.
    void Feed(const char* data, std::size_t size);

    /// Ends the file and completes the summary. A table without rows is empty, and its file is left out.
    Table Finish();

    /// Whether the rest of the file need not be read.
    bool Stopped() const { return m_csv.Stopped(); }

    /// Rows kept so far.
    std::size_t Rows() const { return m_table.times.size(); }

    /// Ends reading because the memory ran out, and says so: gives back what was only half added.
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
    std::size_t m_cellCount = 0;  ///< cells of a full row, the time included
    std::vector<double> m_values; ///< the current row
    std::uint64_t m_endLine = 1;  ///< line behind the last row
    bool m_headerSeen = false;
    bool m_unsorted = false;
};

} // namespace kavlix::recording
