#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavlix::recording {

/// One cell of a row. Its text lives until the sink's call returns.
struct CsvCell {
    std::string_view text;  ///< without the quotes around it, doubled quotes made single
    std::uint32_t line = 0; ///< lines after the row's first line, where the cell begins (quoted line breaks)
    std::uint32_t column = 1; ///< byte position in that line, from 1
};

/// One row: at least one cell; an empty line is a row of one empty cell.
struct CsvRow {
    std::uint64_t line = 1;      ///< line of the file where the row begins, from 1
    std::uint64_t endLine = 1;   ///< line where it ends
    std::uint32_t endColumn = 1; ///< byte position behind its last byte in that line
    std::vector<CsvCell> cells;
};

/// What a CsvReader may complain about.
enum class CsvFault {
    Utf16,       ///< the file begins with a UTF-16 byte order mark; nothing is delivered
    LineTooLong, ///< the line passes the limit and is skipped
    OpenQuote,   ///< a quote is never closed; it is taken as closed at the end of its line
    AfterQuote ///< text stands between a closing quote and the next separator; it is kept as part of the cell
};

/// Receives what a CsvReader reads.
class CsvSink {
public:
    virtual ~CsvSink() = default;

    /// A row was read. Return false to stop: the rest of the file is ignored.
    virtual bool OnRow(const CsvRow& row) = 0;

    /// Something is wrong at the given line and byte position, both from 1. The reader goes on as told at
    /// CsvFault.
    virtual void OnFault(CsvFault fault, std::uint64_t line, std::uint64_t column) = 0;
};

/// Reads comma-separated text fed in pieces of any size; how the text is cut into pieces does not change what
/// is delivered. Quoting follows RFC 4180; lines end with CRLF, LF or CR. A UTF-8 byte order mark is skipped.
/// The separator (comma, semicolon or tab) is the one that occurs most in the first line outside quotes.
/// Memory is bounded by the line limit whatever is fed.
class CsvReader {
public:
    /// A row of more bytes than this is skipped (or, when a quote is open across lines, read again line by
    /// line).
    static constexpr std::size_t kLineLimit = std::size_t{1} << 20;

    /// @param sink is called from Feed and Finish; it must outlive the reader.
    explicit CsvReader(CsvSink& sink);

    CsvReader(const CsvReader&) = delete;
    CsvReader& operator=(const CsvReader&) = delete;

    /// Takes the next `size` bytes. After the sink stopped the reader this does nothing.
    void Feed(const char* data, std::size_t size);

    /// Ends the text: delivers a last row without a line end. Feed must not be called after it.
    void Finish();

    /// Ends reading: what is fed from now on is ignored.
    void Stop() { m_stopped = true; }

    /// The separator found in the first line; a comma before that.
    char Separator() const { return m_separator; }

    /// Whether the sink stopped the reader, or the file is no text this reader knows.
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
    std::string m_pending;        ///< bytes not yet delivered: never more than the limit and one piece
    std::size_t m_begin = 0;      ///< where the current row begins in m_pending
    std::size_t m_scanned = 0;    ///< up to here the current row has been scanned for its end
    std::size_t m_plainUntil = 0; ///< up to here a quote ends with its line, since one was found open
    Scan m_scan = Scan::CellStart;
    bool m_rowHasBreaks = false; ///< a quoted line break was met in the current row
    std::uint64_t m_line = 1;    ///< line where the current row begins
    bool m_started = false;
    bool m_skipping = false; ///< within a line that passed the limit
    bool m_skipLf = false;   ///< the last row ended with CR: an LF right behind belongs to it
    bool m_stopped = false;
    char m_separator = ',';
    std::array<bool, 256> m_special{}; ///< bytes that a cell without quotes cannot hold

    // State of Deliver.
    CsvRow m_row;
    std::string m_unquoted;      ///< texts of cells that hold doubled quotes
    std::uint32_t m_rowLine = 0; ///< lines passed within the row
    std::size_t m_lineStart = 0; ///< where the line within the row begins
};

} // namespace kavlix::recording
