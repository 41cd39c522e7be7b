// SPDX-License-Identifier: MIT
// The rows of the scrolling graph: one for each second that has samples, and rows without values for gaps.
#pragma once

#include <cstddef>
#include <vector>

#include "monitor/recording/GraphUnits.h"
#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// One row of the scrolling graph.
struct ScrollRow {
    Time time = 0;          ///< time of the row, always a whole second
    std::size_t sample = 0; ///< first sample of the row; in a gap, the first sample behind the gap
    std::size_t count = 0;  ///< number of samples in the row; 0: the row is part of a gap
};

/// How a recording becomes rows.
struct ScrollPlan {
    std::size_t first = 0;     ///< the first sample on the time line; earlier samples are left out
    Time interval = 0;         ///< a distance above LongestStep(interval) is a gap; 0: there are no gaps
    bool wholeSeconds = false; ///< more than a tenth of the samples share a second with their predecessor
};

/// Length of the longest time line: the scrolling graph counts its time units in 32 bits.
inline constexpr Time kLongestTimeLine = 107'000'000 * kMicrosPerSecond;
static_assert(kLongestTimeLine / kMicrosPerSecond * kTimeUnitsPerSecond <= 2'147'483'647);

/// The first and last time that becomes a time stamp. The graph counts the seconds since 1970 in 32 bits; the
/// limits leave room for the offset of any time zone.
inline constexpr Time kFirstStampTime = -2'147'300'000 * kMicrosPerSecond;
inline constexpr Time kLastStampTime = 2'147'300'000 * kMicrosPerSecond;

/// Chooses the latest part of the recording that fits on the time line, and the interval that decides what a
/// gap is: the longest interval of any file, at least a second. When more than a tenth of the rows would be
/// followed by a gap, gaps are normal in this recording, and the interval is 0.
ScrollPlan PlanScrollRows(const Recording& recording);

/// Appends rows without values for the gap between the neighbouring rows at `from` and `to`. The new rows are
/// one `interval` apart, in whole seconds, or more in a long gap: a gap gets fewer than 2000 rows. `sample`
/// is the first sample behind the gap. Appends nothing when `interval` is 0, or `from` and `to` are not
/// farther apart than LongestStep(interval).
void AppendGapRows(Time from, Time to, Time interval, std::size_t sample, std::vector<ScrollRow>& rows);

/// Appends the rows of the next samples, with rows for the gaps between them. On entry, `sample` is the next
/// sample without a row. The function moves it forward by `most` samples, by more if that completes the last
/// second, or to the end of the recording. Samples after kLastStampTime get no rows.
void AppendRows(const Recording& recording, const ScrollPlan& plan, std::size_t& sample, std::size_t most,
                std::vector<ScrollRow>& rows);

/// The value that a row shows of the series with these `values`. Of several values in the row, the result is
/// the one farthest from `before`, so that a peak stays visible. `before` is the value that the series had
/// last before the row; NaN: there is none, and the row's first value is the result. NaN when the row has no
/// value of the series.
double PeakValue(const std::vector<double>& values, const ScrollRow& row, double before);

} // namespace kavlix::recording
