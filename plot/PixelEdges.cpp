// SPDX-License-Identifier: MIT
// Set-up of the pixel table, and the check for equal pixel sizes.
#include "plot/PixelEdges.h"

#include <utility>

namespace kavlix {

PixelEdges::PixelEdges(int first, std::vector<int> edges) : m_first(first), m_edges(std::move(edges)) {
    if (!IsEmpty())
        m_pixelsPerUnit = static_cast<double>(m_edges.size() - 1) / (static_cast<double>(End()) - Begin());
}

bool PixelEdges::IsRegular() const {
    for (std::size_t k = 2; k < m_edges.size(); ++k)
        if (m_edges[k] - m_edges[k - 1] != m_edges[1] - m_edges[0])
            return false;
    return true;
}

} // namespace kavlix
