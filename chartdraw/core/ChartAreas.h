// SPDX-License-Identifier: MIT
// The pixels of bars, impulses and filled areas.
#pragma once

#include <optional>

#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/ColumnBorders.h"
#include "chartdraw/core/ColumnRows.h"
#include "plot/AxisMap.h"

namespace kavlix {

/// The row of a baseline; that of the axis' lower end for a value without a position on a logarithmic axis. Empty
/// when the axis has no positions.
std::optional<int> BaselineRow(const AxisMap& yMap, double baseline);

/// The pixel columns of the bar of a point.
class BarShape {
public:
    /// Bars from x - `width` / 2 to x + `width` / 2, at least one pixel wide.
    BarShape(const AxisMap& xMap, double width) : m_xMap(xMap), m_half(width / 2) {}
    /// Bars `pixels` wide, whatever the scale.
    BarShape(const AxisMap& xMap, int pixels) : m_xMap(xMap), m_pixels(pixels) {}

    struct Columns {
        int left;
        int right; ///< the first column that is not covered
    };
    /// The columns of the bar at `x`, which has a position.
    Columns At(double x) const;
    const AxisMap& XMap() const { return m_xMap; }

private:
    AxisMap m_xMap;
    double m_half = 0;
    int m_pixels = 0; ///< 0: by the scale
};

/// Covers in `rows` the bars of a series from row `base` to the row of each point, both included. Points without a
/// position have no bar. For a sorted series the cost grows with the columns and not with the points.
void CoverBars(const ChartSeries& series, const BarShape& bars, const AxisMap& yMap, int base,
               ColumnRows& rows);

/// Covers in `rows` the pixels of a thin line through the points, its last pixel included. With `isStepped` the line
/// goes horizontally, then vertically. Columns whose line lies above or below the view are covered there.
void CoverLine(const ChartSeries& series, const ColumnBorders& borders, const AxisMap& yMap, bool isStepped,
               ColumnRows& rows);

} // namespace kavlix
