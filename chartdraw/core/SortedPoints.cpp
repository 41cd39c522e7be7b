// SPDX-License-Identifier: MIT
// SortedPoints: the table of chunks, and points that arrive late.
#include "chartdraw/core/SortedPoints.h"

#include <cstddef>
#include <utility>

namespace kavlix {
namespace {

/// Room that a chunk gets for more late points. Whole blocks.
constexpr int kLateRoom = 2 * SortedChunk::kBlock;

int WholeBlocks(int count) {
    return (count + SortedChunk::kBlock - 1) / SortedChunk::kBlock * SortedChunk::kBlock;
}

} // namespace

/// Most chunks have the same size, so the place is guessed from the end; a binary search follows when the
/// guess is wrong.
std::size_t SortedPoints::IndexOfChunk(std::int64_t number) const {
    const std::int64_t guess = GuessChunk(number);
    if (guess >= 0) {
        const SortedChunk& chunk = m_chunks[static_cast<std::size_t>(guess)];
        if (number >= chunk.First() && number < chunk.End())
            return static_cast<std::size_t>(guess);
    }
    const auto found = std::partition_point(m_chunks.begin(), m_chunks.end(),
                                            [=](const auto& chunk) { return chunk.End() <= number; });
    return static_cast<std::size_t>(found - m_chunks.begin());
}

/// The first chunks are small, so that a short series takes little memory.
void SortedPoints::AddChunk(const SortedChunk::Formula* rule) {
    constexpr int kMost = SortedChunk::kMost;
    int capacity = SortedChunk::kBlock;
    while (capacity < kMost && capacity * 2 <= Size())
        capacity *= 2;
    const bool isLarge = capacity == kMost;
    const auto take = [=](SortedChunk::Memory& spare, auto allocate) {
        return isLarge && spare ? std::move(spare) : allocate(capacity);
    };
    SortedChunk::Memory values = take(m_spareValues, &SortedChunk::NewValues);
    if (rule != nullptr)
        m_chunks.emplace_back(m_end, capacity, std::move(values), *rule);
    else
        m_chunks.emplace_back(m_end, capacity, std::move(values), take(m_spareXs, &SortedChunk::NewXs));
    if (m_tail != nullptr) {
        const std::size_t closed = m_chunks.size() - 2;
        SortedChunk::Memory freed = m_chunks[closed].Close(closed > 0 ? &m_chunks[closed - 1] : nullptr);
        if (freed && m_chunks[closed].Capacity() == kMost && !m_spareXs)
            m_spareXs = std::move(freed);
    }
    m_tail = &m_chunks.back();
}

/// A full chunk is split, and a chunk whose x follow a rule gets a small chunk of stored x in its middle.
void SortedPoints::Insert(int i, double x, double y) {
    constexpr int kBlock = SortedChunk::kBlock;
    const std::size_t at = IndexOfChunk(m_begin + i);
    const SortedChunk& old = m_chunks[at];
    const int k = PlaceIn(old, i);
    std::size_t count = 1;     // pieces
    std::size_t receiving = 0; // the piece that gets the point
    if (!old.StoresX() || !old.HasRoom()) {
        const bool isTail = m_tail == &old;
        const int size = old.Size();
        std::vector<SortedChunk> pieces;
        pieces.reserve(3);
        const auto add = [&](int from, int to, bool receives) {
            if (from == to)
                return;
            if (receives)
                receiving = pieces.size();
            const int room = old.StoresX() || receives ? kLateRoom : 0;
            pieces.emplace_back(old, from, to, WholeBlocks(to - from) + room, old.StoresX() || receives);
        };
        if (!old.StoresX()) {
            const int from = k / kBlock * kBlock;
            const int to = std::min(from + kBlock, size);
            add(0, from, false);
            add(from, to, true);
            add(to, size, false);
        } else {
            const int half = size + kLateRoom > SortedChunk::kMost ? WholeBlocks(size / 2) : size;
            add(0, half, k < half);
            add(half, size, k >= half);
        }
        count = pieces.size();
        if (m_chunks.capacity() < m_chunks.size() + count)
            m_chunks.reserve(m_chunks.size() * 2 + count);
        for (std::size_t piece = 0; piece < count; ++piece)
            if (!isTail || piece + 1 < count)
                static_cast<void>(pieces[piece].Close(nullptr));
        m_chunks[at] = std::move(pieces[0]);
        m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                        std::make_move_iterator(pieces.begin() + 1), std::make_move_iterator(pieces.end()));
        m_tail = &m_chunks.back();
    }
    SortedChunk& chunk = m_chunks[at + receiving];
    chunk.Insert(static_cast<int>(m_begin + i - chunk.First()), x, y);
    for (std::size_t later = at + receiving + 1; later < m_chunks.size(); ++later)
        m_chunks[later].MoveFirst(1);
    ++m_end;
}

void SortedPoints::RemoveHead(int count) {
    m_begin += count;
    for (; m_gone < m_chunks.size() && m_chunks[m_gone].End() <= m_begin; ++m_gone) {
        SortedChunk& chunk = m_chunks[m_gone];
        SortedChunk::Memory values = chunk.TakeValues();
        SortedChunk::Memory xs = chunk.TakeXs();
        if (chunk.Capacity() == SortedChunk::kMost) {
            m_spareValues = std::move(values);
            if (xs)
                m_spareXs = std::move(xs);
        }
    }
    if (m_gone == m_chunks.size()) {
        m_chunks.clear();
        m_gone = 0;
        m_tail = nullptr;
    } else if (m_gone * 2 > m_chunks.size()) {
        m_chunks.erase(m_chunks.begin(), m_chunks.begin() + static_cast<std::ptrdiff_t>(m_gone));
        m_gone = 0;
        m_tail = &m_chunks.back();
    }
}

} // namespace kavlix
