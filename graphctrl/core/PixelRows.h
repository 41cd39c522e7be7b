#pragma once

#include <optional>

#include "graphctrl/core/Extremes.h"
#include "plot/LinearMap.h"
#include "plot/PixelEdges.h"

namespace kavlix {

/// The pixel rows of values: that of LinearMap::Position, found faster.
///
/// Position divides, truncates and is then looked up between the edges. Where all rows are equally high, one
/// multiplication tells the same row for all values but those next to an edge, where the last bits of the
/// division decide.
class PixelRows {
public:
    /// `map` must be monotonic. Both must outlive this object.
    PixelRows(const LinearMap& map, const PixelEdges& edges);

    /// Row of `value`, which is no NaN; PixelEdges::Before or Behind beyond the edges.
    int Of(double value) const {
        const double row = (value - m_min) * m_rowsPerValue + m_rowOfMin;
        if (row >= m_begin && row < m_end) {
            const int whole = static_cast<int>(row);
            const double part = row - whole;
            if (part > kNearEdge && part < 1 - kNearEdge)
                return m_firstRow + whole;
        }
        return Exact(value);
    }

    /// Lowest and highest of the `count` values from `values` on that lie on another row than the value
    /// before them; of the first, that is values[-1]. Lowest above highest where all lie on one row. None
    /// where the fast way does not tell all rows: beyond the edges, next to one, and at a NaN.
    std::optional<Extremes> ExtremesOfMoves(const double* values, int count) const;

private:
    int Exact(double value) const;

    static constexpr double kNearEdge = 1e-6;

    const LinearMap& m_map;
    const PixelEdges& m_edges;
    int m_firstRow = 0;
    double m_min = 0;
    double m_rowsPerValue = 0;
    double m_rowOfMin = 0;
    double m_begin = 0;
    double m_end = 0; ///< not above `m_begin` where only the exact way will do
};

} // namespace kavlix
