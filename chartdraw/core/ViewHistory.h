// SPDX-License-Identifier: MIT
// The views that the user can go back to.
#pragma once

#include <array>
#include <cstddef>

namespace kavlix {

/// The latest entries of a history, at most `most`. Adding one drops the oldest if need be. Needs no memory
/// of the heap.
template <class Entry, std::size_t most> class ViewHistory {
public:
    bool IsEmpty() const { return m_count == 0; }
    void Add(const Entry& entry) {
        m_entries[m_next] = entry;
        m_next = (m_next + 1) % most;
        m_count = m_count < most ? m_count + 1 : most;
    }
    /// Removes the newest entry, which must exist.
    Entry Take() {
        m_next = (m_next + most - 1) % most;
        --m_count;
        return m_entries[m_next];
    }
    void Clear() { m_count = 0; }

private:
    std::array<Entry, most> m_entries{};
    std::size_t m_next = 0; ///< place of the next entry
    std::size_t m_count = 0;
};

} // namespace kavlix
