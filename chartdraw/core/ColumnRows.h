// SPDX-License-Identifier: MIT
// ColumnRows: the rows that a line, bars or an area cover in each pixel column.
#pragma once

#include <algorithm>
#include <limits>
#include <vector>

#include "chartdraw/core/PixelPath.h"

namespace kavlix {

/// For each pixel column of a range, the lowest and the highest row that is covered. As a path it covers the pixels
/// of a line, the last one included.
class ColumnRows : public PixelPath {
public:
    struct Rows {
        int top = std::numeric_limits<int>::max();
        int bottom = std::numeric_limits<int>::min();

        bool IsEmpty() const { return top > bottom; }
    };

    /// The columns from `left` to before `right`.
    ColumnRows(int left, int right)
        : m_left(left), m_rows(static_cast<std::size_t>(std::max(right - left, 0))) {}

    int Left() const { return m_left; }
    int Right() const { return m_left + static_cast<int>(m_rows.size()); }
    /// The rows of a column of the range.
    const Rows& At(int column) const { return m_rows[static_cast<std::size_t>(column - m_left)]; }
    /// Covers the rows from `top` to `bottom`, both included. Columns outside the range are ignored.
    void Cover(int column, int top, int bottom) {
        if (column < Left() || column >= Right())
            return;
        Rows& rows = m_rows[static_cast<std::size_t>(column - m_left)];
        rows.top = std::min(rows.top, top);
        rows.bottom = std::max(rows.bottom, bottom);
    }

    void Add(const Point& pixel) override;
    void Break() override { m_isOpen = false; }

    /// Extends the rows of each column that has any to row `row`.
    void ExtendTo(int row);
    /// Extends the rows of each column to those of `other`, and empties the columns in which one of both has none.
    void ExtendTo(const ColumnRows& other);
    /// Calls `take(area)` with rectangles that cover the rows inside `clip`: one for neighbouring columns with the
    /// same rows.
    template <class Take> void VisitAreas(const Rect& clip, Take take) const {
        Rect open{0, 0, 0, 0};
        for (int column = std::max(Left(), clip.left); column < std::min(Right(), clip.right); ++column) {
            const Rows& rows = At(column);
            const int top = std::max(rows.top, clip.top);
            const int bottom = rows.IsEmpty() ? top : std::min(rows.bottom, clip.bottom - 1) + 1;
            if (open.right == column && open.top == top && open.bottom == bottom) {
                open.right = column + 1;
                continue;
            }
            if (open.top < open.bottom)
                take(open);
            open = {column, top, column + 1, bottom};
        }
        if (open.top < open.bottom)
            take(open);
    }

private:
    int m_left;
    std::vector<Rows> m_rows;
    bool m_isOpen = false;
    Point m_last;
};

} // namespace kavlix
