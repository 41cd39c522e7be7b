// SPDX-License-Identifier: MIT
// Pixel rows by one multiplication per value, two values at a time where the processor allows it.
#include "plot/PixelRows.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plot/Numeric.h"

#if defined(__SSE2__) || defined(_M_X64)
#define KAVLIX_TWO_AT_ONCE
#include <emmintrin.h>
#endif

namespace kavlix {
namespace {

// For axis ranges between these limits, neither the exact nor the fast computation overflows or loses digits:
// the error of both is less than a billionth of a row.
constexpr double kSmallestRange = 1e-280;
constexpr double kLargestRange = 1e280;

} // namespace

PixelRows::PixelRows(const LinearMap& map, const PixelEdges& edges) : m_map(map), m_edges(edges) {
    const double height = edges.IsEmpty() ? 0 : edges.Edge(1) - edges.Edge(0);
    const double range = std::fabs(map.Range());
    if (height <= 0 || !edges.IsRegular() || range < kSmallestRange || range > kLargestRange)
        return;
    m_firstRow = edges.Before() + 1;
    m_min = map.Min();
    m_rowsPerValue = map.Slope() / height;
    m_rowOfMin = (map.Edge() - edges.Begin()) / height;
    // LinearMap::Position truncates toward zero, which rounds negative positions upwards. So the fast way is
    // used only for rows at positions above 0.
    m_begin = edges.Begin() > 0 ? 0 : std::ceil((1 - edges.Begin()) / height);
    m_end = edges.Count();
}

int PixelRows::Exact(double value) const {
    return m_edges.PixelOrSide(m_map.Position(value).value_or(0));
}

#ifdef KAVLIX_TWO_AT_ONCE

std::optional<Extremes> PixelRows::ExtremesOfMoves(const double* values, int count) const {
    const __m128d min = _mm_set1_pd(m_min);
    const __m128d rowsPerValue = _mm_set1_pd(m_rowsPerValue);
    const __m128d rowOfMin = _mm_set1_pd(m_rowOfMin);
    __m128d low = _mm_set1_pd(kInfinity);
    __m128d high = _mm_set1_pd(-kInfinity);
    __m128d lowRow = low;
    __m128d highRow = high;
    __m128d lowPart = low;
    __m128d highPart = high;
    const auto rowsOf = [&](__m128d pair) {
        const __m128d exact = _mm_add_pd(_mm_mul_pd(_mm_sub_pd(pair, min), rowsPerValue), rowOfMin);
        // The conversion gives the lowest int for NaN and for values that no int can hold.
        const __m128d rows = _mm_cvtepi32_pd(_mm_cvttpd_epi32(exact));
        const __m128d part = _mm_sub_pd(exact, rows);
        lowRow = _mm_min_pd(lowRow, rows);
        highRow = _mm_max_pd(highRow, rows);
        lowPart = _mm_min_pd(lowPart, part);
        highPart = _mm_max_pd(highPart, part);
        return rows;
    };
    // Values on the same row as the value before are masked: with all bits set they are NaN, and min and max
    // return their second operand when the first is NaN.
    const auto gather = [&](__m128d pair, __m128d isSame) {
        low = _mm_min_pd(_mm_or_pd(pair, isSame), low);
        high = _mm_max_pd(_mm_or_pd(pair, isSame), high);
    };
    __m128d before = rowsOf(_mm_load1_pd(values - 1));
    int i = 0;
    for (; i + 1 < count; i += 2) {
        const __m128d pair = _mm_loadu_pd(values + i);
        const __m128d rows = rowsOf(pair);
        gather(pair, _mm_cmpeq_pd(rows, _mm_shuffle_pd(before, rows, 1)));
        before = rows;
    }
    if (i < count) {
        const __m128d pair = _mm_load1_pd(values + i);
        gather(pair, _mm_cmpeq_pd(rowsOf(pair), _mm_unpackhi_pd(before, before)));
    }
    const auto least = [](__m128d pair) {
        return _mm_cvtsd_f64(_mm_min_sd(pair, _mm_unpackhi_pd(pair, pair)));
    };
    const auto most = [](__m128d pair) {
        return _mm_cvtsd_f64(_mm_max_sd(pair, _mm_unpackhi_pd(pair, pair)));
    };
    if (!(least(lowRow) >= m_begin && most(highRow) < m_end && least(lowPart) > kNearEdge &&
          most(highPart) < 1 - kNearEdge))
        return std::nullopt;
    return Extremes{least(low), most(high)};
}

#else

std::optional<Extremes> PixelRows::ExtremesOfMoves(const double* values, int count) const {
    Extremes extremes = {kInfinity, -kInfinity};
    int before = Of(values[-1]);
    for (int i = -1; i < count; ++i) {
        const int row = Of(values[i]);
        if (values[i] != values[i] || !m_edges.HasPixel(row))
            return std::nullopt;
        if (row != before) {
            extremes.low = std::min(extremes.low, values[i]);
            extremes.high = std::max(extremes.high, values[i]);
        }
        before = row;
    }
    return extremes;
}

#endif

} // namespace kavlix
