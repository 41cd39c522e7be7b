#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <utility>

namespace kavlix {

/// Elements in order of arrival, in pieces of `PieceSize`. Adding never moves what is stored, and removing
/// from the head costs what is removed. Of a deque the same is true but for the table of its small pieces,
/// which it copies as it grows: milliseconds with ten million elements.
template <class T, std::size_t PieceSize> class Pieces {
public:
    std::size_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }
    /// Element `i`, which must exist.
    T& operator[](std::size_t i) {
        return m_pieces[(m_head + i) / PieceSize]->elements[(m_head + i) % PieceSize];
    }
    const T& operator[](std::size_t i) const {
        return m_pieces[(m_head + i) / PieceSize]->elements[(m_head + i) % PieceSize];
    }
    /// The newest element, which must exist.
    const T& Back() const { return (*this)[m_size - 1]; }

    /// Changes nothing when memory runs out and `new` throws.
    void Add(T value) {
        const std::size_t place = m_head + m_size;
        if (place / PieceSize == m_pieces.size())
            m_pieces.push_back(std::make_unique<Piece>());
        m_pieces[place / PieceSize]->elements[place % PieceSize] = std::move(value);
        ++m_size;
    }
    /// Removes the `count` oldest elements, which must exist.
    void RemoveHead(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            m_pieces.front()->elements[m_head] = T();
            --m_size;
            if (++m_head == PieceSize) {
                m_pieces.pop_front();
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
        m_pieces.resize((m_head + m_size + PieceSize - 1) / PieceSize);
    }
    /// Removes all elements and gives their memory back.
    void Clear() {
        m_pieces.clear();
        m_pieces.shrink_to_fit();
        m_head = m_size = 0;
    }
    /// Asks for no memory, as moving a deque may.
    void Swap(Pieces& other) noexcept {
        m_pieces.swap(other.m_pieces);
        std::swap(m_head, other.m_head);
        std::swap(m_size, other.m_size);
    }

private:
    struct Piece {
        T elements[PieceSize];
    };

    std::deque<std::unique_ptr<Piece>> m_pieces;
    std::size_t m_head = 0; ///< elements of the first piece that were removed
    std::size_t m_size = 0;
};

} // namespace kavlix
