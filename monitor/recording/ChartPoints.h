// The points of the chart page: one series against another, against its own previous value, or against time.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// What the X axis of the chart shows.
enum class ChartX {
    Series,      ///< another series
    Predecessor, ///< the previous value of the same series
    Time
};

/// Which series the chart shows, and against what.
struct ChartChoice {
    ChartX kind = ChartX::Series;
    std::size_t x = 0; ///< index of the series along X; used with ChartX::Series only
    std::size_t y = 0; ///< index of the series along Y

    bool operator==(const ChartChoice& other) const;
};

/// One row of the recording as a point.
struct ChartPoint {
    std::size_t row = 0;
    double x = 0; ///< the point is a gap when x or y is NaN
    double y = 0;
};

/// The points of a choice, in the order of time. With ChartX::Time, x counts from the recording's first time
/// in units of TimeUnitOf.
///
/// In a single file every row is a point, and a row without both values is a gap. A row of joined files holds
/// values of one file only. There the rows with a value of the series along X are points (with other kinds,
/// of the series along Y). The other series' value is the nearest one in time, if that is less than one
/// interval of its file away. Rows farther apart than LongestStep of their file have a gap between them.
std::vector<ChartPoint> ChartPointsOf(const Recording& recording, const ChartChoice& choice);

/// The choice that the chart begins with: of the given series (indices) the second against the first; a
/// single series against its predecessor.
ChartChoice DefaultChartChoice(const std::vector<std::size_t>& series);

/// A unit of time for the labels of an axis.
struct TimeUnit {
    Time length = 1;
    const char* name = ""; ///< `seconds`, `minutes`, `hours` or `days`
};

/// The largest unit that fits into `span` at least twice; seconds for shorter spans.
TimeUnit TimeUnitOf(Time span);

} // namespace kavlix::recording
