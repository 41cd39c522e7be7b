#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace kavlix {

/// Elements in order of arrival, in pieces of `PieceSize`. Adding never moves what is stored, and removing
/// from the head costs what is removed. Of a deque the same is true but for the table of its small pieces,
/// which it copies as it grows: milliseconds with ten million elements. Only adding asks for memory: an empty
/// object holds none, and removing, clearing, moving and swapping cannot fail.
template <class T, std::size_t PieceSize> class Pieces {
public:
    Pieces() = default;
    Pieces(Pieces&& other) noexcept { Swap(other); }
    Pieces& operator=(Pieces&& other) noexcept {
        Pieces moved(std::move(other));
        Swap(moved);
        return *this;
    }

    std::size_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }
    /// Element `i`, which must exist.
    T& operator[](std::size_t i) {
        return (*m_pieces)[(m_head + i) / PieceSize]->elements[(m_head + i) % PieceSize];
    }
    const T& operator[](std::size_t i) const {
        return (*m_pieces)[(m_head + i) / PieceSize]->elements[(m_head + i) % PieceSize];
    }
    /// The newest element, which must exist.
    const T& Back() const { return (*this)[m_size - 1]; }

    /// Changes nothing when memory runs out and `new` throws.
    void Add(T value) {
        const std::size_t place = m_head + m_size;
        if (!m_pieces)
            m_pieces = std::make_unique<Table>();
        if (place / PieceSize == m_pieces->size())
            m_pieces->push_back(std::make_unique<Piece>());
        (*m_pieces)[place / PieceSize]->elements[place % PieceSize] = std::move(value);
        ++m_size;
    }
    /// Removes the `count` oldest elements, which must exist.
    void RemoveHead(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            m_pieces->front()->elements[m_head] = T();
            --m_size;
            if (++m_head == PieceSize) {
                m_pieces->pop_front();
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
        if (m_pieces)
            m_pieces->resize((m_head + m_size + PieceSize - 1) / PieceSize);
    }
    /// Removes all elements and gives their memory back.
    void Clear() {
        m_pieces.reset();
        m_head = m_size = 0;
    }
    void Swap(Pieces& other) noexcept {
        m_pieces.swap(other.m_pieces);
        std::swap(m_head, other.m_head);
        std::swap(m_size, other.m_size);
    }

private:
    struct Piece {
        T elements[PieceSize];
    };

    using Table = std::deque<std::unique_ptr<Piece>>;

    std::unique_ptr<Table> m_pieces; ///< none before the first element: an empty deque has blocks of its own
    std::size_t m_head = 0;          ///< elements of the first piece that were removed
    std::size_t m_size = 0;
};

} // namespace kavlix
