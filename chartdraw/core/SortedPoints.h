// SPDX-License-Identifier: MIT
// SortedPoints: the points of a series whose x never decreases.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "chartdraw/core/PointBoxTree.h"
#include "chartdraw/core/SortedChunk.h"
#include "plot/IndexRange.h"

namespace kavlix {

/// Points in chunks (see SortedChunk). Appending moves no stored point; a chunk adds one entry to a table, which
/// doubles when it is full. Removing from the head takes time in proportion to the number of points removed.
/// Inserting moves the points of at most one chunk. Where x runs evenly, x takes no memory.
class SortedPoints {
public:
    int Size() const { return static_cast<int>(m_end - m_begin); }
    bool IsEmpty() const { return m_end == m_begin; }
    ChartPoint operator[](int i) const {
        const SortedChunk& chunk = ChunkOf(i);
        const int k = PlaceIn(chunk, i);
        return {chunk.X(k), chunk.Y(k)};
    }
    double LastX() const { return m_tail->LastX(); } ///< there is at least one point

    /// Appends a point; `x` is not below the last x. Throws std::bad_alloc, with nothing changed.
    void Append(double x, double y) {
        if (m_tail == nullptr || !m_tail->HasRoom() || !m_tail->StoresX())
            AddChunk(nullptr);
        m_tail->Append(x, y);
        ++m_end;
    }
    /// Appends point `number` of a series whose x is start + number * step; this x is not below the last x.
    /// Throws as Append does.
    void AppendEven(const SortedChunk::Formula& rule, double y) {
        if (m_tail == nullptr || !m_tail->HasRoom() || m_tail->StoresX() || !Continues(rule))
            AddChunk(&rule);
        m_tail->Append(0, y);
        ++m_end;
    }
    /// Inserts a point before point `i`, which exists. Throws as Append does.
    void Insert(int i, double x, double y);
    void ReplaceLast(double y) { m_tail->SetLast(y); }
    /// Removes the first `count` points, which exist.
    void RemoveHead(int count);

    /// The first point with x >= `x`, or with x > `x`; Size() when there is none.
    int LowerBound(double x) const {
        return Partition([x](double each) { return each < x; });
    }
    int UpperBound(double x) const {
        return Partition([x](double each) { return each <= x; });
    }
    /// The first point for whose x `isBefore` is false; it is true for all points before that one.
    template <class IsBefore> int Partition(IsBefore isBefore) const {
        if (IsEmpty())
            return 0;
        const auto chunk = std::partition_point(m_chunks.begin(), m_chunks.end(), [&](const auto& each) {
            return each.End() <= m_begin || isBefore(each.LastX());
        });
        if (chunk == m_chunks.end())
            return Size();
        int begin = static_cast<int>(std::max<std::int64_t>(m_begin - chunk->First(), 0));
        int end = chunk->Size() - 1;
        while (begin < end) {
            const int middle = begin + (end - begin) / 2;
            if (isBefore(chunk->X(middle)))
                begin = middle + 1;
            else
                end = middle;
        }
        return static_cast<int>(chunk->First() + begin - m_begin);
    }

    /// The chunk of point `i`, which exists, and the chunk behind another one, null behind the last one.
    const SortedChunk& ChunkOf(int i) const { return m_chunks[IndexOfChunk(m_begin + i)]; }
    /// The place of point `i` in its chunk, and back.
    int PlaceIn(const SortedChunk& chunk, int i) const {
        return static_cast<int>(m_begin + i - chunk.First());
    }
    int IndexAt(const SortedChunk& chunk, int k) const {
        return static_cast<int>(chunk.First() + k - m_begin);
    }

    /// Reads points near one another faster than the operator does, because the reader remembers the last chunk. The
    /// points must not change during the reader's lifetime.
    class Reader {
    public:
        explicit Reader(const SortedPoints& points) : m_points(points) {}
        double X(int i) { return ChunkAt(i).X(static_cast<int>(m_points.m_begin + i - m_first)); }
        double Y(int i) { return ChunkAt(i).Y(static_cast<int>(m_points.m_begin + i - m_first)); }
        const SortedChunk& ChunkAt(int i) {
            if (static_cast<std::uint64_t>(m_points.m_begin + i - m_first) >= m_size) {
                m_chunk = &m_points.ChunkOf(i);
                m_first = m_chunk->First();
                m_size = static_cast<std::uint64_t>(m_chunk->Size());
            }
            return *m_chunk;
        }

    private:
        const SortedPoints& m_points;
        const SortedChunk* m_chunk = nullptr;
        std::int64_t m_first = 0;
        std::uint64_t m_size = 0;
    };
    /// Prefetches what FindFirst, FindLast and Visit read around point `i`, which exists.
    void Prefetch(int i) const {
        const SortedChunk& chunk = m_chunks[IndexOfChunk(m_begin + i, m_lastPrefetched)];
        chunk.Prefetch(PlaceIn(chunk, i));
    }
    /// Prefetches the summaries of the chunks of `range`, whose points exist. Reads no chunk but the last one.
    void PrefetchSummaries(IndexRange range) const {
        const std::int64_t last = GuessChunk(m_begin + range.last);
        for (std::int64_t i = GuessChunk(m_begin + range.first); i <= last; ++i)
            PrefetchMemory(&m_chunks[static_cast<std::size_t>(i)],
                           &m_chunks[static_cast<std::size_t>(i)] + 1);
    }
    /// Calls `take(before, x)` with the x of the point before and of each point of `range` that begins a chunk. The
    /// range is empty or lies behind point 0.
    template <class Take> void ForChunkStarts(IndexRange range, Take take) const {
        if (range.IsEmpty())
            return;
        for (std::size_t i = IndexOfChunk(m_begin + range.first - 1) + 1; i < m_chunks.size(); ++i) {
            if (m_chunks[i].First() > m_begin + range.last)
                return;
            take(m_chunks[i - 1].LastX(), m_chunks[i].FirstX());
        }
    }

    /// Visits the points of `range`, which exist or are none, in order: whole closed chunks by `takeChunk(chunk)`, full
    /// groups and blocks by `takePart(chunk, k, count, extremes, hasGap)`, other points, at most 32 at a
    /// time, by `takePoints(chunk, from, to)`. When one of the first two returns false, the smaller parts
    /// inside are tried. All places count from the chunk's first point.
    template <class TakeChunk, class TakePart, class TakePoints>
    void Visit(IndexRange range, TakeChunk takeChunk, TakePart takePart, TakePoints takePoints) const {
        if (range.IsEmpty())
            return;
        std::int64_t next = m_begin + range.first;
        const std::int64_t end = m_begin + range.last + 1;
        for (std::size_t i = IndexOfChunk(next); next < end; ++i) {
            const SortedChunk& chunk = m_chunks[i];
            const int from = static_cast<int>(next - chunk.First());
            const int to = static_cast<int>(std::min(end, chunk.End()) - chunk.First());
            if (from != 0 || to != chunk.Size() || !chunk.IsClosed() || !takeChunk(chunk))
                VisitParts(chunk, from, to, takePart, takePoints);
            next = chunk.First() + to;
        }
    }
    /// Visits points `from` to before `to` of one chunk, as Visit does.
    template <class TakePart, class TakePoints> static void
    VisitParts(const SortedChunk& chunk, int from, int to, TakePart takePart, TakePoints takePoints) {
        constexpr int kBlock = SortedChunk::kBlock;
        constexpr int kGroup = SortedChunk::kGroup;
        const int whole = std::min(to, chunk.Summarized());
        for (int k = from; k < to;) {
            if (k % kGroup == 0 && k + kGroup <= whole &&
                takePart(chunk, k, kGroup, chunk.GroupOf(k), chunk.HasGapInGroup(k))) {
                k += kGroup;
            } else if (k % kBlock == 0 && k + kBlock <= whole &&
                       takePart(chunk, k, kBlock, chunk.BlockOf(k), chunk.HasGapInBlock(k))) {
                k += kBlock;
            } else {
                const int stop = std::min(to, k / kBlock * kBlock + kBlock);
                takePoints(chunk, k, stop);
                k = stop;
            }
        }
    }

    /// The first point of `range` for which `isWanted(chunk, k)` is true; empty when there is none.
    /// `isUnwanted(extremes, hasGap, step)` is true only for parts without wanted points; the step of x to a
    /// part's points is at most `step`, except the step to a chunk's first point.
    template <class IsUnwanted, class IsWanted>
    std::optional<int> FindFirst(IndexRange range, IsUnwanted isUnwanted, IsWanted isWanted) const {
        std::optional<int> found;
        Visit(
            range, [&](const SortedChunk& chunk) { return found || IsUnwantedChunk(chunk, isUnwanted); },
            [&](const SortedChunk& chunk, int k, int count, const Extremes& extremes, bool hasGap) {
                return found || isUnwanted(extremes, hasGap, StepOfPart(chunk, k, count));
            },
            [&](const SortedChunk& chunk, int from, int to) {
                for (int k = from; k < to && !found; ++k)
                    if (isWanted(chunk, k))
                        found = IndexAt(chunk, k);
            });
        return found;
    }
    /// The last point of `range` for which `isWanted(chunk, k)` is true; see FindFirst.
    template <class IsUnwanted, class IsWanted>
    std::optional<int> FindLast(IndexRange range, IsUnwanted isUnwanted, IsWanted isWanted) const {
        constexpr int kBlock = SortedChunk::kBlock;
        constexpr int kGroup = SortedChunk::kGroup;
        if (range.IsEmpty())
            return std::nullopt;
        std::int64_t end = m_begin + range.last + 1;
        const std::int64_t begin = m_begin + range.first;
        for (std::size_t i = IndexOfChunk(end - 1); end > begin; --i) {
            const SortedChunk& chunk = m_chunks[i];
            const int from = static_cast<int>(std::max(begin, chunk.First()) - chunk.First());
            int to = static_cast<int>(end - chunk.First());
            end = chunk.First() + from;
            if (from == 0 && to == chunk.Size() && chunk.IsClosed() && IsUnwantedChunk(chunk, isUnwanted))
                continue;
            const auto skips = [&](int k, int count, const Extremes& extremes, bool hasGap) {
                return isUnwanted(extremes, hasGap, StepOfPart(chunk, k, count));
            };
            while (to > from) {
                const int block = (to - 1) / kBlock * kBlock;
                if (to % kGroup == 0 && to - kGroup >= from && to <= chunk.Summarized() &&
                    skips(to - kGroup, kGroup, chunk.GroupOf(to - kGroup),
                          chunk.HasGapInGroup(to - kGroup))) {
                    to -= kGroup;
                } else if (to % kBlock == 0 && block >= from && to <= chunk.Summarized() &&
                           skips(block, kBlock, chunk.BlockOf(block), chunk.HasGapInBlock(block))) {
                    to = block;
                } else {
                    for (const int stop = std::max(block, from); to > stop; --to)
                        if (isWanted(chunk, to - 1))
                            return IndexAt(chunk, to - 1);
                }
            }
        }
        return std::nullopt;
    }
    /// At least as large as the steps of x to the points of a part, see FindFirst.
    static double StepOfPart(const SortedChunk& chunk, int k, int count) {
        return count == SortedChunk::kBlock ? chunk.LargestStepInBlock(k) : chunk.StepBound();
    }

private:
    template <class IsUnwanted>
    static bool IsUnwantedChunk(const SortedChunk& chunk, IsUnwanted& isUnwanted) {
        const SortedChunk::Summary& whole = chunk.Whole();
        return isUnwanted(whole.values, whole.numbers < chunk.Size(), whole.largestStep);
    }
    /// A chunk at or near that of point `number`, which exists. Most chunks have the same size, so their number is
    /// counted from the end; where late points have split chunks, the place in the table is found in proportion.
    std::int64_t GuessChunk(std::int64_t number) const {
        const auto last = static_cast<std::int64_t>(m_chunks.size()) - 1;
        const std::int64_t behind = m_tail->First() - number;
        if (behind <= 0)
            return last;
        const auto first = static_cast<std::int64_t>(m_gone);
        const std::int64_t guess =
            m_isSplit ? last - static_cast<std::int64_t>(static_cast<double>(behind) *
                                                         static_cast<double>(last - first) /
                                                         static_cast<double>(m_tail->First() - m_begin))
                      : last - (behind + SortedChunk::kMost - 1) / SortedChunk::kMost;
        return std::max(guess, first);
    }
    bool IsInChunk(std::size_t i, std::int64_t number) const {
        return i < m_chunks.size() && number >= m_chunks[i].First() && number < m_chunks[i].End();
    }
    std::size_t IndexOfChunk(std::int64_t number) const { return IndexOfChunk(number, m_lastFound); }
    std::size_t IndexOfChunk(std::int64_t number, std::size_t& lastFound) const;
    void AddChunk(const SortedChunk::Formula* rule);
    bool Continues(const SortedChunk::Formula& rule) const {
        const SortedChunk::Formula& own = m_tail->Rule();
        return own.start == rule.start && own.step == rule.step && own.offset + m_tail->Size() == rule.offset;
    }

    // The chunks' summaries lie one behind another, so that searches and painting touch little memory.
    std::vector<SortedChunk> m_chunks;
    std::size_t m_gone = 0;        ///< chunks at the table's head that are removed and hold no points
    SortedChunk* m_tail = nullptr; ///< the last chunk
    // Searches for chunks begin where the last one ended. Any value is valid.
    mutable std::size_t m_lastFound = 0;
    mutable std::size_t m_lastPrefetched = 0;
    bool m_isSplit = false;   ///< late points have split chunks
    std::int64_t m_begin = 0; ///< number of point 0
    std::int64_t m_end = 0;   ///< number behind the last point
    // Free lists of one element each. Reusing the memory of removed chunks avoids slow heap allocations.
    SortedChunk::Memory m_spareValues;
    SortedChunk::Memory m_spareXs;
};

} // namespace kavlix
