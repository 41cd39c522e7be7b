// SPDX-License-Identifier: MIT
// SortedChunk: some thousand consecutive points of a sorted series, with the extremes of their blocks.
#pragma once

#include <cstdint>
#include <memory>

#include "plot/Extremes.h"
#include "plot/Prefetch.h"
#include "plot/ValueBounds.h"

namespace kavlix {

/// Points whose x never decreases. A chunk stores y, the extremes of full blocks of 32 and of full groups of
/// 256 values, and either x and the largest step of x in each block, or, where x runs evenly, the formula of x.
///
/// A new point belongs to the last block, whose extremes are computed when the next block begins. Close
/// summarizes the whole chunk; after that no point is appended.
class SortedChunk {
public:
    static constexpr int kBlock = 32;  ///< points of a block
    static constexpr int kGroup = 256; ///< points of a group
    static constexpr int kMost = 4096; ///< points of the largest chunk
    static constexpr int kMasks = kMost / kBlock / 64;

    /// Memory for doubles, which the destructor frees.
    using Memory = std::unique_ptr<double[]>;
    /// Memory for the values, blocks and groups of `capacity` points, a multiple of 32.
    static Memory NewValues(int capacity);
    /// Memory for the x and the steps of the blocks of `capacity` points.
    static Memory NewXs(int capacity);

    /// The rule of x where it runs evenly: x of point k is start + (offset + k) * step.
    struct Formula {
        double start = 0;
        double step = 1;
        std::int64_t offset = 0;

        double At(int k) const { return start + static_cast<double>(offset + k) * step; }
        /// The rule of the points from point `k` on.
        Formula From(int k) const { return {start, step, offset + k}; }
    };

    /// A summary of the points of a closed chunk. NaN values are left out.
    struct Summary {
        Extremes values = {0, 0}; ///< low > high when there is no number
        double positiveLow = 0;   ///< smallest value above 0; infinity when there is none
        double sum = 0;
        int numbers = 0;        ///< values that are not NaN
        int notPositive = 0;    ///< values of 0 and below
        double largestStep = 0; ///< at least as large as each step of x inside the chunk
    };

    /// A chunk whose x are stored.
    SortedChunk(std::int64_t first, int capacity, Memory values, Memory xs);
    /// A chunk whose x follow a rule.
    SortedChunk(std::int64_t first, int capacity, Memory values, const Formula& formula);
    /// A closed copy of the points `from` to before `to` of `other`, with room for `capacity` points.
    SortedChunk(const SortedChunk& other, int from, int to, int capacity, bool storesX);

    std::int64_t First() const { return m_first; }
    std::int64_t End() const { return m_first + m_size; }
    void MoveFirst(int by) { m_first += by; }
    int Size() const { return m_size; }
    int Capacity() const { return m_capacity; }
    bool HasRoom() const { return m_size < m_capacity; }
    bool StoresX() const { return m_xs != nullptr; }
    bool IsClosed() const { return m_isClosed; }
    const Formula& Rule() const { return m_formula; }
    const Summary& Whole() const { return m_whole; } ///< only of a closed chunk

    double X(int k) const { return m_xs ? m_xs[static_cast<std::size_t>(k)] : m_formula.At(k); }
    double Y(int k) const { return m_values[static_cast<std::size_t>(k)]; }
    const double* Ys() const { return m_values.get(); }
    const double* Xs() const { return m_xs.get(); } ///< null when x follow a rule
    double FirstX() const { return X(0); }
    double LastX() const { return m_isClosed ? m_lastX : X(m_size - 1); }

    /// Number of points whose blocks have extremes, a multiple of 32.
    int Summarized() const { return m_summarized; }
    const Extremes& BlockOf(int k) const { return Blocks()[k / kBlock]; }
    const Extremes& GroupOf(int k) const { return Groups()[k / kGroup]; }
    /// Whether the block or group that begins at point `k` holds a NaN.
    bool HasGapInBlock(int k) const { return (m_gaps[k / kBlock / 64] >> (k / kBlock % 64) & 1) != 0; }
    bool HasGapInGroup(int k) const { return (m_gaps[k / kBlock / 64] >> (k / kBlock % 64) & 0xFF) != 0; }
    /// At least as large as the steps of x to the points of the block that begins at point `k`. The step to
    /// the chunk's first point is not counted.
    double LargestStepInBlock(int k) const {
        return m_xs ? static_cast<double>(Steps()[k / kBlock]) : StepBound();
    }
    /// At least as large as each step of x inside the chunk.
    double StepBound() const;
    /// Prefetches what a search for extremes reads around point `k`.
    void Prefetch(int k) const;

    /// Appends a point; there must be room. In a chunk whose x follow a rule, `x` is not used.
    void Append(double x, double y) {
        if (m_size - m_summarized == kBlock)
            SummarizeBlock();
        if (m_xs)
            m_xs[static_cast<std::size_t>(m_size)] = x;
        m_values[static_cast<std::size_t>(m_size++)] = y;
    }
    void SetLast(double y) { m_values[static_cast<std::size_t>(m_size - 1)] = y; }
    /// Inserts a point before point `k`; x are stored and there is room.
    void Insert(int k, double x, double y);
    /// Summarizes all points. `before` is the chunk before this one, or null. A chunk whose x follow a rule,
    /// exact to the last bit, no longer needs them: the result is their memory; otherwise null.
    Memory Close(const SortedChunk* before);
    /// Takes the memory of the values out of a chunk that is removed.
    Memory TakeValues() { return std::move(m_values); }
    Memory TakeXs() { return std::move(m_xs); }

private:
    Extremes* Blocks() const { return reinterpret_cast<Extremes*>(m_values.get() + m_capacity); }
    Extremes* Groups() const { return Blocks() + m_capacity / kBlock; }
    float* Steps() const { return reinterpret_cast<float*>(m_xs.get() + m_capacity); }
    void SummarizeBlock();
    void SummarizeFrom(int k);
    void SummarizeWhole();
    bool Follows(const Formula& formula) const;
    bool FindFormula(const SortedChunk* before);

    std::int64_t m_first; ///< number of the first point; numbers count from the series' first point ever
    int m_size = 0;
    int m_capacity;
    int m_summarized = 0;
    bool m_isClosed = false;
    Memory m_values;
    Memory m_xs;
    Formula m_formula;
    double m_lastX = 0; ///< of a closed chunk: kept here because searches for columns read it
    std::uint64_t m_gaps[kMasks] = {};
    Summary m_whole;
};

} // namespace kavlix
