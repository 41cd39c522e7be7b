// SPDX-License-Identifier: MIT
// The table of pixel borders along one axis, in logical units.
#pragma once

#include <cstddef>
#include <vector>

namespace kavlix {

/// The borders of neighbouring pixels, in logical units. Pixel `first` + k covers the positions from edge k
/// up to, not including, edge k + 1.
class PixelEdges {
public:
    PixelEdges() = default;
    /// `first` is the number of the first pixel. `edges` are in ascending order, one more than there are
    /// pixels.
    PixelEdges(int first, std::vector<int> edges);

    bool IsEmpty() const { return m_edges.size() < 2; }
    /// Number of pixels; only for a table that is not empty.
    int Count() const { return static_cast<int>(m_edges.size()) - 1; }
    int Begin() const { return m_edges.front(); }
    int End() const { return m_edges.back(); }
    bool Holds(int position) const { return position >= Begin() && position < End(); }
    /// The index, from 0, of the pixel that covers `position`. Holds(position) must be true.
    int Find(int position) const {
        auto k = static_cast<std::size_t>((position - Begin()) * m_pixelsPerUnit);
        while (m_edges[k] > position)
            --k;
        while (m_edges[k + 1] <= position)
            ++k;
        return static_cast<int>(k);
    }
    /// The number of the pixel that covers `position`: its index plus `first`. Holds(position) must be true.
    int PixelOf(int position) const { return m_first + Find(position); }
    /// The number of the pixel that covers `position`; Before() or Behind() when no pixel covers it.
    int PixelOrSide(int position) const {
        return position < Begin() ? Before() : position >= End() ? Behind() : PixelOf(position);
    }
    /// The numbers that come before the first pixel's and after the last pixel's number.
    int Before() const { return m_first - 1; }
    int Behind() const { return m_first + Count(); }
    bool HasPixel(int pixel) const { return pixel > Before() && pixel < Behind(); }
    int Edge(int k) const { return m_edges[static_cast<std::size_t>(k)]; }
    /// Whether all pixels have the same size. Then a shape that is moved by whole pixels covers the same
    /// pattern of pixels.
    bool IsRegular() const;

private:
    int m_first = 0;
    double m_pixelsPerUnit = 0;
    std::vector<int> m_edges;
};

} // namespace kavlix
