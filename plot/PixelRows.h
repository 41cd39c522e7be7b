// SPDX-License-Identifier: MIT
// The pixel rows of sample values, computed faster than through LinearMap and PixelEdges.
#pragma once

#include <optional>

#include "plot/Extremes.h"
#include "plot/LinearMap.h"
#include "plot/PixelEdges.h"

namespace kavlix {

/// The pixel rows of values. The result is always the row of LinearMap::Position.
///
/// The exact way divides and truncates in LinearMap::Position and looks the position up in PixelEdges. When
/// all rows have the same height, the fast way finds the row of most values with one multiplication. Next to
/// a row's edge rounding errors decide about the row, so there the exact way is taken.
class PixelRows {
public:
    /// `map` must be monotonic. `map` and `edges` must outlive this object.
    PixelRows(const LinearMap& map, const PixelEdges& edges);

    /// Row of `value`, which must not be NaN; PixelEdges::Before or Behind for a value beyond the edges.
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

    /// Compares each of the `count` values at `values` with the value before it; values[-1] must exist. The
    /// result is the lowest and the highest of the values that lie on another row than the value before. When
    /// there is no such value, `low` is greater than `high`. Empty for NaN and for values beyond the edges.
    /// May also be empty where the exact way is needed, for example next to a row's edge.
    std::optional<Extremes> ExtremesOfMoves(const double* values, int count) const;

private:
    int Exact(double value) const;

    static constexpr double kNearEdge = 1e-6; ///< rows; values closer to a row's edge take the exact way

    const LinearMap& m_map;
    const PixelEdges& m_edges;
    int m_firstRow = 0;
    double m_min = 0;
    double m_rowsPerValue = 0;
    double m_rowOfMin = 0;
    // The fast way is valid from row m_begin to before row m_end, counted from the first row of `edges`. When
    // m_end is not greater than m_begin, the fast way is valid for no row.
    double m_begin = 0;
    double m_end = 0;
};

} // namespace kavlix
