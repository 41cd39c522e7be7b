#pragma once

#include <array>
#include <cstdint>

/// The arithmetic of packed device-independent bitmaps and of the files that hold them. Sizes are bytes.
namespace kavlix {

constexpr std::uint32_t kInfoHeaderBytes = 40;
constexpr std::uint32_t kCoreHeaderBytes = 12;
constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kColorBytes = 4;      ///< of a table entry behind an info header
constexpr std::uint32_t kCoreColorBytes = 3;  ///< of a table entry behind a core header
constexpr std::uint32_t kRunLengths8 = 1;     ///< compression by run lengths, 8 bits per pixel
constexpr std::uint32_t kRunLengths4 = 2;     ///< the same, 4 bits
constexpr std::uint32_t kBitFieldsFormat = 3; ///< colour masks instead of a table

/// A row of pixels, padded to a multiple of 4. 0 for sizes below 1.
std::uint64_t RowBytes(std::int64_t width, std::uint32_t bitCount);

/// More than any block; sums with it do not overflow.
constexpr std::uint64_t kTooManyBytes = std::uint64_t{1} << 62;

/// All rows, at most kTooManyBytes; a negative height, which says that rows run from the top, counts as its
/// size.
std::uint64_t ImageBytes(std::int64_t width, std::int64_t height, std::uint32_t bitCount);

/// Room for an image whose size the system does not tell; a compressed one gets half as much again.
std::uint64_t ImageRoom(std::int64_t width, std::int64_t height, std::uint32_t bitCount, bool compressed);

/// Table entries that a block of this depth has room for: 2, 16 and 256 up to 8 bits, none for 16 and 24. A
/// depth of 32 bits has room for one, because the shift that counts colours takes its count modulo 32: hosts
/// rely on the pixels' place in such a block.
std::uint32_t RoomForColors(std::uint32_t bitCount);

/// Table entries that a depth has by itself: 2, 16 or 256, and 0 for all but 1, 4 and 8 bits.
std::uint16_t ColorsOfDepth(std::uint32_t bitCount);

/// The header of a file of `fileBytes` bytes whose pixels begin at `bitsOffset`.
std::array<std::uint8_t, kFileHeaderBytes> BitmapFileHeader(std::uint32_t fileBytes,
                                                            std::uint32_t bitsOffset);

} // namespace kavlix
