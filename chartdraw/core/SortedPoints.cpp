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

/// Looks at the chunk that was found last and at the next one. Otherwise searches from the guessed chunk in steps of
/// growing size, then by halves.
std::size_t SortedPoints::IndexOfChunk(std::int64_t number, std::size_t& lastFound) const {
    if (IsInChunk(lastFound, number))
        return lastFound;
    if (IsInChunk(lastFound + 1, number))
        return ++lastFound;
    auto begin = static_cast<std::size_t>(GuessChunk(number));
    auto end = begin + 1; // the chunk is from `begin` to before `end`
    for (std::size_t step = 1; m_chunks[begin].First() > number; step *= 2) {
        end = begin;
        begin -= std::min(step, begin - m_gone);
    }
    for (std::size_t step = 1; m_chunks[end - 1].End() <= number; step *= 2) {
        begin = end;
        end = std::min(end + step, m_chunks.size());
    }
    while (end - begin > 1) {
        const std::size_t middle = begin + (end - begin) / 2;
        (m_chunks[middle].First() <= number ? begin : end) = middle;
    }
    lastFound = begin;
    return begin;
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
        m_isSplit = true;
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
        m_isSplit = false;
        m_tail = nullptr;
    } else if (m_gone * 2 > m_chunks.size()) {
        m_chunks.erase(m_chunks.begin(), m_chunks.begin() + static_cast<std::ptrdiff_t>(m_gone));
        m_gone = 0;
        m_tail = &m_chunks.back();
    }
}

} // namespace kavlix
