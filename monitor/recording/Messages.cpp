// SPDX-License-Identifier: MIT
// Keeps and counts messages, and writes them as lines.

#include "monitor/recording/Messages.h"

#include <utility>

#include "monitor/recording/NumberText.h"

namespace kavlix::recording {
namespace {

constexpr const char* kComplaintWords[] = {
    "about the file",
    "about the header",
    "about lines too long",
    "about quotes",
    "about times that cannot be read",
    "about times that go backwards",
    "about cells that are no numbers",
    "about rows too short",
    "about rows too long",
    "about series beyond the limit",
    "about memory",
};
static_assert(std::size(kComplaintWords) == static_cast<std::size_t>(Complaint::Count_));

} // namespace

std::string Message::ToText() const {
    std::string place = file;
    if (line != 0) {
        place += ':' + std::to_string(line);
        if (column != 0)
            place += ':' + std::to_string(column);
    }
    return place + ": " + text;
}

bool MessageLog::Count(Complaint complaint) {
    return ++m_counts[static_cast<std::size_t>(complaint)] <= kLimit;
}

void MessageLog::Add(Complaint complaint, std::uint64_t line, std::uint64_t column, std::string text) {
    m_kept.push_back({complaint, m_file, line, column, std::move(text)});
}

std::uint64_t MessageLog::Total() const {
    std::uint64_t total = 0;
    for (const std::uint64_t count : m_counts)
        total += count;
    return total;
}

std::vector<std::string> MessageLog::Lines() const {
    std::vector<std::string> lines;
    lines.reserve(m_kept.size());
    for (const Message& message : m_kept)
        lines.push_back(message.ToText());
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        if (m_counts[i] > kLimit) {
            lines.push_back(m_file + ": and " + FormatCount(m_counts[i] - kLimit) + " more " +
                            kComplaintWords[i]);
        }
    }
    return lines;
}

} // namespace kavlix::recording
