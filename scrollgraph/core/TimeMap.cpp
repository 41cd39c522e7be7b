// SPDX-License-Identifier: MIT
// TimeMap: positions and the nearest sample.
#include "scrollgraph/core/TimeMap.h"

#include <cmath>
#include <cstdlib>

#include "plot/Nearest.h"
#include "plot/Numeric.h"

namespace kavlix {

std::optional<int> TimeMap::Position(int index) const {
    if (m_viewWidth == 0)
        return std::nullopt;
    const double position = (m_times.X(index) - m_viewPos) * m_width / m_viewWidth + m_left;
    if (std::isnan(position))
        return std::nullopt;
    return ToCoordinate(position);
}

std::optional<int> TimeMap::RunEnd(int first, int last) const {
    if (m_viewWidth == 0 || !std::isfinite(m_viewPos) || !std::isfinite(m_viewWidth) || !m_times.Has(first) ||
        !m_times.Has(last))
        return std::nullopt;
    return m_times.RunEnd(first, last);
}

int TimeMap::Nearest(int first, int last, int x) const {
    if (first > last || m_viewWidth == 0 || !std::isfinite(m_viewPos) || !std::isfinite(m_viewWidth))
        return -1;
    const auto at = [this](int index) { return Position(index).value_or(m_left); };
    int best = first;
    const auto take = [&](int index) {
        if (std::abs(at(index) - x) < std::abs(at(best) - x))
            best = index;
    };
    for (int next = first; next <= last;) {
        const std::optional<int> end = m_times.RunEnd(next, last);
        if (end)
            take(NearestInOrder(next, *end, (m_viewWidth > 0) == (m_width > 0), x, at));
        else
            take(next);
        next = end.value_or(next) + 1;
    }
    return best;
}

} // namespace kavlix
