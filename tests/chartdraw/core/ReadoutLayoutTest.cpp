// SPDX-License-Identifier: MIT
// Readouts with random texts and room against what a reader expects of them.
#include "chartdraw/core/ReadoutLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kavlix {
namespace {

TEST(ReadoutLayoutTest, RandomReadouts) {
    std::mt19937 random(7);
    const auto from = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int empty = 0, cut = 0, blocks = 0, narrowed = 0;
    for (int round = 0; round < 4000; ++round) {
        const ReadoutSizes sizes = {from(5, 20), from(0, 8), from(0, 10), from(0, 20)};
        const int rows = from(1, 45), columns = from(1, 6), headers = from(0, 1);
        std::vector<std::vector<int>> cells(static_cast<std::size_t>(rows + headers));
        for (std::vector<int>& row : cells)
            for (int i = 0; i < columns; ++i)
                row.push_back(from(0, 60));
        std::vector<int> titles(static_cast<std::size_t>(from(0, 3)));
        for (int& title : titles)
            title = from(0, 150);
        const int width = from(10, 900), height = from(10, 600), blocksWidth = width / 2;
        const ReadoutLayout layout(titles, cells, headers != 0, sizes, width, height, blocksWidth);
        SCOPED_TRACE(testing::Message() << "round " << round);

        const auto widest = [&](int column) {
            int result = 0;
            for (const std::vector<int>& row : cells)
                result = std::max(result, row[static_cast<std::size_t>(column)]);
            return result;
        };
        const int lines =
            (height - 2 * sizes.padding) / sizes.row - static_cast<int>(titles.size()) - headers;
        const int fewest = columns == 1 ? widest(0) : widest(0) + sizes.gap + widest(1);
        ASSERT_EQ(layout.IsEmpty(), lines < 1 || fewest + 2 * sizes.padding > width);
        if (layout.IsEmpty()) {
            ++empty;
            continue;
        }
        EXPECT_LE(layout.Width(), width);
        EXPECT_LE(layout.Height(), height);
        EXPECT_EQ(layout.Rows() + layout.Hidden(), rows);
        int needed = 2 * sizes.padding - sizes.gap;
        for (int i = 0; i < layout.Columns(); ++i)
            needed += widest(i) + sizes.gap;
        EXPECT_LE(needed, width);
        if (layout.Columns() < columns) {
            EXPECT_GT(needed + sizes.gap + widest(layout.Columns()), width);
            ++narrowed;
        }
        const auto widthOf = [&](int count) {
            return count * (needed - 2 * sizes.padding + sizes.blockGap) - sizes.blockGap + 2 * sizes.padding;
        };
        EXPECT_TRUE(layout.Blocks() == 1 || widthOf(layout.Blocks()) <= blocksWidth);
        EXPECT_TRUE(layout.Blocks() == 1 || rows > (layout.Blocks() - 1) * lines) << "as few as possible";
        if (layout.Hidden() > 0) {
            EXPECT_GT(rows, layout.Blocks() * lines);
            EXPECT_GT(widthOf(layout.Blocks() + 1), blocksWidth);
            ++cut;
        }
        blocks += layout.Blocks() > 1;

        std::vector<Rect> places;
        for (std::size_t i = 0; i < titles.size(); ++i)
            places.push_back(layout.Title(static_cast<int>(i)));
        EXPECT_EQ(layout.HasMore(), layout.Hidden() > 0 && lines > 1);
        if (layout.HasMore())
            places.push_back(layout.More());
        for (int column = 0; column < layout.Columns(); ++column) {
            for (int block = 0; block < headers * layout.Blocks(); ++block)
                places.push_back(layout.Header(block, column));
            for (int row = 0; row < layout.Rows(); ++row) {
                places.push_back(layout.Cell(row, column));
                EXPECT_EQ(places.back().Width(), widest(column));
            }
        }
        for (std::size_t i = 0; i < places.size(); ++i) {
            const Rect& a = places[i];
            EXPECT_TRUE(a.left >= sizes.padding && a.right <= layout.Width() - sizes.padding &&
                        a.top >= sizes.padding && a.bottom <= layout.Height() - sizes.padding);
            for (std::size_t j = 0; j < i; ++j) {
                const Rect& b = places[j];
                EXPECT_TRUE(a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top);
            }
        }
    }
    EXPECT_TRUE(empty > 50 && cut > 50 && blocks > 50 && narrowed > 50)
        << empty << ' ' << cut << ' ' << blocks << ' ' << narrowed;
}

} // namespace
} // namespace kavlix
