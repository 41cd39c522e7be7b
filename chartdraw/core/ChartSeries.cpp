// SPDX-License-Identifier: MIT
// Appending to a series, all or nothing.
#include "chartdraw/core/ChartSeries.h"

#include <cmath>
#include <new>
#include <utility>

namespace kavlix {

void ChartSeries::Append(double x, double y) {
    if (m_values.Size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    m_values.Add({x, y});
    try {
        m_boxes.Update(m_values);
    } catch (...) {
        m_values.RemoveTail(1);
        throw;
    }
    AddToBounds(m_values.Back());
}

void ChartSeries::Assign(const double* pX, const double* pY, int count) {
    ChartSeries other;
    for (int i = 0; i < count; ++i)
        other.Append(pX != nullptr ? pX[i] : i, pY[i]);
    *this = std::move(other);
}

void ChartSeries::Clear() {
    *this = ChartSeries();
}

void ChartSeries::AddToBounds(const ChartPoint& value) {
    if (!std::isfinite(value.x) || !std::isfinite(value.y))
        return;
    m_xBounds.Add(value.x);
    m_yBounds.Add(value.y);
}

} // namespace kavlix
