// SPDX-License-Identifier: MIT
// ColumnRows: strokes, and the other edge of an area.
#include "chartdraw/core/ColumnRows.h"

#include "chartdraw/core/StrokeColumns.h"

namespace kavlix {

void ColumnRows::Add(const Point& pixel) {
    if (m_isOpen && pixel.x != m_last.x) {
        const int first = std::max(std::min(m_last.x, pixel.x), Left());
        const int last = std::min(std::max(m_last.x, pixel.x), Right() - 1);
        if (first <= last)
            VisitStrokeColumns(m_last, pixel, first, last,
                               [this](int x, int top, int bottom) { Cover(x, top, bottom); });
    } else if (m_isOpen) {
        Cover(pixel.x, std::min(m_last.y, pixel.y), std::max(m_last.y, pixel.y));
    }
    Cover(pixel.x, pixel.y, pixel.y);
    m_last = pixel;
    m_isOpen = true;
}

void ColumnRows::ExtendTo(int row) {
    for (Rows& rows : m_rows)
        if (!rows.IsEmpty())
            rows = {std::min(rows.top, row), std::max(rows.bottom, row)};
}

void ColumnRows::ExtendTo(const ColumnRows& other) {
    for (int column = Left(); column < Right(); ++column) {
        Rows& rows = m_rows[static_cast<std::size_t>(column - m_left)];
        const bool isKnown = column >= other.Left() && column < other.Right();
        if (rows.IsEmpty() || !isKnown || other.At(column).IsEmpty())
            rows = Rows();
        else
            Cover(column, other.At(column).top, other.At(column).bottom);
    }
}

} // namespace kavlix
