// SPDX-License-Identifier: MIT
// The lowest and highest of many values, two values per instruction where the processor allows it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "plot/Extremes.h"
#include "plot/Numeric.h"

#if defined(__SSE2__) || defined(_M_X64)
#define KAVLIX_EXTREMES_OF_PAIRS
#include <emmintrin.h>
#endif

namespace kavlix {

#ifdef KAVLIX_EXTREMES_OF_PAIRS

/// Finds the lowest and highest of many values. The processor's minimum of a NaN and a number may be the NaN or
/// the number, so m_gaps records whether there was any NaN.
class ExtremesAccumulator {
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
    /// Both NaN when one of the values is NaN.
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

    __m128d m_low = _mm_set1_pd(std::numeric_limits<double>::infinity());
    __m128d m_high = _mm_set1_pd(-std::numeric_limits<double>::infinity());
    __m128d m_gaps = _mm_setzero_pd();
};

#else

/// Finds the lowest and highest of many values.
class ExtremesAccumulator {
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
    /// Both NaN when one of the values is NaN.
    Extremes Result() const { return m_hasGap ? Extremes{kNoNumber, kNoNumber} : Extremes{m_low, m_high}; }

private:
    void Add(double low, double high) {
        m_low = low < m_low ? low : m_low;
        m_high = high > m_high ? high : m_high;
        m_hasGap |= low != low;
    }

    double m_low = std::numeric_limits<double>::infinity();
    double m_high = -std::numeric_limits<double>::infinity();
    bool m_hasGap = false;
};

#endif

} // namespace kavlix
