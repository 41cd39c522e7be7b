// SPDX-License-Identifier: MIT
// The arithmetic of packed device-independent bitmaps and of bitmap files. Sizes are in bytes.
#pragma once

#include <array>
#include <cstdint>

namespace kavlix {

constexpr std::uint32_t kInfoHeaderBytes = 40;
constexpr std::uint32_t kCoreHeaderBytes = 12;
constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kColorBytes = 4;     ///< bytes of a colour table entry after an info header
constexpr std::uint32_t kCoreColorBytes = 3; ///< bytes of a colour table entry after a core header
constexpr std::uint32_t kRunLengths8 = 1;    ///< value of biCompression: run lengths, 8 bits per pixel
constexpr std::uint32_t kRunLengths4 = 2;    ///< value of biCompression: run lengths, 4 bits per pixel

/// Size of a row of pixels, padded to a multiple of 4; 0 for a width below 1, and for a width or bit count
/// that is too large for a DIB's header. `bitCount` is in bits per pixel.
std::uint64_t RowBytes(std::int64_t width, std::uint32_t bitCount);

/// Larger than any block of memory, and small enough to add sizes to without overflow.
constexpr std::uint64_t kTooManyBytes = std::uint64_t{1} << 62;

/// Size of all rows, limited to kTooManyBytes; kTooManyBytes also when a single row takes 4 GiB or more. A
/// negative height, which means that the top row comes first, counts as its absolute value. 0 for a height
/// that is too large for a DIB's header.
std::uint64_t ImageBytes(std::int64_t width, std::int64_t height, std::uint32_t bitCount);

/// Size to reserve for an image whose size GDI does not report: ImageBytes, and for a compressed image one
/// and a half times as much, because compression can enlarge an image.
std::uint64_t ImageRoom(std::int64_t width, std::int64_t height, std::uint32_t bitCount, bool compressed);

/// Number of colour table entries that a new packed DIB block reserves between its header and its pixels: 2,
/// 16 and 256 for 1, 4 and 8 bits per pixel, none for 16 and 24. For 32 bits per pixel the number is 1,
/// because the shift 1 << 32 uses only the low five bits of 32. Hosts rely on the resulting pixel offset.
std::uint32_t RoomForColors(std::uint32_t bitCount);

/// Number of colour table entries that belong to a colour depth: 2, 16 or 256 for 1, 4 or 8 bits per pixel, 0
/// for all other depths.
std::uint16_t ColorsOfDepth(std::uint32_t bitCount);

/// The header of a bitmap file of `fileBytes` bytes whose pixels begin at `bitsOffset`.
std::array<std::uint8_t, kFileHeaderBytes> BitmapFileHeader(std::uint32_t fileBytes,
                                                            std::uint32_t bitsOffset);

} // namespace kavlix
