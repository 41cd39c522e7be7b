// SPDX-License-Identifier: MIT
// The choice of a stroke's longer side, and the part of the stroke inside a rectangle.
#include "plot/PixelLine.h"

#include <algorithm>
#include <cstdlib>

namespace kavlix {

PixelLine::PixelLine(const Point& from, const Point& to) : m_from(from) {
    const std::int64_t dx = std::int64_t{to.x} - from.x;
    const std::int64_t dy = std::int64_t{to.y} - from.y;
    m_isSteep = std::llabs(dy) > std::llabs(dx);
    m_along = m_isSteep ? std::llabs(dy) : std::llabs(dx);
    m_across = m_isSteep ? std::llabs(dx) : std::llabs(dy);
    m_stepsDown = (m_isSteep ? dy : dx) < 0;
    m_movesDown = (m_isSteep ? dx : dy) < 0;
}

bool PixelLine::FindInside(const Rect& area, std::int64_t& first, std::int64_t& end) const {
    // First limit the steps by the line's position along the longer side, then by its position along the
    // shorter side.
    const std::int64_t start = m_isSteep ? m_from.y : m_from.x;
    const std::int64_t low = m_isSteep ? area.top : area.left;
    const std::int64_t high = m_isSteep ? area.bottom : area.right; // the first position behind the area
    first = std::max<std::int64_t>(m_stepsDown ? start - high + 1 : low - start, 0);
    end = std::min(m_stepsDown ? start - low + 1 : high - start, m_along);

    const std::int64_t crossStart = m_isSteep ? m_from.x : m_from.y;
    const std::int64_t crossLow = m_isSteep ? area.left : area.top;
    const std::int64_t crossHigh = m_isSteep ? area.right : area.bottom;
    const std::int64_t firstMove = m_movesDown ? crossStart - crossHigh + 1 : crossLow - crossStart;
    const std::int64_t endMove = m_movesDown ? crossStart - crossLow + 1 : crossHigh - crossStart;
    if (endMove <= 0 || firstMove > m_across)
        return false;
    if (firstMove > 0)
        first = std::max(first, StepOf(firstMove));
    if (endMove <= m_across)
        end = std::min(end, StepOf(endMove));
    return first < end;
}

} // namespace kavlix
