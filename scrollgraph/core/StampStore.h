#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>

namespace kavlix {

/// Time stamps in order of arrival. Readings come about equally spaced: a stamp takes a byte, what it is away
/// from the even pace of its piece, and four where a piece keeps no pace. Adding never moves more than a
/// piece, and removing from the head costs what is removed.
class StampStore {
public:
    std::size_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }
    /// Stamp `i`, which must exist.
    std::int32_t operator[](std::size_t i) const {
        const std::size_t place = m_head + i;
        return m_pieces[place / kPiece].At(place % kPiece);
    }
    /// The newest stamp, which must exist.
    std::int32_t Back() const { return (*this)[m_size - 1]; }

    /// Throws std::bad_alloc, changing nothing, when memory runs out.
    void Add(std::int32_t stamp);
    /// Removes the `count` oldest stamps, which must exist.
    void RemoveHead(std::size_t count);
    /// Keeps the oldest stamp, which must exist, alone.
    void KeepOne();
    /// Removes all stamps and gives their memory back.
    void Clear();

private:
    static constexpr std::size_t kPiece = 1024;

    struct Narrow {
        std::int8_t away[kPiece];
    };
    struct Wide {
        std::int32_t stamps[kPiece];
    };
    struct Piece {
        std::int64_t first;             ///< stamp 0
        std::int64_t step;              ///< from there to stamp 1
        std::unique_ptr<Narrow> narrow; ///< null in a piece without pace
        std::unique_ptr<Wide> wide;

        std::int64_t Even(std::size_t k) const { return first + step * static_cast<std::int64_t>(k); }
        std::int32_t At(std::size_t k) const {
            return narrow ? static_cast<std::int32_t>(Even(k) + narrow->away[k]) : wide->stamps[k];
        }
        void Set(std::size_t k, std::int32_t stamp);
    };

    std::deque<Piece> m_pieces;
    std::size_t m_head = 0; ///< stamps of the first piece that were removed
    std::size_t m_size = 0;
};

} // namespace kavlix
