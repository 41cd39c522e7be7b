// SPDX-License-Identifier: MIT
// SampleStore: the values of a dataset, with the extremes of ranges of values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <new>

#include "plot/Extremes.h"

namespace kavlix {

/// The values of a dataset in order of arrival. Appending never moves stored values. Removing from the head
/// takes time in proportion to the number of values removed.
///
/// Values lie in chunks of a fixed size; the first chunks are smaller. The store keeps the extremes (lowest
/// and highest) of full blocks of 32 values, and of the full halves and the whole of chunks of full size, so
/// that the extremes of a long range are found without reading all values. The extremes lie apart from the
/// values, so that a search for extremes touches little memory.
///
/// Besides its index, every value has a number. The first value after a Clear has the number 0. Removing from
/// the head changes the indices but not the numbers. Blocks, halves and chunks are aligned to the numbers.
class SampleStore {
    struct Chunk;

public:
    SampleStore() = default;
    SampleStore(const SampleStore&) = delete;
    SampleStore& operator=(const SampleStore&) = delete;

    /// Number of values.
    int Size() const { return static_cast<int>(End() - m_begin); }
    /// Value `i`, which must exist.
    double operator[](int i) const {
        const std::int64_t number = m_begin + i;
        return ChunkOf(number).Value(number);
    }
    /// Whether there is a value `i`.
    bool Has(int i) const { return i >= 0 && i < Size(); }

    /// Reads values near one another faster than the store's operator does, because the reader remembers the
    /// last chunk. The store must not change during the reader's lifetime.
    class Reader {
    public:
        explicit Reader(const SampleStore& store) : m_store(store) {}
        double operator[](int i) {
            const std::int64_t number = m_store.m_begin + i;
            if (static_cast<std::uint64_t>(number - m_start) >= m_size)
                Enter(m_store.ChunkOf(number));
            return m_values[number - m_start];
        }
        /// The values `first` to `last` as an array: in the store itself if they lie in one chunk, else
        /// copied to `copy`, which must have room for all.
        const double* Run(int first, int last, double* copy) {
            static_cast<void>((*this)[first]);
            const std::int64_t place = m_store.m_begin + first - m_start;
            if (static_cast<std::uint64_t>(place + (last - first)) < m_size)
                return m_values + place;
            for (int i = first; i <= last; ++i)
                copy[i - first] = (*this)[i];
            return copy;
        }

    private:
        void Enter(const Chunk& chunk) {
            m_values = chunk.values;
            m_start = chunk.start;
            m_size = static_cast<std::uint64_t>(chunk.size);
        }

        const SampleStore& m_store;
        const double* m_values = nullptr;
        std::int64_t m_start = 0;
        std::uint64_t m_size = 0;
    };

    /// Appends a value. When memory runs out, nothing changes and the exception of operator new passes on.
    /// When another block of values could exceed the range of an int, throws std::bad_alloc and changes
    /// nothing.
    void Append(double value) {
        if (!TryAppend(value))
            AppendToNextBlock(value);
    }
    /// Appends a value if the last block has room. False, with nothing stored, when that block is full or
    /// there is no block.
    bool TryAppend(double value) {
        if (m_next == m_blockEnd)
            return false;
        *m_next++ = value;
        return true;
    }
    /// Removes `count` values, the first of which is value `first`, which must exist. A count beyond the end
    /// removes all up to the end, a count below 1 none.
    void Remove(int first, int count) {
        const int rest = Size() - first;
        if (count > rest)
            count = rest;
        if (count <= 0)
            return;
        if (first == 0)
            RemoveHead(count);
        else
            RemoveInside(first, count);
    }
    /// Removes all values and frees their memory.
    void Clear();

    /// The extremes of the values `first` to `last`, at least one value, all of which must exist.
    Extremes ExtremesOf(int first, int last) const;
    /// Prefetches the memory that ExtremesOf reads around value `i`, which must exist.
    void Prefetch(int i) const;

    /// Index of the last of the values `first` to `last` for which `isWanted(value)` is true; `first` - 1 if
    /// there is none. The search skips blocks and halves for whose extremes `isUnwanted(extremes)` is true:
    /// `isUnwanted` may be true only where no value is wanted.
    template <class IsUnwanted, class IsWanted>
    int FindLast(int first, int last, IsUnwanted isUnwanted, IsWanted isWanted) const {
        std::int64_t end = m_begin + last + 1;
        const std::int64_t begin = m_begin + first;
        while (end > begin) {
            const Chunk chunk = ChunkOf(end - 1);
            const std::int64_t halfStart = (end - 1) & ~(kHalf - 1);
            if (halfStart >= begin && end == halfStart + kHalf && chunk.HasHalves() && end <= m_summarized &&
                isUnwanted(chunk.HalfExtremes(halfStart))) {
                end = halfStart;
                continue;
            }
            const std::int64_t blockStart = BlockStart(end - 1);
            const bool isWhole = blockStart >= begin && end == blockStart + kBlock && end <= m_summarized;
            if (isWhole && isUnwanted(chunk.BlockExtremes(blockStart))) {
                end = blockStart;
                continue;
            }
            for (const std::int64_t stop = blockStart > begin ? blockStart : begin; end > stop; --end)
                if (isWanted(chunk.Value(end - 1)))
                    return static_cast<int>(end - 1 - m_begin);
        }
        return first - 1;
    }

    /// Calls `visit(value)` for the values `first` to `last` in order. When `isDone(extremes)` returns true
    /// for a block or half, its values are skipped.
    template <class IsDone, class Visit>
    void VisitUnless(int first, int last, IsDone isDone, Visit visit) const {
        std::int64_t next = m_begin + first;
        const std::int64_t end = m_begin + last + 1;
        while (next < end) {
            const Chunk chunk = ChunkOf(next);
            if (next % kHalf == 0 && next + kHalf <= end && chunk.HasHalves() &&
                next + kHalf <= m_summarized && isDone(chunk.HalfExtremes(next))) {
                next += kHalf;
                continue;
            }
            const std::int64_t blockEnd = BlockStart(next) + kBlock;
            const bool isWhole = next == blockEnd - kBlock && blockEnd <= end && blockEnd <= m_summarized;
            if (isWhole && isDone(chunk.BlockExtremes(next))) {
                next = blockEnd;
                continue;
            }
            for (const std::int64_t stop = blockEnd < end ? blockEnd : end; next < stop; ++next)
                visit(chunk.Value(next));
        }
    }

private:
    static constexpr std::int64_t kBlock = 32;   ///< values of a block
    static constexpr std::int64_t kHalf = 512;   ///< values of half a chunk
    static constexpr std::int64_t kChunk = 1024; ///< values of a chunk
    /// The values with numbers below 1024 lie in small chunks of 32, 32, 64, 128, 256 and 512 values. These
    /// chunks have the numbers 0 to 5.
    static constexpr std::int64_t kLastSmallChunk = 5;
    static constexpr std::int64_t kHalvesPerChunk = kChunk / kHalf;
    static constexpr std::int64_t kChunksPerSummary = 16;
    static constexpr std::int64_t kExtremesPerChunk = kHalvesPerChunk + kChunk / kBlock;

    struct Release {
        void operator()(void* memory) const { ::operator delete(memory); }
    };
    using Values = std::unique_ptr<double, Release>;
    /// The memory of a chunk. A small chunk has the extremes of its blocks behind its values; the extremes of
    /// a large chunk lie in a summary.
    struct Memory {
        Values values;
        Extremes* blocks; ///< extremes of the blocks
    };
    /// A chunk, computed from its Memory and the number of a value. Only large chunks have the extremes of
    /// halves, which lie directly before those of the blocks.
    struct Chunk {
        double* values;
        Extremes* blocks;
        std::int64_t start; ///< number of the first value
        std::int64_t size;  ///< number of values that fit

        bool HasHalves() const { return size == kChunk; }
        std::int64_t End() const { return start + size; }
        double* Place(std::int64_t number) const { return values + (number - start); }
        double Value(std::int64_t number) const { return *Place(number); }
        Extremes& BlockExtremes(std::int64_t blockStart) const {
            return blocks[(blockStart - start) / kBlock];
        }
        Extremes& HalfExtremes(std::int64_t halfStart) const {
            return blocks[(halfStart - start) / kHalf - kHalvesPerChunk];
        }
    };
    /// The extremes of kChunksPerSummary large chunks, followed by the extremes of the halves and
    /// blocks of each.
    using Summary = std::unique_ptr<Extremes, Release>;

    static std::int64_t BlockStart(std::int64_t number) { return number & ~(kBlock - 1); }
    /// Number of the chunk that holds value `number`. Chunks are counted from the last Clear on.
    static std::int64_t ChunkNumber(std::int64_t number) {
        if (number >= kChunk)
            return kLastSmallChunk + number / kChunk;
        std::int64_t chunk = 0;
        for (std::int64_t blocks = number / kBlock; blocks != 0; blocks /= 2)
            ++chunk;
        return chunk;
    }
    Chunk ChunkOf(std::int64_t number) const {
        const Memory& memory = m_chunks[static_cast<std::size_t>(ChunkNumber(number) - m_firstChunk)];
        if (number >= kChunk)
            return {memory.values.get(), memory.blocks, number & ~(kChunk - 1), kChunk};
        std::int64_t start = number < kBlock ? 0 : kBlock;
        while (start != 0 && number >= start * 2)
            start *= 2;
        return {memory.values.get(), memory.blocks, start, SmallSize(start)};
    }
    /// Size of the small chunk that begins at number `start`.
    static std::int64_t SmallSize(std::int64_t start) { return start == 0 ? kBlock : start; }
    Chunk LastChunk() const { return ChunkOf(m_lastChunkStart); }
    std::int64_t End() const { return m_blockEndNumber - (m_blockEnd - m_next); }

    void AppendToNextBlock(double value);
    void AddChunk(std::int64_t start);
    /// Number of the summary for the chunk that begins at number `start`; -1 for a small chunk.
    static std::int64_t SummaryOf(std::int64_t start) {
        return start < kChunk ? -1 : (start / kChunk - 1) / kChunksPerSummary;
    }
    static std::int64_t PlaceInSummary(std::int64_t start) {
        return (start / kChunk - 1) % kChunksPerSummary;
    }
    /// The extremes of the large chunk that begins at number `start`. The extremes of the next chunks follow,
    /// up to the end of the summary.
    Extremes* WholeExtremes(std::int64_t start) const {
        const auto summary = static_cast<std::size_t>(SummaryOf(start) - m_firstSummary);
        return m_summaries[summary].get() + PlaceInSummary(start);
    }
    void RemoveHead(int count) {
        m_begin += count;
        if (m_begin >= m_firstChunkEnd)
            DropChunks();
    }
    void DropChunks();
    void RemoveInside(int first, int count);
    void SummarizeBlock(std::int64_t blockStart);

    std::int64_t m_begin = 0;          ///< number of value 0
    double* m_next = nullptr;          ///< place of the next value, if the last block has room
    double* m_blockEnd = nullptr;      ///< end of the last block
    std::int64_t m_blockEndNumber = 0; ///< number of the first value behind the last block
    std::int64_t m_summarized = 0;     ///< extremes of blocks, halves and chunks are valid up to this number
    std::int64_t m_firstChunkEnd = 0;  ///< number of the first value behind the first chunk
    std::int64_t m_lastChunkStart = 0; ///< number of the first value of the last chunk
    std::int64_t m_firstChunk = 0;     ///< number of the first chunk that is stored
    std::int64_t m_firstSummary = 0;   ///< number of the first summary that is stored
    std::deque<Memory> m_chunks;
    std::deque<Summary> m_summaries;
    // Free lists of one element each. Reusing removed chunks avoids occasional slow heap allocations.
    Values m_spareValues;
    Summary m_spareSummary;
};

} // namespace kavlix
