// SPDX-License-Identifier: MIT
// Converts time stamps to positions in the plot, and finds the sample nearest to a position.
#pragma once

#include <optional>

#include "scrollgraph/core/TimeLine.h"

namespace kavlix {

/// Positions of the samples of a scrolling graph across its plot.
class TimeMap {
public:
    /// `times` must outlive the map. `viewPos` and `viewWidth` are left edge and width of the view in x
    /// units, `plotLeft` and `plotWidth` left edge and width of the plot in logical units.
    TimeMap(const TimeLine& times, double viewPos, double viewWidth, int plotLeft, int plotWidth)
        : m_times(times), m_viewPos(viewPos), m_viewWidth(viewWidth), m_left(plotLeft), m_width(plotWidth) {}

    /// Position of sample `index` in logical units, computed in double, truncated once and limited to
    /// kCoordinateLimit. None in a view without width, and where the result is NaN.
    std::optional<int> Position(int index) const;

    /// The last sample of the run that begins at `first`, at most `last`: the positions of a run never change
    /// direction. None when x has wrapped round in the run, when one of the two samples has no time stamp,
    /// and when position or width of the view is not finite or the width is 0.
    std::optional<int> RunEnd(int first, int last) const;

    /// The sample of `first` to `last` whose position is nearest to `x`, the first of equally near ones. -1
    /// when `first` is behind `last`, and when position or width of the view is not finite or the width is 0.
    /// Both samples must have a time stamp. Takes binary searches in each run of ascending time, but visits
    /// every sample of a run in which x has wrapped round.
    int Nearest(int first, int last, int x) const;

private:
    const TimeLine& m_times;
    double m_viewPos;
    double m_viewWidth;
    int m_left;
    int m_width;
};

} // namespace kavlix
