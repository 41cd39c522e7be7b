// SPDX-License-Identifier: MIT
// Adding points to boxes and boxes to levels.
#include "chartdraw/core/PointBoxTree.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

/// The box of the newest block of the level above `parts`: of the last points, or of the last boxes.
template <class Parts> PointBox BoxOfLast(const Parts& parts, std::size_t count) {
    PointBox box;
    for (std::size_t i = parts.Size() - count; i < parts.Size(); ++i)
        box.Add(parts[i]);
    return box;
}

} // namespace

void PointBox::Add(const ChartPoint& point) {
    Add(point.IsGap() ? PointBox{kNoNumber, kNoNumber, kNoNumber, kNoNumber}
                      : PointBox{point.x, point.x, point.y, point.y});
}

void PointBox::Add(const PointBox& box) {
    if (HasGap())
        return;
    if (box.HasGap()) {
        *this = box;
        return;
    }
    left = std::min(left, box.left);
    right = std::max(right, box.right);
    low = std::min(low, box.low);
    high = std::max(high, box.high);
}

void PointBoxTree::Update(const ChartPoints& points) {
    std::size_t level = 1;
    try {
        for (; level <= kLevels && points.Size() % Size(level) == 0; ++level)
            m_levels[level - 1].Add(NewestBox(points, level));
    } catch (...) {
        while (--level > 0)
            m_levels[level - 1].RemoveTail(1);
        throw;
    }
}

void PointBoxTree::UpdateLast(const ChartPoints& points) {
    for (std::size_t level = 1; level <= kLevels && points.Size() % Size(level) == 0; ++level) {
        Boxes& boxes = m_levels[level - 1];
        boxes[boxes.Size() - 1] = NewestBox(points, level);
    }
}

PointBox PointBoxTree::NewestBox(const ChartPoints& points, std::size_t level) const {
    return level == 1 ? BoxOfLast(points, kFanOut) : BoxOfLast(m_levels[level - 2], kFanOut);
}

} // namespace kavlix
