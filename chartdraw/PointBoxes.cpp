#include "chartdraw/PointBoxes.h"

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

void PointBoxes::Update(const std::vector<ChartPoint>& points) {
    const std::size_t count = points.size();
    std::size_t level = 1;
    try {
        for (; level <= kLevels && count % Size(level) == 0; ++level) {
            PointBox box;
            if (level == 1)
                std::for_each(points.end() - kFan, points.end(),
                              [&](const ChartPoint& each) { box.Add(each); });
            else
                std::for_each(m_levels[level - 2].end() - kFan, m_levels[level - 2].end(),
                              [&](const PointBox& each) { box.Add(each); });
            m_levels[level - 1].push_back(box);
        }
    } catch (...) {
        while (--level > 0)
            m_levels[level - 1].pop_back();
        throw;
    }
}

} // namespace kavlix
