#include <gtest/gtest.h>

#include "chartdraw/DibLayout.h"

namespace kavlix {
namespace {

TEST(DibLayoutTest, RowsArePaddedAndNothingOverflows) {
    const struct {
        int width, bits;
        std::uint64_t row;
    } cases[] = {{1, 1, 4},      {32, 1, 4},      {33, 1, 8},   {1, 4, 4},     {9, 4, 8},
                 {4, 8, 4},      {5, 8, 8},       {1, 16, 4},   {3, 16, 8},    {1, 24, 4},
                 {4, 24, 12},    {5, 24, 16},     {257, 1, 36}, {257, 4, 132}, {257, 8, 260},
                 {257, 24, 772}, {257, 32, 1028}, {0, 24, 0},   {-5, 24, 0}};
    for (const auto& each : cases) {
        EXPECT_EQ(RowBytes(each.width, each.bits), each.row) << each.width << " at " << each.bits;
        EXPECT_EQ(ImageBytes(each.width, 3, each.bits), 3 * each.row);
        EXPECT_EQ(ImageBytes(each.width, -3, each.bits), 3 * each.row) << "rows from the top";
        EXPECT_EQ(ImageRoom(each.width, 3, each.bits, true), 3 * each.row * 3 / 2);
    }
    EXPECT_EQ(ImageBytes(INT32_MAX, INT32_MIN, 32), kTooManyBytes);
    EXPECT_EQ(ImageBytes(INT32_MAX, 3, 65535), kTooManyBytes);
}

TEST(DibLayoutTest, ColoursOfADepth) {
    const struct {
        std::uint32_t bits, room, colors;
    } cases[] = {{1, 2, 2}, {4, 16, 16}, {8, 256, 256}, {16, 0, 0}, {24, 0, 0}, {32, 1, 0}, {2, 4, 0}};
    for (const auto& each : cases) {
        EXPECT_EQ(RoomForColors(each.bits), each.room) << each.bits;
        EXPECT_EQ(ColorsOfDepth(each.bits), each.colors) << each.bits;
    }
}

TEST(DibLayoutTest, FileHeaderIsLittleEndian) {
    const std::array<std::uint8_t, 14> expected = {'B', 'M', 4, 3, 2, 1, 0, 0, 0, 0, 0x36, 4, 0, 0};
    EXPECT_EQ(BitmapFileHeader(0x01020304, 1078), expected);
}

} // namespace
} // namespace kavlix
