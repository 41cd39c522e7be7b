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
        const SortedChunk& chunk = *m_chunks[static_cast<std::size_t>(guess)];
        if (number >= chunk.First() && number < chunk.End())
            return static_cast<std::size_t>(guess);
    }
    const auto found = std::partition_point(m_chunks.begin(), m_chunks.end(),
                                            [=](const auto& chunk) { return chunk->End() <= number; });
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
    auto chunk = rule != nullptr ? std::make_unique<SortedChunk>(m_end, capacity, std::move(values), *rule)
                                 : std::make_unique<SortedChunk>(m_end, capacity, std::move(values),
                                                                 take(m_spareXs, &SortedChunk::NewXs));
    m_chunks.push_back(std::move(chunk));
    if (m_tail != nullptr) {
        const SortedChunk* before = m_chunks.size() > 2 ? m_chunks[m_chunks.size() - 3].get() : nullptr;
        SortedChunk::Memory freed = m_tail->Close(before);
        if (freed && m_tail->Capacity() == kMost && !m_spareXs)
            m_spareXs = std::move(freed);
    }
    m_tail = m_chunks.back().get();
}

/// A full chunk is split, and a chunk whose x follow a rule gets a small chunk of stored x in its middle.
void SortedPoints::Insert(int i, double x, double y) {
    constexpr int kBlock = SortedChunk::kBlock;
    const std::size_t at = IndexOfChunk(m_begin + i);
    const SortedChunk& old = *m_chunks[at];
    const int k = PlaceIn(old, i);
    std::size_t count = 1;     // pieces
    std::size_t receiving = 0; // the piece that gets the point
    if (!old.StoresX() || !old.HasRoom()) {
        const bool isTail = m_tail == &old;
        const int size = old.Size();
        std::vector<std::unique_ptr<SortedChunk>> pieces;
        const auto add = [&](int from, int to, bool receives) {
            if (from == to)
                return;
            if (receives)
                receiving = pieces.size();
            const int room = old.StoresX() || receives ? kLateRoom : 0;
            pieces.push_back(std::make_unique<SortedChunk>(old, from, to, WholeBlocks(to - from) + room,
                                                           old.StoresX() || receives));
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
        m_chunks.reserve(m_chunks.size() + count - 1);
        for (std::size_t piece = 0; piece < count; ++piece)
            if (!isTail || piece + 1 < count)
                static_cast<void>(pieces[piece]->Close(nullptr));
        m_chunks[at] = std::move(pieces[0]);
        m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                        std::make_move_iterator(pieces.begin() + 1), std::make_move_iterator(pieces.end()));
        m_tail = m_chunks.back().get();
    }
    SortedChunk& chunk = *m_chunks[at + receiving];
    chunk.Insert(static_cast<int>(m_begin + i - chunk.First()), x, y);
    for (std::size_t later = at + receiving + 1; later < m_chunks.size(); ++later)
        m_chunks[later]->MoveFirst(1);
    ++m_end;
}

void SortedPoints::RemoveHead(int count) {
    m_begin += count;
    std::size_t gone = 0;
    while (gone < m_chunks.size() && m_chunks[gone]->End() <= m_begin)
        ++gone;
    if (gone == 0)
        return;
    SortedChunk& last = *m_chunks[gone - 1];
    if (last.Capacity() == SortedChunk::kMost) {
        m_spareValues = last.TakeValues();
        if (last.StoresX())
            m_spareXs = last.TakeXs();
    }
    m_chunks.erase(m_chunks.begin(), m_chunks.begin() + static_cast<std::ptrdiff_t>(gone));
    if (m_chunks.empty())
        m_tail = nullptr;
}

} // namespace kavlix
