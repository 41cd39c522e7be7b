// SPDX-License-Identifier: MIT
// LegendLayout: places of the rows of a legend, wrapped into columns.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Sizes of a legend's parts in pixels.
struct LegendSizes {
    int row = 1;          ///< height of a row
    int swatch = 0;       ///< width of the swatch, with the gap before the text
    int padding = 0;      ///< between the legend's edge and its rows
    int gap = 0;          ///< between two columns
    int smallestText = 0; ///< a text is not shortened below this width
};

/// Rows in columns; a column is as wide as its widest row. Where the columns are too wide together, the widest
/// ones are narrowed, and their texts must be shortened.
class LegendLayout {
public:
    enum class Order {
        Down,  ///< one row below the other, and in as few columns as the height allows
        Across ///< rows side by side, in as many columns as the width allows
    };

    /// No rows.
    LegendLayout() = default;
    /// Rows for texts of these widths, in a legend of at most `width` x `height` pixels. No rows when they do not
    /// fit.
    LegendLayout(const std::vector<int>& texts, const LegendSizes& sizes, int width, int height, Order order);

    bool IsEmpty() const { return m_rows.empty(); }
    int Count() const { return static_cast<int>(m_rows.size()); }
    /// Size of the legend, pixels.
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    /// Row `i` relative to the legend's upper left corner. Rows of a column have the same width.
    const Rect& Row(int i) const { return m_rows[static_cast<std::size_t>(i)]; }
    /// Room for the text of row `i`.
    int TextRoom(int i) const { return Row(i).Width() - m_swatch; }
    /// The row at a position relative to the legend's upper left corner, -1 for none.
    int RowAt(Point point) const;

private:
    std::vector<Rect> m_rows;
    int m_swatch = 0;
    int m_width = 0;
    int m_height = 0;
};

} // namespace kavlix
