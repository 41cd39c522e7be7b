// SPDX-License-Identifier: MIT
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

/// The points of a choice, in the order of time. With ChartX::Time, x is the time since the recording's first
/// time, in the unit that TimeUnitOf gives for the recording's length.
///
/// In a single file every row is a point. The point is a gap when either of its two values is missing.
///
/// In joined files a row usually holds values of one file only. There a point is made for every row with a
/// value of the leading series: with ChartX::Series the one along X, otherwise the one along Y. With
/// ChartX::Series, y is the row's own value of the Y series or, without one, the value nearest in time; NaN
/// when no value is less than one median interval of the Y series' file away. A gap separates neighbouring
/// points that are farther apart than LongestStep of the leading series' file.
std::vector<ChartPoint> ChartPointsOf(const Recording& recording, const ChartChoice& choice);

/// The choice that the chart begins with. `series` are indices: the second series is along Y, the first along
/// X. A single series is shown against its previous value.
ChartChoice DefaultChartChoice(const std::vector<std::size_t>& series);

/// A unit of time for the labels of an axis.
struct TimeUnit {
    Time length = 1;
    const char* name = ""; ///< `seconds`, `minutes`, `hours` or `days`
};

/// The largest unit that fits into `span` at least twice; seconds for shorter spans.
TimeUnit TimeUnitOf(Time span);

} // namespace kavlix::recording
