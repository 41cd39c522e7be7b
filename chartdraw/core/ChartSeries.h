#pragma once

#include <cstddef>

#include "chartdraw/core/PointBoxes.h"
#include "chartdraw/core/ValueBounds.h"

namespace kavlix {

/// The points of a series in order of arrival, which appending does not move, with the bounds that scales are
/// found from.
class ChartSeries {
public:
    using Value = ChartPoint;

    /// Throws what `new` throws, changing nothing, when memory is exhausted; std::bad_alloc where the range
    /// of an int is.
    void Append(double x, double y);
    /// Replaces all points by `count` others; `pX` null: the indices 0, 1, 2, ... Throws as Append does.
    void Assign(const double* pX, const double* pY, int count);
    /// Removes all points and gives their memory back. Cannot fail.
    void Clear();

    int Size() const { return static_cast<int>(m_values.Size()); }
    /// Point `i`, which must exist.
    const Value& operator[](int i) const { return m_values[static_cast<std::size_t>(i)]; }
    const Points& Values() const { return m_values; }
    const PointBoxes& Boxes() const { return m_boxes; }

    /// Bounds of the points that have a place: those whose x and y are both finite.
    const ValueBounds& XBounds() const { return m_xBounds; }
    const ValueBounds& YBounds() const { return m_yBounds; }

private:
    void Count(const ChartPoint& value);

    Points m_values;
    PointBoxes m_boxes;
    ValueBounds m_xBounds;
    ValueBounds m_yBounds;
};

} // namespace kavlix
