#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <new>

#include "graphctrl/core/Extremes.h"

namespace kavlix {

/// The values of a series in order of arrival. Appending never moves what is stored; dropping from the head
/// costs what is dropped. Positions along the X axis are the indices and take no storage.
///
/// Values lie in chunks of a fixed size, the first few of which are smaller. With every 32 values goes their
/// lowest and highest, with every half of a chunk and with every chunk, so that the extremes of a long
/// range are found without a walk over it; they lie apart from the values, so that such a search passes over
/// little memory. All that is aligned to the number of a value since the last Clear, which dropping from the
/// head does not change.
class SampleStore {
    struct Chunk;

public:
    SampleStore() = default;
    SampleStore(const SampleStore&) = delete;
    SampleStore& operator=(const SampleStore&) = delete;

    /// Number of values; never above what an int counts.
    int Size() const { return static_cast<int>(End() - m_begin); }
    /// Value `i`, which must exist.
    double operator[](int i) const {
        const std::int64_t number = m_begin + i;
        return ChunkOf(number).Value(number);
    }
    bool Has(int i) const { return i >= 0 && i < Size(); }

    /// Reads values that lie near one another faster than the store's own operator. The store must not change
    /// meanwhile.
    class Reader {
    public:
        explicit Reader(const SampleStore& store) : m_store(store) {}
        double operator[](int i) {
            const std::int64_t number = m_store.m_begin + i;
            if (static_cast<std::uint64_t>(number - m_start) >= m_size)
                Enter(m_store.ChunkOf(number));
            return m_values[number - m_start];
        }
        /// The values `first` to `last`, one behind another: where the store has them, or in `copy`, which
        /// has room for all of them, where they lie in several chunks.
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

    /// Throws std::bad_alloc, changing nothing, when memory or the range of an int is exhausted.
    void Append(double value) {
        if (!TryAppend(value))
            AppendToNextBlock(value);
    }
    /// Appends where that takes no more than a store; false, nothing stored, where it takes more.
    bool TryAppend(double value) {
        if (m_next == m_blockEnd)
            return false;
        *m_next++ = value;
        return true;
    }
    /// Removes `count` values from value `first` on, which must exist; a count beyond the end removes up to
    /// the end, one below 1 none.
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
    /// Removes all values and gives their memory back.
    void Clear();

    /// Lowest and highest of the values `first` to `last`, which must exist, at least one.
    Extremes ExtremesOf(int first, int last) const;
    /// Asks for the memory that ExtremesOf reads next to value `i`, which must exist, ahead of its use.
    void Prefetch(int i) const;

    /// The last one of the values `first` to `last` for which `isWanted(value)`; `first` - 1 when there is
    /// none. Whole blocks are passed over when `isUnwanted(extremes)` knows that none of their values is
    /// wanted.
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

    /// Calls `visit(value)` for the values `first` to `last` in order. Whole blocks are passed over when
    /// `isDone(extremes)`.
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
    static constexpr std::int64_t kBlock = 32;
    static constexpr std::int64_t kHalf = 512;
    static constexpr std::int64_t kChunk = 1024;
    static constexpr std::int64_t kSmallChunks = 5; // 32, 32, 64, 128, ... values up to a whole chunk
    static constexpr std::int64_t kHalves = kChunk / kHalf;
    static constexpr std::int64_t kChunksPerSummary = 16;
    static constexpr std::int64_t kExtremesPerChunk = kHalves + kChunk / kBlock;

    struct Release {
        void operator()(void* memory) const { ::operator delete(memory); }
    };
    /// The memory of a chunk.
    using Values = std::unique_ptr<double, Release>;
    struct Memory {
        Values values;
        Extremes* blocks; ///< in a summary; behind the values of a small chunk
    };
    /// What lies where in a chunk.
    struct Chunk {
        double* values;
        Extremes* blocks;   ///< in a large chunk, those of its halves lie before them
        std::int64_t start; ///< number of the first value
        std::int64_t size;

        bool HasHalves() const { return size == kChunk; }
        std::int64_t End() const { return start + size; }
        double* Place(std::int64_t number) const { return values + (number - start); }
        double Value(std::int64_t number) const { return *Place(number); }
        Extremes& BlockExtremes(std::int64_t blockStart) const {
            return blocks[(blockStart - start) / kBlock];
        }
        Extremes& HalfExtremes(std::int64_t halfStart) const {
            return blocks[(halfStart - start) / kHalf - kHalves];
        }
    };
    /// The extremes of some chunks, followed by those of the halves and blocks of each.
    using Summary = std::unique_ptr<Extremes, Release>;

    static std::int64_t BlockStart(std::int64_t number) { return number & ~(kBlock - 1); }
    static std::int64_t ChunkNumber(std::int64_t number) {
        if (number >= kChunk)
            return kSmallChunks + number / kChunk;
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
    /// Which summary serves the chunk that begins at number `start`; -1 for a small chunk.
    static std::int64_t SummaryOf(std::int64_t start) {
        return start < kChunk ? -1 : (start / kChunk - 1) / kChunksPerSummary;
    }
    static std::int64_t PlaceInSummary(std::int64_t start) {
        return (start / kChunk - 1) % kChunksPerSummary;
    }
    /// Where the extremes lie of the large chunk that begins at number `start`; those of the next ones follow
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

    // Values are numbered from the last Clear on.
    std::int64_t m_begin = 0;          ///< number of value 0
    double* m_next = nullptr;          ///< place of the next value
    double* m_blockEnd = nullptr;      ///< end of the block that is being filled
    std::int64_t m_blockEndNumber = 0; ///< number that belongs to it
    std::int64_t m_summarized = 0;     ///< blocks up to here have their extremes
    std::int64_t m_firstChunkEnd = 0;
    std::int64_t m_lastChunkStart = 0;
    std::int64_t m_firstChunk = 0;
    std::int64_t m_firstSummary = 0;
    std::deque<Memory> m_chunks;
    std::deque<Summary> m_summaries;
    // The last ones dropped, for the next ones needed: a heap takes long now and then.
    Values m_spareValues;
    Summary m_spareSummary;
};

} // namespace kavlix
