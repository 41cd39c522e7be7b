#include "chartdraw/ChartSeries.h"

#include <cmath>
#include <new>

namespace kavlix {

void ChartSeries::Append(double x, double y) {
    if (m_values.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    m_values.push_back({x, y});
    Count(m_values.back());
}

void ChartSeries::Assign(const double* pX, const double* pY, int count) {
    std::vector<Value> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back({pX != nullptr ? pX[i] : i, pY[i]});
    m_values.swap(values);
    m_xBounds = m_yBounds = {};
    for (const Value& value : m_values)
        Count(value);
}

void ChartSeries::Clear() {
    std::vector<Value>().swap(m_values);
    m_xBounds = m_yBounds = {};
}

void ChartSeries::Count(const Value& value) {
    if (!std::isfinite(value.x) || !std::isfinite(value.y))
        return;
    m_xBounds.Add(value.x);
    m_yBounds.Add(value.y);
}

} // namespace kavlix
