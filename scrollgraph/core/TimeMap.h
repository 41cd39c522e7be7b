#pragma once

#include <optional>

#include "scrollgraph/core/TimeLine.h"

namespace kavlix {

/// Where the samples of a scrolling graph stand across its plot.
class TimeMap {
public:
    /// @param times must outlive the map
    /// @param viewPos, viewWidth the view in x units
    /// @param plotLeft, plotWidth the plot in logical units
    TimeMap(const TimeLine& times, double viewPos, double viewWidth, int plotLeft, int plotWidth)
        : m_times(times), m_viewPos(viewPos), m_viewWidth(viewWidth), m_left(plotLeft), m_width(plotWidth) {}

    /// Position of sample `index` in logical units, computed in doubles, truncated once, saturated; none in a
    /// view without width.
    std::optional<int> Position(int index) const;

    /// The last sample of `first` to `last`, both with a time stamp, up to which positions run one way from
    /// `first` on; none where that is not known without a walk.
    std::optional<int> RunEnd(int first, int last) const;

    /// The sample of `first` to `last`, both with a time stamp, whose position lies nearest to `x`; of
    /// equally near ones the first. -1 when samples have no position. A binary search in each part of the
    /// range along which time grows; a walk where x wraps round.
    int Nearest(int first, int last, int x) const;

private:
    const TimeLine& m_times;
    double m_viewPos;
    double m_viewWidth;
    int m_left;
    int m_width;
};

} // namespace kavlix
