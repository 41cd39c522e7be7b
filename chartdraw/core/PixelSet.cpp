// SPDX-License-Identifier: MIT
// Stamping a shape on all pixels of a set, 64 pixels at a time.
#include "chartdraw/core/PixelSet.h"

namespace kavlix {

PixelSet PixelSet::Stamped(const std::vector<Point>& shape, int reach) const {
    PixelSet stamped({m_area.left - reach, m_area.top - reach, m_area.right + reach, m_area.bottom + reach});
    if (IsEmpty())
        return stamped;
    stamped.m_words.resize(stamped.m_rowWords * static_cast<std::size_t>(stamped.m_area.Height()));
    for (std::size_t row = 0; row < static_cast<std::size_t>(m_area.Height()); ++row) {
        const std::uint64_t* source = &m_words[row * m_rowWords];
        std::size_t first = 0;
        std::size_t end = m_rowWords;
        while (first < end && source[first] == 0)
            ++first;
        while (first < end && source[end - 1] == 0)
            --end;
        if (first == end)
            continue;
        for (const Point& offset : shape) {
            const auto right = static_cast<std::size_t>(offset.x + reach);
            const std::size_t shift = right % kBits;
            std::uint64_t* target =
                &stamped.m_words[(row + static_cast<std::size_t>(offset.y + reach)) * stamped.m_rowWords +
                                 right / kBits];
            for (std::size_t i = first; i < end; ++i) {
                target[i] |= source[i] << shift;
                if (const std::uint64_t carried = shift == 0 ? 0 : source[i] >> (kBits - shift))
                    target[i + 1] |= carried;
            }
        }
    }
    return stamped;
}

} // namespace kavlix
