#include "chartdraw/core/PointBoxes.h"

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

void PointBoxes::Update(const Points& points) {
    // The box round the newest ones of `parts`.
    const auto boxOf = [](const auto& parts) {
        PointBox box;
        for (std::size_t i = parts.Size() - kFan; i < parts.Size(); ++i)
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
