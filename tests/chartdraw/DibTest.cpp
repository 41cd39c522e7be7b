// SPDX-License-Identifier: MIT
// Packed DIB blocks and bitmap files, byte by byte.
#include "tests/chartdraw/ChartTest.h"

#include <algorithm>
#include <cstring>

namespace {

using Bytes = std::vector<unsigned char>;

unsigned Number(const Bytes& bytes, std::size_t at, std::size_t size) {
    unsigned value = 0;
    for (std::size_t i = size; i-- > 0;)
        value = value << 8 | bytes.at(at + i);
    return value;
}

Bytes BlockBytes(HANDLE block) {
    const auto* bytes = static_cast<unsigned char*>(::GlobalLock(block));
    Bytes copy(bytes, bytes + ::GlobalSize(block));
    ::GlobalUnlock(block);
    return copy;
}

/// A bitmap whose row y, counted from the top, holds the bytes Row(y).
class Pattern : public DibBitmap {
public:
    Pattern(int width, int height, int bits) : DibBitmap(width, height, bits), m_width(width), m_bits(bits) {
        for (int y = 0; y < height; ++y)
            SetRow(y, Row(y));
    }
    int UsedBytes() const { return (m_width * m_bits + 7) / 8; }
    /// The bytes of a row without padding. Bits after the last pixel are 0.
    Bytes Row(int y) const {
        Bytes row(static_cast<std::size_t>(UsedBytes()));
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = static_cast<unsigned char>(i * 37 + static_cast<std::size_t>(y) * 101 + 13);
        if (m_bits == 32)
            for (std::size_t i = 3; i < row.size(); i += 4)
                row[i] = 0;
        if (m_bits == 16)
            for (std::size_t i = 1; i < row.size(); i += 2)
                row[i] &= 0x7F;
        if (const int spare = UsedBytes() * 8 - m_width * m_bits)
            row.back() = static_cast<unsigned char>(row.back() >> spare << spare);
        return row;
    }

private:
    int m_width, m_bits;
};

} // namespace

TEST(DibTest, BlockAndFileByteByByte) {
    CChartDraw chart;
    const TempFolder folder;
    constexpr int kHeight = 3;
    for (const int bits : {1, 4, 8, 16, 24, 32}) {
        for (const int width : {1, 2, 3, 4, 5, 257}) {
            SCOPED_TRACE(testing::Message() << bits << " bits, width " << width);
            Pattern pattern(width, kHeight, bits);
            const HANDLE block = chart.DDBToDIB(pattern.bitmap, BI_RGB, nullptr);
            ASSERT_NE(block, nullptr);
            const unsigned room = bits <= 8 ? 4u << bits : bits == 32 ? 4 : 0;
            const unsigned table = bits <= 8 ? 4u << bits : 0;
            const unsigned row = static_cast<unsigned>(width * bits + 31) / 32 * 4, image = row * kHeight;
            const Bytes bytes = BlockBytes(block);
            ASSERT_GE(bytes.size(), 40 + room + image);
            const unsigned header[] = {
                40, static_cast<unsigned>(width), kHeight, 1u | unsigned(bits) << 16, 0, image};
            for (std::size_t i = 0; i < std::size(header); ++i)
                EXPECT_EQ(Number(bytes, 4 * i, 4), header[i]) << "number " << i;
            for (int y = 0; y < kHeight; ++y) {
                const Bytes expected = pattern.Row(y);
                const std::size_t at = 40 + room + row * static_cast<std::size_t>(kHeight - 1 - y);
                EXPECT_TRUE(
                    std::equal(expected.begin(), expected.end(), bytes.begin() + static_cast<long>(at)))
                    << "row " << y << " from the top";
            }
            if (bits == 8) {
                EXPECT_EQ(Number(bytes, 40 + 4 * 100, 4), 0x006C2400u) << "no blue, green 36, red 108";
            }
            const std::string path = folder.Path("block.bmp");
            {
                CFile file(path.c_str(), CFile::modeCreate | CFile::modeWrite);
                EXPECT_TRUE(chart.SaveDIB(block, file));
            }
            const Bytes saved = FileBytes(path);
            ASSERT_EQ(saved.size(), 14 + 40 + table + image);
            EXPECT_EQ(std::string(saved.begin(), saved.begin() + 2), "BM");
            EXPECT_EQ(Number(saved, 2, 4), saved.size());
            EXPECT_EQ(Number(saved, 6, 4), 0u);
            EXPECT_EQ(Number(saved, 10, 4), 54 + table);
            // With 32 bits the unused entry stands in the file too, so the last pixel is missing.
            EXPECT_TRUE(std::equal(saved.begin() + 14, saved.end(), bytes.begin()));
            ::GlobalFree(block);
        }
    }
}

TEST(DibTest, ABlockIsRefusedOrNotMade) {
    CChartDraw chart;
    Pattern pattern(5, 3, 24);
    CBitmap none;
    EXPECT_EQ(chart.DDBToDIB(pattern.bitmap, BI_BITFIELDS, nullptr), nullptr);
    EXPECT_EQ(chart.DDBToDIB(none, BI_RGB, nullptr), nullptr);
    CPalette empty, halftone;
    ASSERT_TRUE(halftone.CreateHalftonePalette(CDC::FromHandle(testkit::DibSurface(1, 1).Dc())));
    for (CPalette* palette : {&empty, &halftone}) {
        const HANDLE block = chart.DDBToDIB(pattern.bitmap, BI_RGB, palette);
        EXPECT_NE(block, nullptr);
        ::GlobalFree(block);
    }

    const TempFolder folder;
    CFile file(folder.Path("none.bmp").c_str(), CFile::modeCreate | CFile::modeWrite);
    EXPECT_FALSE(chart.SaveDIB(nullptr, file));
    const struct {
        const char* name;
        DWORD header;
        LONG width, height;
        WORD bits;
        DWORD used;
        std::size_t bytes;
        bool saved;
    } cases[] = {
        {"core header", 12, 1, 1, 24, 0, 200, false},
        {"whole", 40, 2, 2, 24, 0, 56, true},
        {"rows from the top", 40, 2, -2, 24, 0, 56, true},
        {"pixels missing", 40, 2, 2, 24, 0, 40, false},
        {"sizes beyond all memory", 40, 0x7FFFFFFF, 0x7FFFFFFF, 65535, 0, 100, false},
        {"table missing", 40, 1, 1, 8, 0, 44, false},
        {"five colours", 40, 4, 1, 8, 5, 64, true},
    };
    for (const auto& each : cases) {
        Bytes bytes(each.bytes, 0xAB);
        const BITMAPINFOHEADER header = {each.header, each.width, each.height, 1,         each.bits, BI_RGB,
                                         0,           0,          0,           each.used, 0};
        std::memcpy(bytes.data(), &header, sizeof header);
        const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes.size());
        std::memcpy(::GlobalLock(block), bytes.data(), bytes.size());
        ::GlobalUnlock(block);
        const ULONGLONG before = file.GetLength();
        EXPECT_EQ(chart.SaveDIB(block, file) != FALSE, each.saved) << each.name;
        EXPECT_EQ(file.GetLength() - before, each.saved ? 14 + each.bytes : 0) << each.name;
        ::GlobalFree(block);
    }
}
