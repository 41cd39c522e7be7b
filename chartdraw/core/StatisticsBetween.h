// SPDX-License-Identifier: MIT
// Statistics of the points of a series between two x.
#pragma once

#include "chartdraw/core/ChartSeries.h"

namespace kavlix {

/// Statistics of the points with `xMin` <= x <= `xMax`. Reads all points only if the series is unsorted.
SpanStatistics StatisticsBetween(const ChartSeries& points, double xMin, double xMax);

} // namespace kavlix
