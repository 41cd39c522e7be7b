// The rows of the scrolling graph: one for each second that has samples, and rows without values for gaps.
#pragma once

#include <cstddef>
#include <vector>

#include "monitor/recording/GraphUnits.h"
#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// One row of the scrolling graph.
struct ScrollRow {
    Time time = 0;          ///< a whole second
    std::size_t sample = 0; ///< first sample of the row; in a gap, the first sample behind the gap
    std::size_t count = 0;  ///< number of samples in the row; 0: the row is part of a gap
};

/// How a recording becomes rows.
struct ScrollPlan {
    std::size_t first = 0;     ///< the first sample on the time line; earlier samples are left out
    Time interval = 0;         ///< a distance above LongestStep(interval) is a gap; 0: there are no gaps
    bool wholeSeconds = false; ///< more than a tenth of the samples share a second with their predecessor
};

/// The longest time line: the scrolling graph counts time units in 32 bits.
inline constexpr Time kLongestTimeLine = 107'000'000 * kMicrosPerSecond;
static_assert(kLongestTimeLine / kMicrosPerSecond * kTimeUnitsPerSecond <= 2'147'483'647);

/// The first and last time stamp: the graph counts seconds in 32 bits, in any time zone.
inline constexpr Time kFirstStampTime = -2'147'300'000 * kMicrosPerSecond;
inline constexpr Time kLastStampTime = 2'147'300'000 * kMicrosPerSecond;

/// Chooses the latest part of the recording that fits on the time line, and the interval that decides what a
/// gap is: the longest interval of any file, at least a second. When more than a tenth of the rows would be
/// followed by a gap, gaps are normal in this recording, and the interval is 0.
ScrollPlan PlanScrollRows(const Recording& recording);

/// Appends rows without values for the gap between two neighbouring rows, an interval apart, at most about
/// 1000. `sample` is the first sample behind the gap. Appends nothing when the times are not farther apart
/// than LongestStep(interval).
void AppendGapRows(Time from, Time to, Time interval, std::size_t sample, std::vector<ScrollRow>& rows);

/// Appends the rows of the next samples, with the gaps between them. `sample` is the next sample without a
/// row, and moves forward by `most` samples, or by more to complete the last second.
void AppendRows(const Recording& recording, const ScrollPlan& plan, std::size_t& sample, std::size_t most,
                std::vector<ScrollRow>& rows);

/// The value that a row shows of a series. Of several values: the one farthest from `before`, the value of
/// the previous row, so that no peak is lost. NaN without any value.
double PeakValue(const std::vector<double>& values, const ScrollRow& row, double before);

} // namespace kavlix::recording
