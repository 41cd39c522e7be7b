#pragma once

#include <cmath>

#include "graphctrl/LinearMap.h"
#include "graphctrl/PixelColumns.h"

namespace kavlix {

/// The pixel rows of values: that of LinearMap::Position, found faster.
///
/// Position divides, truncates and is then looked up between the edges. Where all rows are equally high, one
/// multiplication tells the same row for all values but those next to an edge, where the last bits of the
/// division decide.
class PixelRows {
public:
    /// `map` must be monotonic. Both must outlive this object.
    PixelRows(const LinearMap& map, const PixelEdges& edges) : m_map(map), m_edges(edges) {
        const double height = edges.IsEmpty() ? 0 : edges.Edge(1) - edges.Edge(0);
        const double range = std::fabs(map.Range());
        if (height <= 0 || !edges.IsRegular() || range < kSmallestRange || range > kLargestRange)
            return;
        m_min = map.Min();
        m_rowsPerValue = map.Slope() / height;
        m_rowOfMin = (map.Edge() - edges.Begin()) / height;
        // Truncation rounds positions below 0 the other way.
        m_begin = edges.Begin() > 0 ? 0 : std::ceil((1 - edges.Begin()) / height);
        m_end = edges.Count();
    }

    /// Row of `value`, which is no NaN; PixelEdges::Before or Behind beyond the edges.
    int Of(double value) const {
        const double row = (value - m_min) * m_rowsPerValue + m_rowOfMin;
        if (row >= m_begin && row < m_end) {
            const int whole = static_cast<int>(row);
            const double part = row - whole;
            if (part > kNearEdge && part < 1 - kNearEdge)
                return m_edges.Before() + 1 + whole;
        }
        return m_edges.PixelOrSide(m_map.Position(value).value_or(0));
    }

private:
    // Inside these, neither way overflows or loses digits: both err by less than a billionth of a row.
    static constexpr double kSmallestRange = 1e-280;
    static constexpr double kLargestRange = 1e280;
    static constexpr double kNearEdge = 1e-6;

    const LinearMap& m_map;
    const PixelEdges& m_edges;
    double m_min = 0;
    double m_rowsPerValue = 0;
    double m_rowOfMin = 0;
    double m_begin = 0;
    double m_end = 0; ///< not above `m_begin` where only the exact way will do
};

} // namespace kavlix
