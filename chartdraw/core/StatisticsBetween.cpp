// SPDX-License-Identifier: MIT
// Statistics between two x: a range of indices, or a walk over an unsorted series.
#include "chartdraw/core/StatisticsBetween.h"

#include <algorithm>
#include <cmath>

namespace kavlix {

SpanStatistics StatisticsBetween(const ChartSeries& points, double xMin, double xMax) {
    if (points.IsSorted())
        return points.StatisticsOf(points.IndicesBetween(xMin, xMax));
    SpanStatistics found;
    double sum = 0;
    for (int i = 0; i < points.Size(); ++i) {
        const ChartPoint point = points[i];
        if (!(point.x >= xMin && point.x <= xMax) || std::isnan(point.y))
            continue;
        const bool isFirst = found.count++ == 0;
        if (isFirst)
            found.first = point.y;
        found.min = isFirst ? point.y : std::min(found.min, point.y);
        found.max = isFirst ? point.y : std::max(found.max, point.y);
        found.last = point.y;
        sum += point.y;
    }
    if (found.count > 0)
        found.mean = sum / static_cast<double>(found.count);
    return found;
}

} // namespace kavlix
