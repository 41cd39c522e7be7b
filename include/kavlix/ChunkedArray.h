#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace kavlix {

/// Elements in order of arrival, in pieces of `ChunkSize`. Adding never moves what is stored, and removing
/// from the head costs what is removed. Of a deque the same is true but for the table of its small pieces,
/// which it copies as it grows: milliseconds with ten million elements. Only adding asks for memory: an empty
/// object holds none, and removing, clearing, moving and swapping cannot fail.
template <class T, std::size_t ChunkSize> class ChunkedArray {
public:
    ChunkedArray() = default;
    ChunkedArray(ChunkedArray&& other) noexcept { Swap(other); }
    ChunkedArray& operator=(ChunkedArray&& other) noexcept {
        ChunkedArray moved(std::move(other));
        Swap(moved);
        return *this;
    }

    std::size_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }
    /// Element `i`, which must exist.
    T& operator[](std::size_t i) {
        return (*m_chunks)[(m_head + i) / ChunkSize]->elements[(m_head + i) % ChunkSize];
    }
    const T& operator[](std::size_t i) const {
        return (*m_chunks)[(m_head + i) / ChunkSize]->elements[(m_head + i) % ChunkSize];
    }
    /// The newest element, which must exist.
    const T& Back() const { return (*this)[m_size - 1]; }

    /// Changes nothing when memory runs out and `new` throws.
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
    /// Removes all elements and gives their memory back.
    void Clear() {
        m_chunks.reset();
        m_head = m_size = 0;
    }
    void Swap(ChunkedArray& other) noexcept {
        m_chunks.swap(other.m_chunks);
        std::swap(m_head, other.m_head);
        std::swap(m_size, other.m_size);
    }

private:
    struct Chunk {
        T elements[ChunkSize];
    };

    using Table = std::deque<std::unique_ptr<Chunk>>;

    std::unique_ptr<Table> m_chunks; ///< none before the first element: an empty deque has blocks of its own
    std::size_t m_head = 0;          ///< elements of the first piece that were removed
    std::size_t m_size = 0;
};

} // namespace kavlix
