// SPDX-License-Identifier: MIT
// Messages about what is wrong with a file, limited in number.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kavlix::recording {

/// What a message is about. MessageLog keeps a limited number of messages of each kind.
enum class Complaint {
    File,          ///< the file cannot be read, is no text, or has no rows of data
    Header,        ///< no header row, or one without series
    Line,          ///< a line longer than CsvReader::kLineLimit
    Quote,         ///< an open quote, or text behind a closing one
    Time,          ///< an unreadable time
    TimeBackwards, ///< a time before the previous row's
    Cell,          ///< a cell that is no number
    ShortRow,      ///< a row with too few cells
    LongRow,       ///< a row with too many cells
    SeriesLimit,   ///< more series than can be shown
    Memory,        ///< the memory ran out
    Count_         ///< number of kinds
};

/// One thing that is wrong.
struct Message {
    Complaint complaint = Complaint::File;
    std::string file;
    std::uint64_t line = 0;   ///< from 1; 0: the message is about the whole file
    std::uint64_t column = 0; ///< byte position in the line, from 1; 0: the message is about the whole line
    std::string text;         ///< what was expected and what was found

    /// `FILE:LINE:COLUMN: text`, without the parts that are 0.
    std::string ToText() const;
};

/// The messages about one file. Keeps the text of the first kLimit messages of each kind, and counts
/// the rest.
class MessageLog {
public:
    static constexpr std::size_t kLimit = 5;

    explicit MessageLog(std::string file = {}) : m_file(std::move(file)) {}

    /// Counts one message. When the result is true, the caller must pass the message's text to Add.
    bool Count(Complaint complaint);

    /// Keeps the text of a message for which Count returned true.
    void Add(Complaint complaint, std::uint64_t line, std::uint64_t column, std::string text);

    /// The kept messages in the order of Add.
    const std::vector<Message>& Kept() const { return m_kept; }

    /// Number of messages of one kind, including those that were not kept.
    std::uint64_t CountOf(Complaint complaint) const { return m_counts[static_cast<std::size_t>(complaint)]; }

    /// Number of messages of all kinds, including those that were not kept.
    std::uint64_t Total() const;

    /// The text of each kept message. Then, for each kind with more messages than kLimit, a line with the
    /// number of those that were not kept.
    std::vector<std::string> Lines() const;

private:
    std::string m_file;
    std::vector<Message> m_kept;
    std::array<std::uint64_t, static_cast<std::size_t>(Complaint::Count_)> m_counts{};
};

} // namespace kavlix::recording
