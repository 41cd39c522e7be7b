#include "chartdraw/ChartSeries.h"

#include <cmath>
#include <new>
#include <utility>

namespace kavlix {

void ChartSeries::Append(double x, double y) {
    if (m_values.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    m_values.push_back({x, y});
    try {
        m_boxes.Update(m_values);
    } catch (...) {
        m_values.pop_back();
        throw;
    }
    Count(m_values.back());
}

void ChartSeries::Assign(const double* pX, const double* pY, int count) {
    ChartSeries other;
    other.m_values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        other.Append(pX != nullptr ? pX[i] : i, pY[i]);
    std::swap(*this, other);
}

void ChartSeries::Clear() {
    *this = {};
}

void ChartSeries::Count(const ChartPoint& value) {
    if (!std::isfinite(value.x) || !std::isfinite(value.y))
        return;
    m_xBounds.Add(value.x);
    m_yBounds.Add(value.y);
}

} // namespace kavlix
