// SPDX-License-Identifier: MIT
// Adding points to boxes and boxes to levels.
#include "chartdraw/core/PointBoxTree.h"

namespace kavlix {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

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
    // The box of the newest block: of the last kFanOut points, or of the last kFanOut boxes.
    const auto boxOf = [](const auto& parts) {
        PointBox box;
        for (std::size_t i = parts.Size() - kFanOut; i < parts.Size(); ++i)
            box.Add(parts[i]);
        return box;
    };
    std::size_t level = 1;
    try {
        for (; level <= kLevels && points.Size() % Size(level) == 0; ++level)
            m_levels[level - 1].Add(level == 1 ? boxOf(points) : boxOf(m_levels[level - 2]));
    } catch (...) {
        while (--level > 0)
            m_levels[level - 1].RemoveTail(1);
        throw;
    }
}

} // namespace kavlix
