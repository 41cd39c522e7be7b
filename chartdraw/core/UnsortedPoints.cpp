// SPDX-License-Identifier: MIT
// UnsortedPoints: points and boxes together, all or nothing.
#include "chartdraw/core/UnsortedPoints.h"

#include <limits>
#include <new>
#include <utility>

namespace kavlix {

void UnsortedPoints::Append(double x, double y) {
    if (m_points.Size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    m_points.Add({x, y});
    try {
        m_boxes.Update(m_points);
    } catch (...) {
        m_points.RemoveTail(1);
        throw;
    }
}

void UnsortedPoints::ReplaceLast(double y) {
    m_points[m_points.Size() - 1].y = y;
    m_boxes.UpdateLast(m_points);
}

void UnsortedPoints::RemoveHead(int count) {
    m_head += count;
    if (m_head < Size())
        return;
    UnsortedPoints rest;
    try {
        for (int i = 0; i < Size(); ++i)
            rest.Append((*this)[i].x, (*this)[i].y);
    } catch (const std::bad_alloc&) {
        return; // the removed points stay in memory
    }
    *this = std::move(rest);
}

} // namespace kavlix
