#include "scrollgraph/TimeMap.h"

#include <cmath>
#include <cstdlib>

#include "graphctrl/Nearest.h"
#include "graphctrl/Numeric.h"

namespace kavlix {

std::optional<int> TimeMap::Position(int index) const {
    if (m_viewWidth == 0)
        return std::nullopt;
    const double position = (m_times.X(index) - m_viewPos) * m_width / m_viewWidth + m_left;
    if (std::isnan(position))
        return std::nullopt;
    return ToCoordinate(position);
}

bool TimeMap::IsMonotonic(int first, int last) const {
    return m_viewWidth != 0 && std::isfinite(m_viewPos) && std::isfinite(m_viewWidth) && m_times.Has(first) &&
           m_times.Has(last) && m_times.GrowsAlong(first, last);
}

int TimeMap::Nearest(int first, int last, int x) const {
    if (first > last || m_viewWidth == 0 || !std::isfinite(m_viewPos) || !std::isfinite(m_viewWidth))
        return -1;
    const auto at = [this](int index) { return Position(index).value_or(m_left); };
    if (m_times.GrowsAlong(first, last))
        return NearestInOrder(first, last, (m_viewWidth > 0) == (m_width > 0), x, at);
    int best = first;
    for (int i = first + 1; i <= last; ++i)
        if (std::abs(at(i) - x) < std::abs(at(best) - x))
            best = i;
    return best;
}

} // namespace kavlix
