// SPDX-License-Identifier: MIT
// The points of the chart page: series over time, one series against another, or against its own previous value.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// What the X axis of the chart shows.
enum class ChartX {
    Time,       ///< time; along Y are all visible series
    Series,     ///< another series
    Predecessor ///< the previous value of the same series
};

/// Which series the chart shows, and against what.
struct ChartChoice {
    ChartX kind = ChartX::Time;
    std::size_t x = 0; ///< index of the series along X; used with ChartX::Series only
    std::size_t y = 0; ///< index of the series along Y; not used with ChartX::Time

    bool operator==(const ChartChoice& other) const;
};

/// One row of the recording as a point.
struct ChartPoint {
    std::size_t row = 0;
    double x = 0; ///< the point is a gap when x or y is NaN
    double y = 0;
};

/// The points of a choice other than ChartX::Time, in the order of time.
///
/// In a single file every row is a point. The point is a gap when either of its two values is missing.
///
/// In joined files a row usually holds values of one file only. There a point is made for every row with a
/// value of the leading series: with ChartX::Series the one along X, otherwise the one along Y. With
/// ChartX::Series, y is the row's own value of the Y series or, without one, the value nearest in time; NaN
/// when no value is less than one median interval of the Y series' file away. A gap separates neighbouring
/// points that are farther apart than LongestStep of the leading series' file.
std::vector<ChartPoint> ChartPointsOf(const Recording& recording, const ChartChoice& choice);

/// Samples of a series as coordinates.
struct TimedSamples {
    std::vector<double> x; ///< seconds since an origin
    std::vector<double> y; ///< kNoValue for a gap
};

/// The samples of a series from row `firstRow` on: of joined files only the rows of the series' own file.
TimedSamples SamplesOverTime(const Recording& recording, std::size_t series, Time origin,
                             std::size_t firstRow = 0);

/// Seconds from `origin` to `time`, exact to the microsecond over 285 years.
double SecondsFrom(Time origin, Time time);

/// The row whose time is nearest to `seconds` after `origin`: the first one of equal times, the earlier one of two
/// equally near ones. `times` ascends and is not empty.
std::size_t RowNear(const std::vector<Time>& times, Time origin, double seconds);

/// The rows with `from` <= time <= `to`, in seconds after `origin`; without any, the row nearest to `from`. `times`
/// ascends and is not empty.
VisibleRange RowsBetween(const std::vector<Time>& times, Time origin, double from, double to);

} // namespace kavlix::recording
