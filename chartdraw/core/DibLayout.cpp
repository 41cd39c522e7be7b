// SPDX-License-Identifier: MIT
// Sizes of rows, images and colour tables.
#include "chartdraw/core/DibLayout.h"

#include <algorithm>

namespace kavlix {

std::uint64_t RowBytes(std::int64_t width, std::uint32_t bitCount) {
    if (width < 1 || width > INT32_MAX || bitCount > UINT16_MAX)
        return 0;
    constexpr std::uint64_t kBits = 32;
    return (static_cast<std::uint64_t>(width) * bitCount + kBits - 1) / kBits * sizeof(std::uint32_t);
}

std::uint64_t ImageBytes(std::int64_t width, std::int64_t height, std::uint32_t bitCount) {
    if (height > INT32_MAX || height < INT32_MIN)
        return 0;
    const std::uint64_t row = RowBytes(width, bitCount);
    if (row > UINT32_MAX)
        return kTooManyBytes;
    return std::min(row * static_cast<std::uint64_t>(height < 0 ? -height : height), kTooManyBytes);
}

std::uint64_t ImageRoom(std::int64_t width, std::int64_t height, std::uint32_t bitCount, bool compressed) {
    const std::uint64_t bytes = ImageBytes(width, height, bitCount);
    return compressed ? bytes + bytes / 2 : bytes;
}

std::uint32_t RoomForColors(std::uint32_t bitCount) {
    constexpr std::uint32_t kShiftMask = 31;
    constexpr std::uint32_t kMostColors = 256;
    const std::uint32_t colors = std::uint32_t{1} << (bitCount & kShiftMask);
    return colors > kMostColors ? 0 : colors;
}

std::uint16_t ColorsOfDepth(std::uint32_t bitCount) {
    switch (bitCount) {
    case 1:
    case 4:
    case 8:
        return static_cast<std::uint16_t>(1u << bitCount);
    default:
        return 0;
    }
}

std::array<std::uint8_t, kFileHeaderBytes> BitmapFileHeader(std::uint32_t fileBytes,
                                                            std::uint32_t bitsOffset) {
    std::array<std::uint8_t, kFileHeaderBytes> header = {'B', 'M'};
    const auto put = [&](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < sizeof value; ++i, value >>= 8)
            header[at + i] = static_cast<std::uint8_t>(value);
    };
    constexpr std::size_t kFileSizeAt = 2;
    constexpr std::size_t kBitsOffsetAt = 10;
    put(kFileSizeAt, fileBytes);
    put(kBitsOffsetAt, bitsOffset);
    return header;
}

} // namespace kavlix
