// SPDX-License-Identifier: MIT
// Scanning for rows, quotes and line ends of comma-separated text.

#include "monitor/recording/CsvReader.h"

#include <algorithm>
#include <iterator>

namespace kavlix::recording {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Marks[] = {"\xFF\xFE", "\xFE\xFF"};
constexpr char kSeparators[] = {',', ';', '\t'};
constexpr std::size_t kPiece = std::size_t{1} << 16; // most bytes added to m_pending at once

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

bool BeginsWith(std::string_view text, std::string_view mark) {
    return text.substr(0, mark.size()) == mark;
}

} // namespace

CsvReader::CsvReader(CsvSink& sink) : m_sink(sink) {
}

void CsvReader::Feed(const char* data, std::size_t size) {
    while (size > 0 && !m_stopped) {
        const std::size_t piece = std::min(size, kPiece);
        m_pending.append(data, piece);
        data += piece;
        size -= piece;
        Drain(false);
    }
}

void CsvReader::Finish() {
    Drain(true);
    m_stopped = true;
}

void CsvReader::Drain(bool atEnd) {
    while (!m_stopped) {
        if (m_skipLf && m_begin < m_pending.size()) {
            m_begin += m_pending[m_begin] == '\n' ? 1 : 0;
            m_scanned = m_begin;
            m_skipLf = false;
        }
        if (m_skipping ? !SkipRestOfLine() : !(Begin(atEnd) && FindRowEnd(atEnd)))
            break;
    }
    m_pending.erase(0, m_stopped ? m_pending.size() : m_begin);
    m_scanned -= std::min(m_scanned, m_begin);
    m_plainUntil -= std::min(m_plainUntil, m_begin);
    m_begin = 0;
}

/// Reads the byte order mark and finds the separator; false when more bytes are needed or the file is UTF-16.
bool CsvReader::Begin(bool atEnd) {
    if (m_started)
        return true;
    // The separator is known only after the whole first line, or after kLineLimit bytes.
    const std::size_t lineEnd = m_pending.find_first_of("\r\n", m_scanned);
    if (lineEnd == std::string::npos && !atEnd && m_pending.size() < kLineLimit + kUtf8Mark.size()) {
        m_scanned = m_pending.size();
        return false;
    }
    if (std::any_of(std::begin(kUtf16Marks), std::end(kUtf16Marks),
                    [&](std::string_view mark) { return BeginsWith(m_pending, mark); })) {
        m_stopped = true;
        m_sink.OnFault(CsvFault::Utf16, 1, 1);
        return false;
    }
    m_started = true;
    m_begin = BeginsWith(m_pending, kUtf8Mark) ? kUtf8Mark.size() : 0;
    m_scanned = m_begin;
    SetSeparator(std::string_view(m_pending).substr(0, std::min(lineEnd, m_begin + kLineLimit)));
    return true;
}

void CsvReader::SetSeparator(std::string_view firstLine) {
    std::size_t counts[std::size(kSeparators)] = {};
    std::size_t best = std::size(kSeparators);
    bool quoted = false;
    for (const char c : firstLine) {
        quoted = quoted != (c == '"');
        const auto found = std::find(std::begin(kSeparators), std::end(kSeparators), c);
        if (!quoted && found != std::end(kSeparators)) {
            const std::size_t index = static_cast<std::size_t>(found - std::begin(kSeparators));
            ++counts[index];
            // Of equal counts, the separator that reaches the count first wins. With one of each, that is the
            // one behind the time column's name.
            best = best == std::size(kSeparators) || counts[index] > counts[best] ? index : best;
        }
    }
    m_separator = best == std::size(kSeparators) ? ',' : kSeparators[best];
    for (const char c : {m_separator, '\n', '\r'})
        m_special[static_cast<unsigned char>(c)] = true;
}

/// Skips to the end of a line beyond the limit; false when the end has not been fed yet.
bool CsvReader::SkipRestOfLine() {
    const std::size_t end = m_pending.find_first_of("\r\n", m_begin);
    if (end == std::string::npos) {
        m_begin = m_pending.size();
        return false;
    }
    m_skipping = false;
    ++m_line;
    EndRow(end);
    return true;
}

/// Begins the row behind the line end at `end`.
void CsvReader::EndRow(std::size_t end) {
    m_skipLf = m_pending[end] == '\r';
    m_begin = end + 1;
    m_scanned = m_begin;
    m_scan = Scan::CellStart;
    m_rowHasBreaks = false;
}

/// Scans the current row to its end and delivers it, or begins to skip it or to read it line by line. Returns
/// false when more bytes are needed or the text has ended.
bool CsvReader::FindRowEnd(bool atEnd) {
    // The scan stops at the same byte whatever the size of the pieces. One byte behind the limit may be the
    // line end of a row of exactly kLineLimit bytes.
    const std::size_t stop = std::min(m_pending.size(), m_begin + kLineLimit + 1);
    std::size_t at = m_scanned;
    for (; at < stop; ++at) {
        const char c = m_pending[at];
        if (m_scan == Scan::Quoted) {
            if (c == '"') {
                m_scan = Scan::Closed;
            } else if (IsLineEnd(c)) {
                if (at < m_plainUntil)
                    break;
                m_rowHasBreaks = true;
            }
        } else if (c == '"' && m_scan != Scan::Plain) {
            m_scan = Scan::Quoted;
        } else if (!IsSpecial(c)) {
            m_scan = Scan::Plain;
            while (at + 1 < stop && !IsSpecial(m_pending[at + 1]))
                ++at;
        } else if (c == m_separator) {
            m_scan = Scan::CellStart;
        } else {
            break;
        }
    }
    m_scanned = at;
    if (at < stop) {
        Deliver(std::string_view(m_pending).substr(m_begin, at - m_begin));
        EndRow(at);
        return true;
    }
    const bool tooLong = stop - m_begin > kLineLimit;
    if (!tooLong && !atEnd)
        return false;
    if (m_rowHasBreaks && (tooLong || m_scan == Scan::Quoted)) {
        RestartLineByLine(stop);
        return true;
    }
    if (tooLong) {
        m_skipping = true;
        m_begin = stop;
        m_sink.OnFault(CsvFault::LineTooLong, m_line, kLineLimit + 1);
        return true;
    }
    if (m_begin < stop) {
        Deliver(std::string_view(m_pending).substr(m_begin, stop - m_begin));
        m_begin = stop;
    }
    return false;
}

/// Begins to scan the current row again, because a quote spans lines and the row is too long or the text ends
/// within the quote. From now on, a line end before `until` closes an open quote, so that the following rows
/// are not lost and no byte is scanned more than a few times.
void CsvReader::RestartLineByLine(std::size_t until) {
    m_plainUntil = until;
    m_scanned = m_begin;
    m_scan = Scan::CellStart;
    m_rowHasBreaks = false;
}

void CsvReader::Deliver(std::string_view row) {
    m_row.cells.clear();
    m_row.line = m_line;
    m_unquoted.clear();
    m_unquoted.reserve(row.size()); // cells point into the buffer, which must not be reallocated
    m_rowLine = 0;
    m_lineStart = 0;
    std::size_t at = 0;
    do {
        at = at < row.size() && row[at] == '"' ? ReadQuoted(row, at) : ReadPlain(row, at);
    } while (at++ < row.size());
    m_row.endLine = m_line + m_rowLine;
    m_row.endColumn = static_cast<std::uint32_t>(row.size() - m_lineStart + 1);
    m_line += m_rowLine + 1;
    m_stopped = !m_sink.OnRow(m_row) || m_stopped;
}

/// Adds the cell that begins at `at`; returns the position of the separator behind the cell, or the
/// row's end.
std::size_t CsvReader::ReadPlain(std::string_view row, std::size_t at) {
    const std::size_t end = std::min(row.find(m_separator, at), row.size());
    m_row.cells.push_back(
        {row.substr(at, end - at), m_rowLine, static_cast<std::uint32_t>(at - m_lineStart + 1)});
    return end;
}

std::size_t CsvReader::ReadQuoted(std::string_view row, std::size_t at) {
    CsvCell cell;
    cell.line = m_rowLine;
    cell.column = static_cast<std::uint32_t>(at - m_lineStart + 1);
    const std::size_t textBegin = m_unquoted.size();
    std::size_t from = at + 1;
    for (;;) {
        const std::size_t quote = row.find('"', from);
        CountLineBreaks(row, from, std::min(quote, row.size()));
        if (quote == std::string_view::npos) {
            m_sink.OnFault(CsvFault::OpenQuote, m_line + cell.line, cell.column);
            m_unquoted.append(row.substr(from));
            from = row.size();
            break;
        }
        const bool doubled = quote + 1 < row.size() && row[quote + 1] == '"';
        m_unquoted.append(row.substr(from, quote - from + (doubled ? 1 : 0)));
        from = quote + (doubled ? 2 : 1);
        if (!doubled)
            break;
    }
    const std::size_t end = std::min(row.find(m_separator, from), row.size());
    if (end > from) {
        m_sink.OnFault(CsvFault::AfterQuote, m_line + m_rowLine, from - m_lineStart + 1);
        m_unquoted.append(row.substr(from, end - from));
    }
    cell.text = std::string_view(m_unquoted).substr(textBegin);
    m_row.cells.push_back(cell);
    return end;
}

/// Counts the line breaks within quotes, CRLF as one.
void CsvReader::CountLineBreaks(std::string_view row, std::size_t begin, std::size_t end) {
    for (std::size_t at = begin; at < end; ++at) {
        if (row[at] == '\n' || (row[at] == '\r' && !(at + 1 < end && row[at + 1] == '\n'))) {
            ++m_rowLine;
            m_lineStart = at + 1;
        }
    }
}

} // namespace kavlix::recording
