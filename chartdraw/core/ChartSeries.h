// SPDX-License-Identifier: MIT
// The points of one dataset, with what painting and scales need to know about them.
#pragma once

#include <cstddef>

#include "chartdraw/core/PointBoxTree.h"
#include "plot/ValueBounds.h"

namespace kavlix {

/// The points of a series in order of arrival, their bounding boxes, and the bounds from which scales are
/// found. Appending does not move points that are stored already.
class ChartSeries {
public:
    using Value = ChartPoint;

    /// Adds a point. Throws std::bad_alloc, with nothing changed, when memory runs out or an int
    /// cannot count the points.
    void Append(double x, double y);
    /// Replaces all points by `count` new points. If `pX` is null, each point's x is its index.
    /// Throws as Append does.
    void Assign(const double* pX, const double* pY, int count);
    /// Removes all points and frees their memory. Cannot fail.
    void Clear();

    int Size() const { return static_cast<int>(m_values.Size()); }
    /// Point `i`, which must exist.
    const Value& operator[](int i) const { return m_values[static_cast<std::size_t>(i)]; }
    const ChartPoints& Values() const { return m_values; }
    const PointBoxTree& Boxes() const { return m_boxes; }

    /// Bounds of the points whose x and y are both finite.
    const ValueBounds& XBounds() const { return m_xBounds; }
    const ValueBounds& YBounds() const { return m_yBounds; }

private:
    void AddToBounds(const ChartPoint& value);

    ChartPoints m_values;
    PointBoxTree m_boxes;
    ValueBounds m_xBounds;
    ValueBounds m_yBounds;
};

} // namespace kavlix
