// SPDX-License-Identifier: MIT
// Legends of random texts and sizes against what a reader expects of them.
#include "chartdraw/core/LegendLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kavlix {
namespace {

/// Whether rows of these texts fit into the fewest columns that the height allows, shortened as far as allowed.
bool FitsShortened(const std::vector<int>& texts, const LegendSizes& sizes, int width, int height,
                   bool down) {
    const int count = static_cast<int>(texts.size());
    for (int columns = 1; columns <= count; ++columns) {
        const int rows = (count + columns - 1) / columns;
        int needed = 2 * sizes.padding;
        for (int column = 0; column < columns; ++column) {
            int widest = -1;
            for (int i = 0; i < count; ++i)
                if ((down ? i / rows : i % columns) == column)
                    widest = std::max(widest, texts[static_cast<std::size_t>(i)]);
            if (widest >= 0)
                needed += std::min(widest, sizes.smallestText) + sizes.swatch + (column > 0 ? sizes.gap : 0);
        }
        if (rows * sizes.row + 2 * sizes.padding <= height)
            return needed <= width;
    }
    return false;
}

TEST(LegendLayoutTest, RandomLegends) {
    std::mt19937 random(5);
    const auto from = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    int empty = 0, shortened = 0, wrapped = 0;
    for (int round = 0; round < 5000; ++round) {
        std::vector<int> texts(static_cast<std::size_t>(from(1, 40)));
        const int longest = from(1, 300);
        for (int& text : texts)
            text = from(0, longest);
        const LegendSizes sizes = {from(1, 30), from(0, 40), from(0, 8), from(0, 20), from(0, 60)};
        const int width = from(0, 900), height = from(0, 600);
        const bool down = from(0, 1) != 0;
        const LegendLayout layout(texts, sizes, width, height,
                                  down ? LegendLayout::Order::Down : LegendLayout::Order::Across);
        SCOPED_TRACE(testing::Message()
                     << "round " << round << ": " << texts.size() << " rows in " << width << " x " << height);
        EXPECT_EQ(layout.IsEmpty(), !FitsShortened(texts, sizes, width, height, down));
        if (layout.IsEmpty()) {
            ++empty;
            EXPECT_EQ(layout.RowAt({0, 0}), -1);
            continue;
        }
        ASSERT_EQ(layout.Count(), static_cast<int>(texts.size()));
        EXPECT_LE(layout.Width(), width);
        EXPECT_LE(layout.Height(), height);
        Rect around = layout.Row(0);
        for (int i = 0; i < layout.Count(); ++i) {
            const Rect& row = layout.Row(i);
            const int text = texts[static_cast<std::size_t>(i)];
            EXPECT_GE(layout.TextRoom(i), std::min(text, sizes.smallestText));
            shortened += layout.TextRoom(i) < text;
            EXPECT_EQ(row.Height(), sizes.row);
            for (int other = 0; other < i; ++other) {
                const Rect& before = layout.Row(other);
                EXPECT_TRUE(before.right <= row.left || before.bottom <= row.top || row.right <= before.left)
                    << other << " and " << i;
            }
            if (i > 0) {
                const Rect& before = layout.Row(i - 1);
                EXPECT_TRUE(down ? row.left > before.left || row.top >= before.bottom
                                 : row.top > before.top || row.left >= before.right);
                wrapped += down ? row.left > before.left : row.top > before.top;
            }
            around = {std::min(around.left, row.left), std::min(around.top, row.top),
                      std::max(around.right, row.right), std::max(around.bottom, row.bottom)};
            if (row.Width() > 0) {
                EXPECT_EQ(layout.RowAt({from(row.left, row.right - 1), from(row.top, row.bottom - 1)}), i);
            }
        }
        const Rect inner = {sizes.padding, sizes.padding, layout.Width() - sizes.padding,
                            layout.Height() - sizes.padding};
        EXPECT_EQ(around, inner) << "as large as its rows";
        EXPECT_EQ(layout.RowAt({layout.Width(), 0}), -1);
    }
    EXPECT_TRUE(empty > 100 && shortened > 100 && wrapped > 100)
        << empty << ' ' << shortened << ' ' << wrapped;
}

TEST(LegendLayoutTest, TextsAreWholeWhereThereIsRoomAndTheWidestIsShortenedFirst) {
    const LegendSizes sizes = {10, 20, 4, 6, 15};
    const std::vector<int> texts = {30, 50, 100};
    const LegendLayout across(texts, sizes, 4 + 180 + 3 * 20 + 2 * 6 + 4, 18, LegendLayout::Order::Across);
    EXPECT_EQ(across.TextRoom(2), 100);
    const LegendLayout narrow(texts, sizes, 4 + 150 + 3 * 20 + 2 * 6 + 4, 18, LegendLayout::Order::Across);
    EXPECT_EQ(narrow.TextRoom(0), 30);
    EXPECT_EQ(narrow.TextRoom(1), 50);
    EXPECT_EQ(narrow.TextRoom(2), 70);
    const LegendLayout exact(texts, sizes, across.Width(), 28, LegendLayout::Order::Across);
    EXPECT_EQ(exact.Height(), 18) << "one row suffices";
    const LegendLayout wrapped(texts, sizes, 4 + 150 + 3 * 20 + 2 * 6 + 4, 28, LegendLayout::Order::Across);
    EXPECT_EQ(wrapped.Row(2).top, 14) << "a second row rather than dots";
    EXPECT_EQ(wrapped.TextRoom(2), 100);
}

} // namespace
} // namespace kavlix
