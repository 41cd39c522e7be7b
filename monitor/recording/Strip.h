#pragma once

#include "monitor/recording/Recording.h"

#include <cstddef>
#include <vector>

namespace kavlix::recording {

/// One instant of a graph over time.
struct StripRow {
    Time time = 0;          ///< a whole second
    std::size_t sample = 0; ///< first sample of the recording that it stands for; of a gap the one behind it
    std::size_t count = 0;  ///< how many samples; 0: a gap, nobody read anything then
};

/// How a recording is laid out over whole seconds.
struct StripPlan {
    std::size_t first = 0;     ///< the first sample that has a place
    Time interval = 0;         ///< farther apart than half as much again is a gap; 0: there are no gaps
    bool wholeSeconds = false; ///< many rows stand for several samples
};

/// The graph counts its time line in twentieths of a second on 32 bits.
inline constexpr Time kLongestStrip = 107'000'000 * kMicrosPerSecond;
/// And its time stamps in seconds on 32 bits, in any time zone.
inline constexpr Time kFirstStripTime = -2'147'300'000 * kMicrosPerSecond;
inline constexpr Time kLastStripTime = 2'147'300'000 * kMicrosPerSecond;

/// Chooses the part of the recording that has a place on the time line, its latest, and what counts as a gap:
/// rows farther apart than those of any file usually are, unless that is usual in this recording.
StripPlan PlanStrip(const Recording& recording);

/// Appends the times of gap rows between two neighbouring rows, an interval apart; few, when the gap is very
/// long. None when the times are no farther apart than 1.5 intervals.
void AppendGap(Time from, Time to, Time interval, std::size_t sample, std::vector<StripRow>& rows);

/// Appends the rows of the next samples from `sample` on, with the gaps between.
/// @param sample the next sample that has no row; moves on by at most `most`, and more where a second ends
void AppendRows(const Recording& recording, const StripPlan& plan, std::size_t& sample, std::size_t most,
                std::vector<StripRow>& rows);

/// What one row shows of a series: of several values the one farthest from the value before, so that no peak
/// is lost. NaN without any.
double StripValue(const std::vector<double>& values, const StripRow& row, double before);

/// Divides series among two graphs by their spans: below are those whose magnitude is another than the
/// first's, or all but the first when none is. Nothing is below when there is one series only.
/// @return for every series whether it is below
std::vector<bool> ShareOut(const std::vector<ValueSpan>& spans);

/// Widths of the view that a person chooses among, in seconds.
inline constexpr int kStripRanges[] = {60, 300, 900, 3600, 21'600, 86'400, 604'800};

/// The range that shows a recording of this length best: the shortest that covers it, unless it would fill
/// less than a third of that.
/// @return index into kStripRanges
std::size_t ChooseStripRange(Time length);

} // namespace kavlix::recording
