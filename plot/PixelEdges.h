// Where the pixels of a picture begin and end, in logical units.
#pragma once

#include <cstddef>
#include <vector>

namespace kavlix {

/// Where neighbouring pixels begin, in logical units: pixel `first` + k covers the positions from edge k to
/// before edge k + 1.
class PixelEdges {
public:
    PixelEdges() = default;
    /// `edges` ascend.
    PixelEdges(int first, std::vector<int> edges);

    bool IsEmpty() const { return m_edges.size() < 2; }
    /// Number of pixels.
    int Count() const { return static_cast<int>(m_edges.size()) - 1; }
    int Begin() const { return m_edges.front(); }
    int End() const { return m_edges.back(); }
    bool Holds(int position) const { return position >= Begin() && position < End(); }
    /// Which of the pixels, counted from 0, holds `position`, which must be held.
    int Find(int position) const {
        auto k = static_cast<std::size_t>((position - Begin()) * m_pixelsPerUnit);
        while (m_edges[k] > position)
            --k;
        while (m_edges[k + 1] <= position)
            ++k;
        return static_cast<int>(k);
    }
    int PixelOf(int position) const { return m_first + Find(position); }
    /// The same for any position; those before and behind all pixels count as `Before` and `Behind`.
    int PixelOrSide(int position) const {
        return position < Begin() ? Before() : position >= End() ? Behind() : PixelOf(position);
    }
    int Before() const { return m_first - 1; }
    int Behind() const { return m_first + Count(); }
    bool HasPixel(int pixel) const { return pixel > Before() && pixel < Behind(); }
    int Edge(int k) const { return m_edges[static_cast<std::size_t>(k)]; }
    /// Whether all pixels are equally large, so that what moves by whole pixels keeps its shape.
    bool IsRegular() const;

private:
    int m_first = 0;
    double m_pixelsPerUnit = 0;
    std::vector<int> m_edges;
};

} // namespace kavlix
