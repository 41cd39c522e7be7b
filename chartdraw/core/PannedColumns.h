// SPDX-License-Identifier: MIT
// Which pixel columns of a panned plot differ from the moved picture.
#pragma once

#include <optional>
#include <vector>

#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/ColumnEnds.h"
#include "plot/AxisMap.h"

namespace kavlix {

/// The columns from `from` to before `to`.
struct ColumnSpan {
    int from = 0;
    int to = 0;
};

/// A plot whose X axis has moved by nearly whole pixels.
struct PannedPlot {
    AxisMap before; ///< the X axis of the picture that is there
    AxisMap after;  ///< the X axis now
    int shift;      ///< columns by which the picture moves to the left, see PannedBy
    int left;       ///< the columns of the plot
    int right;
    int reach; ///< most columns beside its own one that a point paints, apart from strokes
};

/// The columns by which the map `after` moves pixels to the left of those of `before`. Empty when the maps differ by
/// something else than a move by whole pixels, or when one is logarithmic or has no direction.
std::optional<int> PannedBy(const AxisMap& before, const AxisMap& after);

/// The columns of a panned plot that must be painted again, ascending and without overlap. All other columns of the
/// moved picture are, pixel for pixel, those of a picture that is painted as a whole.
///
/// Rounding can bring a point next to the border of two columns into another column than the moved picture has. So
/// all columns are compared: `ends` are those of all `lines` with the map `before`, over the plot. The columns at the
/// edges are always painted. Empty when there is little to keep, or strokes were cut far away.
std::optional<std::vector<ColumnSpan>> ColumnsToPaint(const PannedPlot& plot, const ColumnEnds& ends,
                                                      const std::vector<const SortedPoints*>& lines);

} // namespace kavlix
