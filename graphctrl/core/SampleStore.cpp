#include "graphctrl/core/SampleStore.h"

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#define KAVLIX_TWO_AT_ONCE
#include <emmintrin.h>
#endif

namespace kavlix {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

#ifdef KAVLIX_TWO_AT_ONCE

/// Gathers extremes, two numbers with each instruction. Its minimum of a NaN and a number may be either.
class Gathering {
public:
    void Add(const double* values, std::int64_t count) {
        std::int64_t i = 0;
        for (; i + 3 < count; i += 4) {
            const __m128d a = _mm_loadu_pd(values + i);
            const __m128d b = _mm_loadu_pd(values + i + 2);
            m_low = _mm_min_pd(m_low, _mm_min_pd(a, b));
            m_high = _mm_max_pd(m_high, _mm_max_pd(a, b));
            m_gaps = _mm_or_pd(m_gaps, _mm_cmpunord_pd(a, b));
        }
        for (; i < count; ++i)
            Add(_mm_load1_pd(values + i), _mm_load1_pd(values + i));
    }
    void Add(const Extremes* blocks, std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i) {
            const __m128d pair = _mm_loadu_pd(&blocks[i].low);
            Add(pair, pair);
        }
    }
    bool HasGap() const { return _mm_movemask_pd(m_gaps) != 0; }
    Extremes Result() const {
        if (HasGap())
            return {kNoNumber, kNoNumber};
        double low[2];
        double high[2];
        _mm_storeu_pd(low, m_low);
        _mm_storeu_pd(high, m_high);
        return {std::min(low[0], low[1]), std::max(high[0], high[1])};
    }

private:
    void Add(__m128d low, __m128d high) {
        m_low = _mm_min_pd(m_low, low);
        m_high = _mm_max_pd(m_high, high);
        m_gaps = _mm_or_pd(m_gaps, _mm_cmpunord_pd(low, high));
    }

    __m128d m_low = _mm_set1_pd(kInfinity);
    __m128d m_high = _mm_set1_pd(-kInfinity);
    __m128d m_gaps = _mm_setzero_pd();
};

#else

/// Gathers extremes.
class Gathering {
public:
    void Add(const double* values, std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i)
            Add(values[i], values[i]);
    }
    void Add(const Extremes* blocks, std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i)
            Add(blocks[i].low, blocks[i].high);
    }
    bool HasGap() const { return m_hasGap; }
    Extremes Result() const { return m_hasGap ? Extremes{kNoNumber, kNoNumber} : Extremes{m_low, m_high}; }

private:
    void Add(double low, double high) {
        m_low = low < m_low ? low : m_low;
        m_high = high > m_high ? high : m_high;
        m_hasGap |= low != low;
    }

    double m_low = kInfinity;
    double m_high = -kInfinity;
    bool m_hasGap = false;
};

#endif

void PrefetchMemory(const void* begin, const void* end) {
#if defined(__GNUC__)
    constexpr std::ptrdiff_t kLine = 64;
    for (auto at = static_cast<const char*>(begin); at < end; at += kLine)
        __builtin_prefetch(at);
#else
    (void)begin;
    (void)end;
#endif
}

} // namespace

void SampleStore::AddPiece(std::int64_t start) {
    const auto allocate = [](std::int64_t bytes) { return ::operator new(static_cast<std::size_t>(bytes)); };
    constexpr std::int64_t kValue = sizeof(double);
    constexpr std::int64_t kPair = sizeof(Extremes);

    Memory memory{nullptr, nullptr};
    if (start < kPiece) {
        const std::int64_t size = SmallSize(start);
        memory.values.reset(static_cast<double*>(allocate(size * kValue + size / kBlock * kPair)));
        memory.blocks = reinterpret_cast<Extremes*>(memory.values.get() + size);
    } else {
        const std::int64_t number = SummaryOf(start);
        if (m_summaries.empty() || number >= m_firstSummary + static_cast<std::int64_t>(m_summaries.size())) {
            constexpr std::int64_t kExtremes = kPiecesASummary * (1 + kExtremesAPiece);
            if (!m_spareSummary)
                m_spareSummary.reset(static_cast<Extremes*>(allocate(kExtremes * kPair)));
            m_summaries.push_back(std::move(m_spareSummary));
            if (m_summaries.size() == 1)
                m_firstSummary = number;
        }
        if (!m_spareValues)
            m_spareValues.reset(static_cast<double*>(allocate(kPiece * kValue)));
        memory.values = std::move(m_spareValues);
        memory.blocks =
            m_summaries.back().get() + kPiecesASummary + PlaceInSummary(start) * kExtremesAPiece + kHalves;
    }
    m_pieces.push_back(std::move(memory));
    m_lastPieceStart = start;
    if (m_pieces.size() == 1) {
        m_firstPiece = PieceNumber(start);
        m_firstPieceEnd = LastPiece().End();
    }
}

void SampleStore::AppendToNextBlock(double value) {
    const std::int64_t end = End();
    if (end - m_begin > std::numeric_limits<int>::max() - kBlock)
        throw std::bad_alloc();
    const bool isBlockHere = !m_pieces.empty();
    if (!isBlockHere || LastPiece().End() == end)
        AddPiece(end);
    // A block is complete when the next one begins.
    if (isBlockHere && m_summarized < end)
        SummarizeBlock(end - kBlock);
    m_summarized = end;

    m_next = LastPiece().Place(end);
    m_blockEnd = m_next + kBlock;
    m_blockEndNumber = end + kBlock;
    *m_next++ = value;
}

void SampleStore::SummarizeBlock(std::int64_t blockStart) {
    const Piece piece = PieceOf(blockStart);
    const std::int64_t behind = blockStart + kBlock;
    Gathering block;
    block.Add(piece.Place(blockStart), kBlock);
    piece.BlockExtremes(blockStart) = block.Result();
    if (!piece.HasHalves() || behind % kHalf != 0)
        return;
    Gathering half;
    half.Add(&piece.BlockExtremes(behind - kHalf), kHalf / kBlock);
    piece.HalfExtremes(behind - kHalf) = half.Result();
    if (behind != piece.End())
        return;
    Gathering whole;
    whole.Add(&piece.HalfExtremes(piece.start), kHalves);
    *WholeExtremes(piece.start) = whole.Result();
}

void SampleStore::DropPieces() {
    while (!m_pieces.empty() && m_firstPieceEnd <= m_begin) {
        if (m_firstPieceEnd > kPiece)
            m_spareValues = std::move(m_pieces.front().values);
        m_pieces.pop_front();
        ++m_firstPiece;
        if (!m_pieces.empty())
            m_firstPieceEnd = PieceOf(m_firstPieceEnd).End();
    }
    if (!m_pieces.empty()) {
        const std::int64_t firstStart = PieceOf(m_firstPieceEnd - 1).start;
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
    const auto place = [this](std::int64_t number) { return PieceOf(number).Place(number); };
    for (std::int64_t number = begin; number < end; ++number)
        *place(number) = *place(number + count);
    while (m_lastPieceStart >= end) {
        m_pieces.pop_back();
        m_lastPieceStart = PieceOf(m_lastPieceStart - 1).start;
    }
    const std::int64_t lastSummary = SummaryOf(m_lastPieceStart);
    while (!m_summaries.empty() &&
           m_firstSummary + static_cast<std::int64_t>(m_summaries.size()) - 1 > lastSummary)
        m_summaries.pop_back();

    // Value `first` - 1 is still there, and its piece.
    const std::int64_t blockStart = BlockStart(end - 1);
    m_next = place(end - 1) + 1;
    m_blockEnd = place(blockStart) + kBlock;
    m_blockEndNumber = blockStart + kBlock;
    m_summarized = blockStart;
    for (std::int64_t start = BlockStart(begin); start < blockStart; start += kBlock)
        SummarizeBlock(start);
}

void SampleStore::Clear() {
    m_pieces.clear();
    m_pieces.shrink_to_fit();
    m_summaries.clear();
    m_summaries.shrink_to_fit();
    m_spareValues.reset();
    m_spareSummary.reset();
    m_next = m_blockEnd = nullptr;
    m_begin = m_blockEndNumber = m_summarized = m_firstPiece = m_firstPieceEnd = m_lastPieceStart = 0;
}

Extremes SampleStore::ExtremesOf(int first, int last) const {
    Gathering all;
    std::int64_t next = m_begin + first;
    const std::int64_t end = m_begin + last + 1;
    const std::int64_t wholesEnd = std::min(end, m_summarized) / kPiece * kPiece;
    while (next < end && !all.HasGap()) {
        if (next >= kPiece && next % kPiece == 0 && next < wholesEnd) {
            // Whole pieces, as many as lie in one summary.
            const std::int64_t pieces =
                std::min(kPiecesASummary - PlaceInSummary(next), (wholesEnd - next) / kPiece);
            all.Add(WholeExtremes(next), pieces);
            next += pieces * kPiece;
            continue;
        }
        const Piece piece = PieceOf(next);
        const std::int64_t stop = std::min(end, piece.End());
        const auto addBlocks = [&](std::int64_t from, std::int64_t to) {
            all.Add(&piece.BlockExtremes(from), (to - from) / kBlock);
        };
        // Values up to the first whole block, blocks up to the first whole half, and so back.
        const std::int64_t blocks = std::min((next + kBlock - 1) / kBlock * kBlock, stop);
        const std::int64_t blocksEnd = std::max(blocks, BlockStart(std::min(stop, m_summarized)));
        all.Add(piece.Place(next), blocks - next);
        const std::int64_t halves = (blocks + kHalf - 1) / kHalf * kHalf;
        const std::int64_t halvesEnd = blocksEnd / kHalf * kHalf;
        if (piece.HasHalves() && halves < halvesEnd) {
            addBlocks(blocks, halves);
            all.Add(&piece.HalfExtremes(halves), (halvesEnd - halves) / kHalf);
            addBlocks(halvesEnd, blocksEnd);
        } else {
            addBlocks(blocks, blocksEnd);
        }
        all.Add(piece.Place(blocksEnd), stop - blocksEnd);
        next = stop;
    }
    return all.Result();
}

void SampleStore::Prefetch(int i) const {
    const std::int64_t number = m_begin + i;
    const Piece piece = PieceOf(number);
    const double* block = piece.Place(BlockStart(number));
    PrefetchMemory(block, block + kBlock);
    if (!piece.HasHalves())
        return;
    const Extremes* blocks = &piece.BlockExtremes(number / kHalf * kHalf);
    PrefetchMemory(blocks, blocks + kHalf / kBlock);
    PrefetchMemory(&piece.HalfExtremes(piece.start), piece.blocks);
}

} // namespace kavlix
