// SPDX-License-Identifier: MIT
// ChunkedArray: an array in chunks of a fixed size, for samples and labels that arrive one by one.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace kavlix {

/// Elements in order of arrival, in chunks of `ChunkSize` elements. Adding never moves stored elements.
/// Removing from the head takes time in proportion to the number of elements removed. Compared with
/// std::deque, larger chunks keep the table of chunks short: a growing std::deque copies its table, which
/// takes milliseconds at ten million elements.
///
/// Only adding allocates memory, and a new or cleared object holds none. Removing, clearing, moving and
/// swapping cannot fail.
template <class T, std::size_t ChunkSize> class ChunkedArray {
public:
    ChunkedArray() = default;
    ChunkedArray(ChunkedArray&& other) noexcept { Swap(other); } ///< takes the elements
    /// Takes the elements of `other`.
    ChunkedArray& operator=(ChunkedArray&& other) noexcept {
        ChunkedArray moved(std::move(other));
        Swap(moved);
        return *this;
    }

    std::size_t Size() const { return m_size; }  ///< number of elements
    bool IsEmpty() const { return m_size == 0; } ///< whether there is no element
    /// Element `i`, which must exist.
    T& operator[](std::size_t i) {
        return (*m_chunks)[(m_head + i) / ChunkSize]->elements[(m_head + i) % ChunkSize];
    }
    /// Element `i`, which must exist.
    const T& operator[](std::size_t i) const {
        return (*m_chunks)[(m_head + i) / ChunkSize]->elements[(m_head + i) % ChunkSize];
    }
    /// The newest element, which must exist.
    const T& Back() const { return (*this)[m_size - 1]; }

    /// Appends `value`. When an allocation fails, nothing has changed and the exception passes on.
    void Add(T value) {
        const std::size_t place = m_head + m_size;
        if (!m_chunks)
            m_chunks = std::make_unique<Table>();
        if (place / ChunkSize == m_chunks->size())
            m_chunks->push_back(std::make_unique<Chunk>());
        (*m_chunks)[place / ChunkSize]->elements[place % ChunkSize] = std::move(value);
        ++m_size;
    }
    /// Removes the `count` oldest elements, which must exist.
    void RemoveHead(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            m_chunks->front()->elements[m_head] = T();
            --m_size;
            if (++m_head == ChunkSize) {
                m_chunks->pop_front();
                m_head = 0;
            }
        }
    }
    /// Removes the `count` newest elements, which must exist.
    void RemoveTail(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            --m_size;
            (*this)[m_size] = T();
        }
        if (m_chunks)
            m_chunks->resize((m_head + m_size + ChunkSize - 1) / ChunkSize);
    }
    /// Removes all elements and frees their memory.
    void Clear() {
        m_chunks.reset();
        m_head = m_size = 0;
    }
    void Swap(ChunkedArray& other) noexcept { ///< exchanges the elements
        m_chunks.swap(other.m_chunks);
        std::swap(m_head, other.m_head);
        std::swap(m_size, other.m_size);
    }

private:
    struct Chunk {
        T elements[ChunkSize];
    };

    using Table = std::deque<std::unique_ptr<Chunk>>;

    std::unique_ptr<Table> m_chunks; ///< null before Add and after Clear: an empty std::deque takes memory
    std::size_t m_head = 0;          ///< number of elements removed from the first chunk
    std::size_t m_size = 0;
};

} // namespace kavlix
