// From time stamps to positions in the plot, and back by search.
#pragma once

#include <optional>

#include "scrollgraph/core/TimeLine.h"

namespace kavlix {

/// Positions of the samples of a scrolling graph across its plot.
class TimeMap {
public:
    /// `times` must outlive the map. `viewPos` and `viewWidth` are the view in x units, `plotLeft` and
    /// `plotWidth` the plot in logical units.
    TimeMap(const TimeLine& times, double viewPos, double viewWidth, int plotLeft, int plotWidth)
        : m_times(times), m_viewPos(viewPos), m_viewWidth(viewWidth), m_left(plotLeft), m_width(plotWidth) {}

    /// Position of sample `index` in logical units; none in a view without width. The whole calculation is in
    /// doubles, with one truncation at the end, and saturates.
    std::optional<int> Position(int index) const;

    /// The last sample of `first` to `last` up to which positions from `first` on only ascend, or only
    /// descend; none where only a walk over the samples could find the end. Both samples must have a time
    /// stamp.
    std::optional<int> RunEnd(int first, int last) const;

    /// The sample of `first` to `last` whose position is nearest to `x`, the first of equally near ones; -1
    /// when samples have no position. Both samples must have a time stamp. A binary search in each run of
    /// ascending time; a walk over the samples where x wraps round.
    int Nearest(int first, int last, int x) const;

private:
    const TimeLine& m_times;
    double m_viewPos;
    double m_viewWidth;
    int m_left;
    int m_width;
};

} // namespace kavlix
