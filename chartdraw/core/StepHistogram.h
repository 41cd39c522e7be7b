// SPDX-License-Identifier: MIT
// StepHistogram: the median of the steps between neighbouring points.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace kavlix {

/// Counts steps in bins, 64 bins for each factor of two, so that the median is known to 1 %. A step is counted
/// if it is above 0 and finite. The memory grows with the ratio of the largest to the smallest step, up to half
/// a megabyte.
class StepHistogram {
public:
    /// Makes room for a step, so that Add cannot fail. Throws std::bad_alloc.
    void Prepare(double step) {
        if (!IsCounted(step))
            return;
        const std::size_t bin = BinOf(step);
        if (m_bins.empty())
            m_first = bin;
        if (bin < m_first) {
            m_bins.insert(m_bins.begin(), m_first - bin, 0);
            m_first = bin;
        } else if (bin - m_first >= m_bins.size()) {
            m_bins.resize(bin - m_first + 1);
        }
    }
    /// Counts a step once more (`count` 1) or once less (-1). Prepare has made room for it.
    void Add(double step, int count) {
        if (!IsCounted(step))
            return;
        m_bins[BinOf(step) - m_first] += count;
        m_total += count;
    }
    /// The middle of the bin in which the median lies; infinity without steps.
    double Median() const {
        std::int64_t before = 0;
        for (std::size_t i = 0; i < m_bins.size(); ++i) {
            before += m_bins[i];
            if (before * 2 > m_total)
                return (LowerEdge(m_first + i) + LowerEdge(m_first + i + 1)) / 2;
        }
        return std::numeric_limits<double>::infinity();
    }

private:
    // The bin of a double is the upper part of its bits: the exponent and 6 bits of the mantissa.
    static constexpr int kShift = 52 - 6;

    static bool IsCounted(double step) { return step > 0 && step <= std::numeric_limits<double>::max(); }
    static std::size_t BinOf(double step) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &step, sizeof bits);
        return static_cast<std::size_t>(bits >> kShift);
    }
    static double LowerEdge(std::size_t bin) {
        const std::uint64_t bits = static_cast<std::uint64_t>(bin) << kShift;
        double edge = 0;
        std::memcpy(&edge, &bits, sizeof edge);
        return edge;
    }

    std::size_t m_first = 0; ///< bin of element 0
    std::int64_t m_total = 0;
    std::vector<std::int32_t> m_bins;
};

} // namespace kavlix
