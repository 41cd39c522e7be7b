// SPDX-License-Identifier: MIT
// How many columns a legend gets, and how wide they are.
#include "chartdraw/core/LegendLayout.h"

#include <algorithm>
#include <numeric>

namespace kavlix {
namespace {

/// The place of a row in a grid of columns.
struct Grid {
    LegendLayout::Order order;
    int columns;
    int rows; ///< of the fullest column

    int ColumnOf(int i) const { return order == LegendLayout::Order::Down ? i / rows : i % columns; }
    int RowOf(int i) const { return order == LegendLayout::Order::Down ? i % rows : i / columns; }
};

int DivideUp(int a, int b) {
    return (a + b - 1) / b;
}

/// The grid of `count` rows in `columns` columns, without empty columns.
Grid GridOf(LegendLayout::Order order, int count, int columns) {
    const int rows = DivideUp(count, columns);
    return {order, order == LegendLayout::Order::Down ? DivideUp(count, rows) : columns, rows};
}

std::vector<int> WidestTexts(const std::vector<int>& texts, const Grid& grid) {
    std::vector<int> widest(static_cast<std::size_t>(grid.columns));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        int& column = widest[static_cast<std::size_t>(grid.ColumnOf(static_cast<int>(i)))];
        column = std::max(column, texts[i]);
    }
    return widest;
}

int Sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// Limits the widths to the largest number for which their sum is at most `room`. That number may be negative.
void Narrow(std::vector<int>& widths, int room) {
    std::vector<int> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    int limit = sorted.back();
    int count = static_cast<int>(sorted.size());
    for (const int width : sorted) { // the narrow columns keep their width, the others share what is left
        if (width > room / count) {
            limit = room < 0 ? -1 : room / count;
            break;
        }
        room -= width;
        --count;
    }
    for (int& width : widths)
        width = std::min(width, limit);
}

} // namespace

LegendLayout::LegendLayout(const std::vector<int>& texts, const LegendSizes& sizes, int width, int height,
                           Order order) {
    const int count = static_cast<int>(texts.size());
    const int mostRows = (height - 2 * sizes.padding) / sizes.row;
    if (count == 0 || mostRows < 1)
        return;
    const auto roomFor = [&](int columns) {
        return width - 2 * sizes.padding - (columns - 1) * sizes.gap - columns * sizes.swatch;
    };
    const int fewest = DivideUp(count, mostRows);
    Grid grid = GridOf(order, count, fewest);
    std::vector<int> widths = WidestTexts(texts, grid);
    if (order == Order::Across)
        for (int columns = count; columns > fewest; --columns) {
            if (roomFor(columns) < 0)
                continue;
            const Grid wider = GridOf(order, count, columns);
            std::vector<int> wanted = WidestTexts(texts, wider);
            if (Sum(wanted) <= roomFor(columns)) {
                grid = wider;
                widths = std::move(wanted);
                break;
            }
        }
    const std::vector<int> wanted = widths;
    Narrow(widths, roomFor(grid.columns));
    for (std::size_t i = 0; i < widths.size(); ++i)
        if (widths[i] < std::min(wanted[i], sizes.smallestText))
            return;

    std::vector<int> lefts;
    int left = sizes.padding;
    for (const int each : widths) {
        lefts.push_back(left);
        left += sizes.swatch + each + sizes.gap;
    }
    m_swatch = sizes.swatch;
    m_width = left - sizes.gap + sizes.padding;
    m_height = grid.rows * sizes.row + 2 * sizes.padding;
    m_rows.reserve(texts.size());
    for (int i = 0; i < count; ++i) {
        const auto column = static_cast<std::size_t>(grid.ColumnOf(i));
        const int top = sizes.padding + grid.RowOf(i) * sizes.row;
        m_rows.push_back(
            {lefts[column], top, lefts[column] + sizes.swatch + widths[column], top + sizes.row});
    }
}

int LegendLayout::RowAt(Point point) const {
    for (int i = 0; i < Count(); ++i)
        if (Row(i).Contains(point))
            return i;
    return -1;
}

} // namespace kavlix
