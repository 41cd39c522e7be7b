// SPDX-License-Identifier: MIT
// The outermost x of the points in each pixel column.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace kavlix {

/// For each pixel column of a plot, the smallest and the largest x of the points that a reduction found in it. On an
/// axis whose positions never change direction, these two tell whether all points of the column lie in one column of
/// another map as well.
class ColumnEnds {
public:
    struct Ends {
        double low = std::numeric_limits<double>::infinity();
        double high = -std::numeric_limits<double>::infinity();
        bool IsEmpty() const { return !(low <= high); }
    };

    /// The columns from `left` to before `right`, at first empty.
    ColumnEnds(int left, int right) : m_left(left), m_ends(static_cast<std::size_t>(right - left)) {}

    int Left() const { return m_left; }
    int Right() const { return m_left + static_cast<int>(m_ends.size()); }
    /// Of a column from Left() to before Right().
    const Ends& Of(int column) const { return m_ends[static_cast<std::size_t>(column - m_left)]; }
    /// Adds points from `low` to `high` to a column. Columns outside are ignored.
    void Add(int column, double low, double high) {
        if (column < m_left || column >= Right())
            return;
        Ends& ends = m_ends[static_cast<std::size_t>(column - m_left)];
        ends.low = std::min(ends.low, low);
        ends.high = std::max(ends.high, high);
    }
    /// Empties the columns from `from` to before `to`, which lie inside.
    void Clear(int from, int to) {
        std::fill(m_ends.begin() + (from - m_left), m_ends.begin() + (to - m_left), Ends());
    }
    /// Moves what is known by `columns` to the left, or if negative to the right. Columns that come in are empty.
    void MoveLeft(int columns) {
        const int size = static_cast<int>(m_ends.size());
        const int count = std::clamp(columns, -size, size);
        if (count >= 0)
            std::move(m_ends.begin() + count, m_ends.end(), m_ends.begin());
        else
            std::move_backward(m_ends.begin(), m_ends.end() + count, m_ends.end());
        count >= 0 ? Clear(Right() - count, Right()) : Clear(m_left, m_left - count);
    }

    /// Notes a point whose row is too far away for GDI. A stroke to it is cut at a place that depends on more than
    /// pixels.
    void AddFar() { m_hasFar = true; }
    bool HasFar() const { return m_hasFar; }
    /// Notes a point without neighbours, which is drawn as a dot.
    void AddDot() { m_hasDots = true; }
    bool HasDots() const { return m_hasDots; }

private:
    int m_left;
    std::vector<Ends> m_ends;
    bool m_hasFar = false;
    bool m_hasDots = false;
};

} // namespace kavlix
