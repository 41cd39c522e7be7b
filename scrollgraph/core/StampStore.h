// SPDX-License-Identifier: MIT
// Compact storage for the time stamps of a history.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>

namespace kavlix {

/// Time stamps in order of arrival, stored in chunks. Readings usually arrive at an even pace. In a chunk
/// with an even pace a stamp takes one byte: its difference from the stamp that the pace predicts. In any
/// other chunk a stamp takes four bytes. Adding a stamp converts at most one chunk, and removing the oldest
/// stamps costs time in proportion to their number.
class StampStore {
public:
    std::size_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }
    /// Stamp `i`, which must exist.
    std::int32_t operator[](std::size_t i) const {
        const std::size_t place = m_head + i;
        return m_chunks[place / kChunk].At(place % kChunk);
    }
    /// The newest stamp, which must exist.
    std::int32_t Back() const { return (*this)[m_size - 1]; }

    /// Throws std::bad_alloc, changing nothing, when memory runs out.
    void Add(std::int32_t stamp);
    /// Removes the `count` oldest stamps, which must exist.
    void RemoveHead(std::size_t count);
    /// Removes all stamps but the oldest, which must exist.
    void KeepOne();
    /// Removes all stamps and frees their memory.
    void Clear();

private:
    static constexpr std::size_t kChunk = 1024; ///< stamps in a chunk

    struct Narrow {
        std::int8_t away[kChunk]; ///< each stamp minus the stamp that the even pace predicts
    };
    struct Wide {
        std::int32_t stamps[kChunk];
    };
    struct Chunk {
        std::int64_t first;             ///< stamp 0
        std::int64_t step;              ///< stamp 1 minus stamp 0, the chunk's pace
        std::unique_ptr<Narrow> narrow; ///< null in a chunk without an even pace
        std::unique_ptr<Wide> wide;

        std::int64_t Even(std::size_t k) const { return first + step * static_cast<std::int64_t>(k); }
        std::int32_t At(std::size_t k) const {
            return narrow ? static_cast<std::int32_t>(Even(k) + narrow->away[k]) : wide->stamps[k];
        }
        void Set(std::size_t k, std::int32_t stamp);
    };

    std::deque<Chunk> m_chunks;
    std::size_t m_head = 0; ///< number of removed stamps of the first chunk
    std::size_t m_size = 0;
};

} // namespace kavlix
