// SPDX-License-Identifier: MIT
// A set of the pixels of a rectangle, one bit each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "plot/PixelRaster.h"
#include "plot/Shapes.h"

namespace kavlix {

/// A set of pixels inside `area`, at first empty.
class PixelSet {
public:
    explicit PixelSet(const Rect& area)
        : m_area(area), m_rowWords((static_cast<std::size_t>(area.Width()) + kBits - 1) / kBits) {}

    const Rect& Area() const { return m_area; }
    bool IsEmpty() const { return m_words.empty(); }
    /// Adds a pixel. Pixels outside the area are ignored.
    void Add(const Point& pixel) {
        if (!m_area.Contains(pixel))
            return;
        if (m_words.empty())
            m_words.resize(m_rowWords * static_cast<std::size_t>(m_area.Height()));
        WordOf(pixel) |= BitOf(pixel);
    }
    /// Whether the set contains `pixel`, which must lie inside the area.
    bool Has(const Point& pixel) const { return !IsEmpty() && (WordOf(pixel) & BitOf(pixel)) != 0; }
    /// Calls `take(pixel)` for each pixel, row by row.
    template <class Take> void Visit(Take take) const {
        VisitRuns([&](const Rect& run) {
            for (int x = run.left; x < run.right; ++x)
                take(Point{x, run.top});
        });
    }
    /// Calls `take(run)` for each run of neighbouring pixels in a row, row by row. A run is a
    /// Rect one pixel high.
    template <class Take> void VisitRuns(Take take) const {
        for (int row = 0; row < m_area.Height() && !IsEmpty(); ++row) {
            const std::uint64_t* words = &m_words[static_cast<std::size_t>(row) * m_rowWords];
            const int y = m_area.top + row;
            std::optional<int> begin; // x of the open run's first pixel
            for (std::size_t i = 0; i < m_rowWords; ++i) {
                const int left = m_area.left + static_cast<int>(i * kBits);
                std::uint64_t changes =
                    words[i] ^ (words[i] << 1 | (begin ? 1 : 0)); // bits that differ from the bit before
                for (; changes != 0; changes &= changes - 1) {
                    const int x = left + LowestBit(changes);
                    if (begin)
                        take(Rect{*begin, y, x, y + 1});
                    begin = begin ? std::nullopt : std::optional(x);
                }
            }
            if (begin)
                take(Rect{*begin, y, m_area.right, y + 1});
        }
    }
    /// The set of all pixels that `shape` covers when its centre is placed on each pixel of this set. `shape`
    /// holds offsets from the centre, at most `reach` in each direction.
    PixelSet Stamped(const std::vector<Point>& shape, int reach) const;

private:
    static constexpr std::size_t kBits = 64;

    /// Index of the lowest bit that is set in `word`, which must not be 0.
    static int LowestBit(std::uint64_t word) {
        int bit = 0;
        for (int half = kBits / 2; half > 0; half /= 2)
            if (word << (kBits - static_cast<std::size_t>(bit + half)) == 0)
                bit += half;
        return bit;
    }
    std::size_t IndexOf(const Point& pixel) const {
        return static_cast<std::size_t>(pixel.y - m_area.top) * m_rowWords +
               static_cast<std::size_t>(pixel.x - m_area.left) / kBits;
    }
    std::uint64_t& WordOf(const Point& pixel) { return m_words[IndexOf(pixel)]; }
    const std::uint64_t& WordOf(const Point& pixel) const { return m_words[IndexOf(pixel)]; }
    std::uint64_t BitOf(const Point& pixel) const {
        return std::uint64_t{1} << (static_cast<std::size_t>(pixel.x - m_area.left) % kBits);
    }

    Rect m_area;
    std::size_t m_rowWords;
    std::vector<std::uint64_t> m_words; ///< empty until the first pixel is added
};

} // namespace kavlix
