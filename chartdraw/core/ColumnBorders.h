// SPDX-License-Identifier: MIT
// The borders of pixel columns as values of x.
#pragma once

#include <vector>

#include "chartdraw/core/AxisPixels.h"

namespace kavlix {

/// For each pixel column of a view, the values of x at which the column begins. Comparing x with these values
/// tells the column without computing a position; only for values within rounding errors of a border the position
/// decides.
class ColumnBorders {
public:
    /// `map` is monotonic. The table has the borders from the left side of column `left` to that of `right`.
    ColumnBorders(const AxisMap& map, int left, int right);

    const AxisPixels& Pixels() const { return m_pixels; }
    int Left() const { return m_left; }
    int Right() const { return m_left + static_cast<int>(m_borders.size()) - 1; }
    /// Whether columns grow with x.
    bool IsAscending() const { return m_isAscending; }
    /// Whether `x` lies in column `column`, from Left() to Right(), or right of it.
    bool Reaches(double x, int column) const {
        const Border& border = m_borders[static_cast<std::size_t>(column - m_left)];
        if (x < border.low)
            return !m_isAscending;
        if (x > border.high)
            return m_isAscending;
        return m_pixels.Of(x) >= column;
    }
    /// Whether x, which does not decrease, has passed `column`, from Left() to before Right().
    bool IsPast(double x, int column) const {
        return m_isAscending ? Reaches(x, column + 1) : !Reaches(x, column);
    }
    /// A value near the one at which IsPast becomes true.
    double EndOf(int column) const {
        return m_borders[static_cast<std::size_t>(column - m_left + (m_isAscending ? 1 : 0))].low;
    }

private:
    /// Values below `low` and above `high` lie on different sides for certain.
    struct Border {
        double low;
        double high;
    };

    AxisPixels m_pixels;
    int m_left;
    bool m_isAscending;
    std::vector<Border> m_borders;
};

} // namespace kavlix
