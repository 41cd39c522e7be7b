// SPDX-License-Identifier: MIT
// Splits comma-separated text into rows and cells. What the cells mean is TableReader's concern.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavlix::recording {

/// One cell of a row. Its text is valid until the sink's call returns.
struct CsvCell {
    std::string_view text;    ///< without the quotes around it; doubled quotes are single
    std::uint32_t line = 0;   ///< line where the cell begins, counted from the row's first line, which is 0
    std::uint32_t column = 1; ///< byte position where the cell begins in its line, from 1
};

/// One row of at least one cell. An empty line is a row of one empty cell.
struct CsvRow {
    std::uint64_t line = 1;      ///< line of the file where the row begins, from 1
    std::uint64_t endLine = 1;   ///< line where the row ends
    std::uint32_t endColumn = 1; ///< byte position behind the row's last byte in line `endLine`, from 1
    std::vector<CsvCell> cells;
};

/// A fault in the text, and what CsvReader does about it.
enum class CsvFault {
    Utf16,       ///< the file begins with a UTF-16 byte order mark: the reader delivers nothing
    LineTooLong, ///< the line exceeds kLineLimit: the reader skips the line
    OpenQuote,   ///< no closing quote is found: the reader closes the quote at the end of its line
    AfterQuote   ///< text follows a closing quote: the reader keeps the text as part of the cell
};

/// Receives the rows and faults from a CsvReader.
class CsvSink {
public:
    virtual ~CsvSink() = default;

    /// Takes a row. Returns false to stop the reader, which then ignores the rest of the file.
    virtual bool OnRow(const CsvRow& row) = 0;

    /// Takes a fault at the given line and byte position, both from 1.
    virtual void OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) = 0;
};

/// Reads comma-separated text that the caller feeds in pieces. The rows do not depend on the size of the
/// pieces. Quoting follows RFC 4180. Lines end with CRLF, LF or CR. A UTF-8 byte order mark is skipped. The
/// separator is the most frequent of comma, semicolon and tab outside quotes in the first line; a comma when
/// the line has none of them. For any input, the text in memory stays below about twice kLineLimit; a row
/// also needs one CsvCell for each of its cells.
class CsvReader {
public:
    /// Longest row in bytes. A longer row that has line breaks within quotes is read again, one line at a
    /// time. Any other longer row is skipped.
    static constexpr std::size_t kLineLimit = std::size_t{1} << 20;

    /// `sink` is called from Feed and Finish, and must outlive the reader.
    explicit CsvReader(CsvSink& sink);

    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;

    /// Reads the next `size` bytes. Does nothing once the reader has stopped.
    void Feed(const char* data, std::size_t size);

    /// Ends the text and delivers a last row that has no line end. Feed must not be called afterwards.
    void Finish();

    /// Stops the reader: Feed and Finish ignore the rest of the text.
    void Stop() { m_stopped = true; }

    /// The separator of the first line; a comma until that line has been read.
    char Separator() const { return m_separator; }

    /// Whether reading has stopped: by the sink, by Stop or Finish, or because the file is UTF-16.
    bool Stopped() const { return m_stopped; }

private:
    enum class Scan { CellStart, Plain, Quoted, Closed };

    void Drain(bool atEnd);
    bool Begin(bool atEnd);
    bool SkipRestOfLine();
    bool FindRowEnd(bool atEnd);
    void RestartLineByLine(std::size_t until);
    void EndRow(std::size_t end);
    void SetSeparator(std::string_view firstLine);
    void Deliver(std::string_view row);
    std::size_t ReadPlain(std::string_view row, std::size_t at);
    std::size_t ReadQuoted(std::string_view row, std::size_t at);
    void CountLineBreaks(std::string_view row, std::size_t begin, std::size_t end);
    bool IsSpecial(char c) const { return m_special[static_cast<unsigned char>(c)]; }

    CsvSink& m_sink;
    std::string m_pending;        ///< bytes not yet delivered: at most about kLineLimit + 64 KB
    std::size_t m_begin = 0;      ///< where the current row begins in m_pending
    std::size_t m_scanned = 0;    ///< position in m_pending where the search for the row's end continues
    std::size_t m_plainUntil = 0; ///< position in m_pending: a line end before it closes an open quote
    Scan m_scan = Scan::CellStart;
    bool m_rowHasBreaks = false; ///< the current row has a line break within quotes
    std::uint64_t m_line = 1;    ///< line where the current row begins
    bool m_started = false;      ///< the byte order mark and the separator are known
    bool m_skipping = false;     ///< the reader is inside a line beyond the limit
    bool m_skipLf = false;       ///< the last row ended with CR: an LF right behind the CR is skipped
    bool m_stopped = false;
    char m_separator = ',';
    std::array<bool, 256> m_special{}; ///< whether a byte ends an unquoted cell

    // State of Deliver.
    CsvRow m_row;
    std::string m_unquoted;      ///< texts of the quoted cells
    std::uint32_t m_rowLine = 0; ///< the current line within the row, from 0
    std::size_t m_lineStart = 0; ///< position in the row where line m_rowLine begins
};

} // namespace kavlix::recording
