// SPDX-License-Identifier: MIT
// How many blocks, rows and columns a readout gets.
#include "chartdraw/core/ReadoutLayout.h"

#include <algorithm>

namespace kavlix {

ReadoutLayout::ReadoutLayout(const std::vector<int>& titles, const std::vector<std::vector<int>>& cells,
                             bool hasHeader, const ReadoutSizes& sizes, int width, int height,
                             int blocksWidth)
    : m_sizes(sizes), m_titles(static_cast<int>(titles.size())), m_headers(hasHeader ? 1 : 0) {
    const int count = static_cast<int>(cells.size()) - m_headers;
    const int mostRows = (height - 2 * sizes.padding) / sizes.row - m_titles - m_headers;
    if (count < 1 || mostRows < 1 || height < 2 * sizes.padding)
        return;
    int left = sizes.padding;
    for (std::size_t column = 0; column < cells.front().size(); ++column) {
        int widest = 0;
        for (const std::vector<int>& row : cells)
            widest = std::max(widest, row[column]);
        if (left + widest + sizes.padding > width)
            break;
        m_lefts.push_back(left);
        m_widths.push_back(widest);
        left += widest + sizes.gap;
    }
    const std::size_t fewest = std::min<std::size_t>(cells.front().size(), 2); // a name alone tells nothing
    if (m_lefts.size() < fewest)
        return;
    const int blockWidth = left - sizes.gap - sizes.padding;
    m_blockStep = blockWidth + sizes.blockGap;

    const int mostBlocks =
        std::max((blocksWidth - 2 * sizes.padding + sizes.blockGap) / std::max(m_blockStep, 1), 1);
    int blocks = std::min((count + mostRows - 1) / mostRows, mostBlocks);
    m_rowsPerBlock = (count + blocks - 1) / blocks;
    m_rows = count;
    if (m_rowsPerBlock > mostRows) {
        m_rowsPerBlock = std::max(mostRows - 1, 1); // the line about the rows that are not shown takes one
        m_rows = m_rowsPerBlock * blocks;
        m_hidden = count - m_rows;
    }
    blocks = Blocks();
    m_hasMore = m_hidden > 0 && m_rowsPerBlock < mostRows;
    m_height = 2 * sizes.padding + (m_titles + m_headers + m_rowsPerBlock + (m_hasMore ? 1 : 0)) * sizes.row;
    m_width = 2 * sizes.padding + blocks * m_blockStep - sizes.blockGap;
    for (const int title : titles)
        m_width = std::min(std::max(m_width, title + 2 * sizes.padding), width);
}

Rect ReadoutLayout::Line(int line) const {
    const int top = m_sizes.padding + line * m_sizes.row;
    return {m_sizes.padding, top, m_width - m_sizes.padding, top + m_sizes.row};
}

Rect ReadoutLayout::Cell(int block, int line, int column) const {
    const auto at = static_cast<std::size_t>(column);
    const int left = m_lefts[at] + block * m_blockStep;
    const Rect whole = Line(line);
    return {left, whole.top, left + m_widths[at], whole.bottom};
}

} // namespace kavlix
