// SPDX-License-Identifier: MIT
// SortedChunk: extremes of blocks, summaries of chunks, inserted points and the search for the rule of x.
#include "chartdraw/core/SortedChunk.h"
#include "plot/Numeric.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace kavlix {
namespace {

constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
constexpr int kFewest = 8; // points for which a rule of x is searched

/// The least float that is not below `step`.
float RoundedUp(double step) {
    if (!(step <= static_cast<double>(std::numeric_limits<float>::max())))
        return std::numeric_limits<float>::infinity();
    const auto rounded = static_cast<float>(step);
    return static_cast<double>(rounded) < step
               ? std::nextafter(rounded, std::numeric_limits<float>::infinity())
               : rounded;
}

bool HaveSameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

std::size_t Doubles(std::size_t bytes) {
    return (bytes + sizeof(double) - 1) / sizeof(double);
}

} // namespace

SortedChunk::Memory SortedChunk::NewValues(int capacity) {
    const auto count = static_cast<std::size_t>(capacity);
    const std::size_t extremes = count / kBlock + count / kGroup;
    return Memory(new double[count + extremes * 2]);
}

SortedChunk::Memory SortedChunk::NewXs(int capacity) {
    const auto count = static_cast<std::size_t>(capacity);
    return Memory(new double[count + Doubles(count / kBlock * sizeof(float))]);
}

SortedChunk::SortedChunk(std::int64_t first, int capacity, Memory values, Memory xs)
    : m_first(first), m_capacity(capacity), m_values(std::move(values)), m_xs(std::move(xs)) {
}

SortedChunk::SortedChunk(std::int64_t first, int capacity, Memory values, const Formula& formula)
    : m_first(first), m_capacity(capacity), m_values(std::move(values)), m_formula(formula) {
}

SortedChunk::SortedChunk(const SortedChunk& other, int from, int to, int capacity, bool storesX)
    : m_first(other.m_first + from), m_size(to - from), m_capacity(capacity), m_values(NewValues(capacity)),
      m_xs(storesX ? NewXs(capacity) : nullptr), m_formula(other.m_formula.From(from)) {
    std::copy(other.m_values.get() + from, other.m_values.get() + to, m_values.get());
    for (int k = 0; m_xs && k < m_size; ++k)
        m_xs[static_cast<std::size_t>(k)] = other.X(from + k);
    SummarizeFrom(0);
}

void SortedChunk::SummarizeBlock() {
    const int begin = m_summarized;
    Extremes extremes = {kInfinity, -kInfinity};
    bool hasGap = false;
    const double* values = m_values.get();
    for (int k = begin; k < begin + kBlock; ++k) {
        const double value = values[k];
        extremes.low = value < extremes.low ? value : extremes.low;
        extremes.high = value > extremes.high ? value : extremes.high;
        hasGap |= value != value;
    }
    const int block = begin / kBlock;
    Blocks()[block] = extremes;
    const std::uint64_t bit = std::uint64_t{1} << (block % 64);
    m_gaps[block / 64] = hasGap ? m_gaps[block / 64] | bit : m_gaps[block / 64] & ~bit;
    if (m_xs) {
        double step = 0;
        const double* xs = m_xs.get();
        for (int k = std::max(begin, 1); k < begin + kBlock; ++k)
            step = std::max(step, xs[k] - xs[k - 1]); // keeps `step` for the NaN between equal infinities
        Steps()[block] = RoundedUp(step);
    }
    m_summarized += kBlock;
    if (m_summarized % kGroup != 0)
        return;
    extremes = {kInfinity, -kInfinity};
    for (int k = m_summarized - kGroup; k < m_summarized; k += kBlock) {
        extremes.low = std::min(extremes.low, BlockOf(k).low);
        extremes.high = std::max(extremes.high, BlockOf(k).high);
    }
    Groups()[m_summarized / kGroup - 1] = extremes;
}

/// Summarizes the full blocks from that of point `k` on. Of a chunk that is not closed, the last block stays
/// open.
void SortedChunk::SummarizeFrom(int k) {
    m_summarized = std::min(m_summarized, k / kBlock * kBlock);
    while (m_size - m_summarized > (m_isClosed ? kBlock - 1 : kBlock))
        SummarizeBlock();
}

void SortedChunk::SummarizeWhole() {
    SummarizeFrom(m_size);
    m_lastX = X(m_size - 1);
    Summary whole;
    whole.values = {kInfinity, -kInfinity};
    whole.positiveLow = kInfinity;
    for (int k = 0; k < m_size; ++k) {
        const double value = m_values[static_cast<std::size_t>(k)];
        if (value != value)
            continue;
        whole.values = {std::min(whole.values.low, value), std::max(whole.values.high, value)};
        whole.sum += value;
        ++whole.numbers;
        if (value > 0)
            whole.positiveLow = std::min(whole.positiveLow, value);
        else
            ++whole.notPositive;
    }
    if (m_xs)
        for (int k = 1; k < m_size; ++k)
            whole.largestStep = std::max(whole.largestStep, X(k) - X(k - 1));
    else
        whole.largestStep = StepBound();
    m_whole = whole;
}

double SortedChunk::StepBound() const {
    if (m_isClosed && m_xs)
        return m_whole.largestStep;
    if (m_xs)
        return kInfinity;
    return m_formula.step + 4 * kEpsilon * std::max(std::abs(FirstX()), std::abs(LastX()));
}

void SortedChunk::Prefetch(int k) const {
    const double* block = m_values.get() + k / kBlock * kBlock;
    PrefetchMemory(block, block + kBlock);
    if (m_xs) {
        constexpr int kNear = 8; // points beside the guessed border of a column
        PrefetchMemory(m_xs.get() + std::max(k - kNear, 0), m_xs.get() + std::min(k + kNear, m_capacity));
    }
    PrefetchMemory(&GroupOf(0), Groups() + m_capacity / kGroup);
    PrefetchMemory(&BlockOf(k / kGroup * kGroup), &BlockOf(k / kGroup * kGroup) + kGroup / kBlock);
}

void SortedChunk::Insert(int k, double x, double y) {
    double* xs = m_xs.get();
    double* values = m_values.get();
    std::copy_backward(xs + k, xs + m_size, xs + m_size + 1);
    std::copy_backward(values + k, values + m_size, values + m_size + 1);
    xs[k] = x;
    values[k] = y;
    ++m_size;
    SummarizeFrom(k);
    if (m_isClosed)
        SummarizeWhole();
}

SortedChunk::Memory SortedChunk::Close(const SortedChunk* before) {
    Memory freed;
    if (m_xs && m_size == m_capacity && FindFormula(before))
        freed = std::move(m_xs);
    m_isClosed = true;
    SummarizeWhole();
    return freed;
}

bool SortedChunk::Follows(const Formula& formula) const {
    for (int k = 0; k < m_size; ++k)
        if (!HaveSameBits(m_xs[static_cast<std::size_t>(k)], formula.At(k)))
            return false;
    return true;
}

/// Finds a rule that gives exactly the stored x: that of the chunk before, or one with a step near the mean
/// step. A host usually computes x from a step with few digits, or from a whole number of points per unit, so
/// these steps are tried.
bool SortedChunk::FindFormula(const SortedChunk* before) {
    const auto take = [this](const Formula& formula) {
        if (!Follows(formula))
            return false;
        m_formula = formula;
        return true;
    };
    if (before != nullptr && !before->m_xs && take(before->m_formula.From(before->m_size)))
        return true;
    const double first = FirstX();
    const double mean = (LastX() - first) / (m_size - 1);
    if (m_size < kFewest || !(mean > 0) || !std::isfinite(mean))
        return false;
    const double error = 4 * kEpsilon * (mean + std::max(std::abs(first), std::abs(LastX())) / (m_size - 1));
    const auto tryStep = [&](double step) {
        if (!(std::abs(step - mean) <= error))
            return false;
        const double steps = std::round(first / step);
        constexpr double kExact = 1e15;
        return take({first, step, 0}) ||
               (std::abs(steps) < kExact && take({0, step, static_cast<std::int64_t>(steps)}));
    };
    if (tryStep(mean) || tryStep(X(1) - first) || tryStep(1 / std::round(1 / mean)))
        return true;
    constexpr int kDigits = 15;
    const int magnitude = static_cast<int>(std::floor(std::log10(mean)));
    for (int digits = 1; digits <= kDigits; ++digits) {
        const int decimals = digits - 1 - magnitude;
        const double power = std::pow(10.0, std::abs(decimals));
        if (tryStep(decimals >= 0 ? std::round(mean * power) / power : std::round(mean / power) * power))
            return true;
    }
    return false;
}

} // namespace kavlix
