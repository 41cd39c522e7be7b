#include "graphctrl/PixelRows.h"

#include <cmath>

namespace kavlix {

namespace {

// Inside these, neither way overflows or loses digits: both err by less than a billionth of a row.
constexpr double kSmallestRange = 1e-280;
constexpr double kLargestRange = 1e280;

} // namespace

PixelRows::PixelRows(const LinearMap& map, const PixelEdges& edges) : m_map(map), m_edges(edges) {
    const double height = edges.IsEmpty() ? 0 : edges.Edge(1) - edges.Edge(0);
    const double range = std::fabs(map.Range());
    if (height <= 0 || !edges.IsRegular() || range < kSmallestRange || range > kLargestRange)
        return;
    m_firstRow = edges.Before() + 1;
    m_min = map.Min();
    m_rowsPerValue = map.Slope() / height;
    m_rowOfMin = (map.Edge() - edges.Begin()) / height;
    // Truncation rounds positions below 0 the other way.
    m_begin = edges.Begin() > 0 ? 0 : std::ceil((1 - edges.Begin()) / height);
    m_end = edges.Count();
}

int PixelRows::Exact(double value) const {
    return m_edges.PixelOrSide(m_map.Position(value).value_or(0));
}

} // namespace kavlix
