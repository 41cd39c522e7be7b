// SPDX-License-Identifier: MIT
// SampleStore: memory of the chunks, and the extremes of blocks, halves and chunks.
#include "graphctrl/core/SampleStore.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "plot/ExtremesAccumulator.h"
#include "plot/Prefetch.h"

namespace kavlix {

void SampleStore::AddChunk(std::int64_t start) {
    const auto allocate = [](std::int64_t bytes) { return ::operator new(static_cast<std::size_t>(bytes)); };
    constexpr std::int64_t kValue = sizeof(double);
    constexpr std::int64_t kPair = sizeof(Extremes);

    Memory memory{nullptr, nullptr};
    if (start < kChunk) {
        const std::int64_t size = SmallSize(start);
        memory.values.reset(static_cast<double*>(allocate(size * kValue + size / kBlock * kPair)));
        memory.blocks = reinterpret_cast<Extremes*>(memory.values.get() + size);
    } else {
        const std::int64_t number = SummaryOf(start);
        if (m_summaries.empty() || number >= m_firstSummary + static_cast<std::int64_t>(m_summaries.size())) {
            constexpr std::int64_t kExtremes = kChunksPerSummary * (1 + kExtremesPerChunk);
            if (!m_spareSummary)
                m_spareSummary.reset(static_cast<Extremes*>(allocate(kExtremes * kPair)));
            m_summaries.push_back(std::move(m_spareSummary));
            if (m_summaries.size() == 1)
                m_firstSummary = number;
        }
        if (!m_spareValues)
            m_spareValues.reset(static_cast<double*>(allocate(kChunk * kValue)));
        memory.values = std::move(m_spareValues);
        memory.blocks = m_summaries.back().get() + kChunksPerSummary +
                        PlaceInSummary(start) * kExtremesPerChunk + kHalvesPerChunk;
    }
    m_chunks.push_back(std::move(memory));
    m_lastChunkStart = start;
    if (m_chunks.size() == 1) {
        m_firstChunk = ChunkNumber(start);
        m_firstChunkEnd = LastChunk().End();
    }
}

void SampleStore::AppendToNextBlock(double value) {
    const std::int64_t end = End();
    if (end - m_begin > std::numeric_limits<int>::max() - kBlock)
        throw std::bad_alloc();
    const bool isBlockHere = !m_chunks.empty();
    if (!isBlockHere || LastChunk().End() == end)
        AddChunk(end);
    // Appending within a block does not update the block's extremes. They are computed when the next block
    // begins.
    if (isBlockHere && m_summarized < end)
        SummarizeBlock(end - kBlock);
    m_summarized = end;

    m_next = LastChunk().Place(end);
    m_blockEnd = m_next + kBlock;
    m_blockEndNumber = end + kBlock;
    *m_next++ = value;
}

void SampleStore::SummarizeBlock(std::int64_t blockStart) {
    const Chunk chunk = ChunkOf(blockStart);
    const std::int64_t behind = blockStart + kBlock;
    ExtremesAccumulator block;
    block.Add(chunk.Place(blockStart), kBlock);
    chunk.BlockExtremes(blockStart) = block.Result();
    if (!chunk.HasHalves() || behind % kHalf != 0)
        return;
    ExtremesAccumulator half;
    half.Add(&chunk.BlockExtremes(behind - kHalf), kHalf / kBlock);
    chunk.HalfExtremes(behind - kHalf) = half.Result();
    if (behind != chunk.End())
        return;
    ExtremesAccumulator whole;
    whole.Add(&chunk.HalfExtremes(chunk.start), kHalvesPerChunk);
    *WholeExtremes(chunk.start) = whole.Result();
}

void SampleStore::DropChunks() {
    while (!m_chunks.empty() && m_firstChunkEnd <= m_begin) {
        if (m_firstChunkEnd > kChunk)
            m_spareValues = std::move(m_chunks.front().values);
        m_chunks.pop_front();
        ++m_firstChunk;
        if (!m_chunks.empty())
            m_firstChunkEnd = ChunkOf(m_firstChunkEnd).End();
    }
    if (!m_chunks.empty()) {
        const std::int64_t firstStart = ChunkOf(m_firstChunkEnd - 1).start;
        for (; m_firstSummary < SummaryOf(firstStart); ++m_firstSummary) {
            m_spareSummary = std::move(m_summaries.front());
            m_summaries.pop_front();
        }
        return;
    }
    m_summaries.clear();
    m_next = m_blockEnd = nullptr;
    m_blockEndNumber = m_begin;
}

void SampleStore::RemoveInside(int first, int count) {
    const std::int64_t begin = m_begin + first;
    const std::int64_t oldEnd = End();
    const std::int64_t end = oldEnd - count;
    const auto place = [this](std::int64_t number) { return ChunkOf(number).Place(number); };
    for (std::int64_t number = begin; number < end; ++number)
        *place(number) = *place(number + count);
    while (m_lastChunkStart >= end) {
        m_chunks.pop_back();
        m_lastChunkStart = ChunkOf(m_lastChunkStart - 1).start;
    }
    const std::int64_t lastSummary = SummaryOf(m_lastChunkStart);
    while (!m_summaries.empty() &&
           m_firstSummary + static_cast<std::int64_t>(m_summaries.size()) - 1 > lastSummary)
        m_summaries.pop_back();

    // `first` is not 0, so value `first` - 1 and its chunk still exist.
    const std::int64_t blockStart = BlockStart(end - 1);
    m_next = place(end - 1) + 1;
    m_blockEnd = place(blockStart) + kBlock;
    m_blockEndNumber = blockStart + kBlock;
    m_summarized = blockStart;
    for (std::int64_t start = BlockStart(begin); start < blockStart; start += kBlock)
        SummarizeBlock(start);
}

void SampleStore::Clear() {
    m_chunks.clear();
    m_chunks.shrink_to_fit();
    m_summaries.clear();
    m_summaries.shrink_to_fit();
    m_spareValues.reset();
    m_spareSummary.reset();
    m_next = m_blockEnd = nullptr;
    m_begin = m_blockEndNumber = m_summarized = m_firstChunk = m_firstChunkEnd = m_lastChunkStart = 0;
}

Extremes SampleStore::ExtremesOf(int first, int last) const {
    ExtremesAccumulator all;
    std::int64_t next = m_begin + first;
    const std::int64_t end = m_begin + last + 1;
    const std::int64_t wholesEnd = std::min(end, m_summarized) / kChunk * kChunk;
    while (next < end && !all.HasGap()) {
        if (next >= kChunk && next % kChunk == 0 && next < wholesEnd) {
            // Adds all whole chunks whose extremes lie one behind another in one summary.
            const std::int64_t chunks =
                std::min(kChunksPerSummary - PlaceInSummary(next), (wholesEnd - next) / kChunk);
            all.Add(WholeExtremes(next), chunks);
            next += chunks * kChunk;
            continue;
        }
        const Chunk chunk = ChunkOf(next);
        const std::int64_t stop = std::min(end, chunk.End());
        const auto addBlocks = [&](std::int64_t from, std::int64_t to) {
            all.Add(&chunk.BlockExtremes(from), (to - from) / kBlock);
        };
        // Adds values up to the first whole block, blocks up to the first whole half, halves, blocks,
        // and values again.
        const std::int64_t blocks = std::min((next + kBlock - 1) / kBlock * kBlock, stop);
        const std::int64_t blocksEnd = std::max(blocks, BlockStart(std::min(stop, m_summarized)));
        all.Add(chunk.Place(next), blocks - next);
        const std::int64_t halves = (blocks + kHalf - 1) / kHalf * kHalf;
        const std::int64_t halvesEnd = blocksEnd / kHalf * kHalf;
        if (chunk.HasHalves() && halves < halvesEnd) {
            addBlocks(blocks, halves);
            all.Add(&chunk.HalfExtremes(halves), (halvesEnd - halves) / kHalf);
            addBlocks(halvesEnd, blocksEnd);
        } else {
            addBlocks(blocks, blocksEnd);
        }
        all.Add(chunk.Place(blocksEnd), stop - blocksEnd);
        next = stop;
    }
    return all.Result();
}

void SampleStore::Prefetch(int i) const {
    const std::int64_t number = m_begin + i;
    const Chunk chunk = ChunkOf(number);
    const double* block = chunk.Place(BlockStart(number));
    PrefetchMemory(block, block + kBlock);
    if (!chunk.HasHalves())
        return;
    const Extremes* blocks = &chunk.BlockExtremes(number / kHalf * kHalf);
    PrefetchMemory(blocks, blocks + kHalf / kBlock);
    PrefetchMemory(&chunk.HalfExtremes(chunk.start), chunk.blocks);
}

} // namespace kavlix
