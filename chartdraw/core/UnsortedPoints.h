// SPDX-License-Identifier: MIT
// UnsortedPoints: points in any order of x, with their bounding boxes.
#pragma once

#include "chartdraw/core/PointBoxTree.h"

namespace kavlix {

/// Points in order of arrival. Removed points stay in memory until they are as many as the others; then the
/// others are copied.
class UnsortedPoints {
public:
    int Size() const { return static_cast<int>(m_points.Size()) - m_head; }
    /// Point `i`, which exists.
    const ChartPoint& operator[](int i) const { return m_points[static_cast<std::size_t>(m_head + i)]; }

    /// Throws std::bad_alloc, with nothing changed, when memory runs out.
    void Append(double x, double y);
    void ReplaceLast(double y);
    /// Removes the first `count` points, which exist. Cannot fail.
    void RemoveHead(int count);

    /// @{
    /// As PointBoxTree's functions, with the indices of this object.
    template <class TakeBox, class TakePoints>
    void Visit(int begin, int end, TakeBox takeBox, TakePoints takePoints) const {
        m_boxes.Visit(
            m_head + begin, m_head + end,
            [&](const PointBox& box, int first, int last) {
                return takeBox(box, first - m_head, last - m_head);
            },
            [&](int first, int behind) { takePoints(first - m_head, behind - m_head); });
    }
    template <class IsUnwanted, class IsWanted>
    int FindLast(int begin, int end, IsUnwanted isUnwanted, IsWanted isWanted) const {
        return m_boxes.FindLast(
                   m_head + begin, m_head + end, isUnwanted, [&](int i) { return isWanted(i - m_head); }) -
               m_head;
    }
    void Prefetch(std::int64_t i) const { PointBoxTree::Prefetch(m_points, m_head + i); }
    /// @}

private:
    ChartPoints m_points;
    PointBoxTree m_boxes;
    int m_head = 0; ///< removed points that are still in memory
};

} // namespace kavlix
