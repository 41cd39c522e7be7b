// SPDX-License-Identifier: MIT
// ReadoutLayout: places of the texts in a readout.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Sizes of a readout's parts in pixels.
struct ReadoutSizes {
    int row = 1;      ///< height of a row
    int padding = 0;  ///< between the box's edge and its texts
    int gap = 0;      ///< between two columns
    int blockGap = 0; ///< between two blocks
};

/// Titles, and below them a table. A table with too many rows for the height is divided into blocks side by side. Rows
/// that have no room are left out, and a last line says how many; columns that have no room are left out too.
class ReadoutLayout {
public:
    /// Nothing.
    ReadoutLayout() = default;
    /// Widths of the titles and of the cells: `cells[row][column]`, all rows of the same length. With `hasHeader` the
    /// first row stands above each block. The box is at most `width` x `height`; two and more blocks are together at
    /// most `blocksWidth`. Empty when not even one row with its first two cells fits.
    ReadoutLayout(const std::vector<int>& titles, const std::vector<std::vector<int>>& cells, bool hasHeader,
                  const ReadoutSizes& sizes, int width, int height, int blocksWidth);

    bool IsEmpty() const { return m_width == 0; }
    /// Size of the box, pixels.
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    int Columns() const { return static_cast<int>(m_lefts.size()); } ///< columns that are shown
    int Rows() const { return m_rows; }                              ///< rows that are shown, without header
    int Hidden() const { return m_hidden; }                          ///< rows that are not shown
    int Blocks() const { return m_rows == 0 ? 0 : (m_rows + m_rowsPerBlock - 1) / m_rowsPerBlock; }
    // Rectangles relative to the box's upper left corner.
    Rect Title(int i) const { return Line(i); }
    Rect Header(int block, int column) const { return Cell(block, m_titles, column); }
    Rect Cell(int row, int column) const {
        return Cell(row / m_rowsPerBlock, m_titles + m_headers + row % m_rowsPerBlock, column);
    }
    bool HasMore() const { return m_hasMore; } ///< whether there is room to tell the number of rows not shown
    Rect More() const { return Line(m_titles + m_headers + m_rowsPerBlock); }

private:
    Rect Line(int line) const;
    Rect Cell(int block, int line, int column) const;

    ReadoutSizes m_sizes;
    int m_titles = 0;
    int m_headers = 0; ///< 0 or 1
    int m_rows = 0;
    int m_rowsPerBlock = 1;
    int m_hidden = 0;
    bool m_hasMore = false;
    int m_blockStep = 0;       ///< from one block to the next
    std::vector<int> m_lefts;  ///< of the columns in the first block
    std::vector<int> m_widths; ///< of the columns
    int m_width = 0;
    int m_height = 0;
};

} // namespace kavlix
