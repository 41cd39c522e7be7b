// SPDX-License-Identifier: MIT
// CChartDraw: packed DIB blocks, made from bitmaps and written to files.
#include <kavlix/ChartDraw.h>

#include <cstring>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/DibBlock.h"
#include "chartdraw/core/DibLayout.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

static_assert(sizeof(BITMAPINFOHEADER) == kInfoHeaderBytes);
static_assert(sizeof(BITMAPCOREHEADER) == kCoreHeaderBytes);
static_assert(sizeof(RGBQUAD) == kColorBytes && sizeof(RGBTRIPLE) == kCoreColorBytes);
static_assert(sizeof(BITMAPFILEHEADER) == kFileHeaderBytes);

/// The screen's DC with a palette that is selected and realized. The destructor selects the previous palette.
class PaletteDc {
public:
    explicit PaletteDc(HPALETTE palette) : m_dc(::GetDC(nullptr)) {
        m_previous = ::SelectPalette(m_dc, palette, FALSE);
        ::RealizePalette(m_dc);
    }
    ~PaletteDc() {
        if (m_previous != nullptr) {
            ::SelectPalette(m_dc, m_previous, FALSE);
            ::RealizePalette(m_dc);
        }
        ::ReleaseDC(nullptr, m_dc);
    }
    PaletteDc(const PaletteDc&) = delete;
    PaletteDc& operator=(const PaletteDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
    HPALETTE m_previous = nullptr;
};

template <class Header> Header ReadHeader(const char* bytes) {
    Header header;
    std::memcpy(&header, bytes, sizeof header);
    return header;
}

bool HasInfoHeader(const char* bytes) {
    return ReadHeader<DWORD>(bytes) == kInfoHeaderBytes;
}

} // namespace

HANDLE CChartDraw::DDBToDIB(CBitmap& bitmap, DWORD dwCompression, CPalette* pPal) {
    BITMAP record = {};
    if (dwCompression == BI_BITFIELDS || bitmap.GetBitmap(&record) == 0)
        return nullptr;
    const HGDIOBJ own = pPal != nullptr ? pPal->GetSafeHandle() : nullptr;
    const auto palette = static_cast<HPALETTE>(own != nullptr ? own : ::GetStockObject(DEFAULT_PALETTE));
    const auto handle = static_cast<HBITMAP>(bitmap.GetSafeHandle());

    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = record.bmWidth;
    header.biHeight = record.bmHeight;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(record.bmPlanes * record.bmBitsPixel);
    header.biCompression = dwCompression;
    const UINT rows = static_cast<UINT>(header.biHeight);
    const DWORD bitsAt = header.biSize + kColorBytes * RoomForColors(header.biBitCount);

    const PaletteDc dc(palette);
    DibBlock block(::GlobalAlloc(GMEM_FIXED, bitsAt));
    if (block.Get() == nullptr)
        return nullptr;
    {
        const DibLock lock(block.Get());
        if (lock.Bytes() == nullptr)
            return nullptr;
        lock.Header() = header;
        ::GetDIBits(dc.Get(), handle, 0, rows, nullptr, lock.Info(), DIB_RGB_COLORS);
        header = lock.Header();
    }
    std::uint64_t imageBytes = header.biSizeImage;
    if (imageBytes == 0)
        imageBytes = ImageRoom(header.biWidth, header.biHeight, header.biBitCount, dwCompression != BI_RGB);
    if (imageBytes > MAXDWORD - bitsAt)
        return nullptr;
    header.biSizeImage = static_cast<DWORD>(imageBytes);

    if (!block.Resize(bitsAt + static_cast<SIZE_T>(imageBytes)))
        return nullptr;
    {
        const DibLock lock(block.Get());
        if (lock.Bytes() == nullptr)
            return nullptr;
        lock.Header().biSizeImage = header.biSizeImage;
        if (::GetDIBits(dc.Get(), handle, 0, rows, lock.Bytes() + bitsAt, lock.Info(), DIB_RGB_COLORS) == 0)
            return nullptr;
    }
    return block.Detach();
}

WORD WINAPI CChartDraw::DIBNumColors(LPSTR lpbi) {
    if (!HasInfoHeader(lpbi))
        return ColorsOfDepth(ReadHeader<BITMAPCOREHEADER>(lpbi).bcBitCount);
    const auto header = ReadHeader<BITMAPINFOHEADER>(lpbi);
    return header.biClrUsed != 0 ? static_cast<WORD>(header.biClrUsed) : ColorsOfDepth(header.biBitCount);
}

WORD WINAPI CChartDraw::PaletteSize(LPSTR lpbi) {
    return static_cast<WORD>(DIBNumColors(lpbi) * (HasInfoHeader(lpbi) ? kColorBytes : kCoreColorBytes));
}

BOOL WINAPI CChartDraw::SaveDIB(HDIB hDib, CFile& file) {
    const DibLock lock(hDib);
    if (lock.Bytes() == nullptr)
        return FALSE;
    const SIZE_T blockBytes = ::GlobalSize(hDib);
    if (blockBytes < kInfoHeaderBytes || !HasInfoHeader(lock.Bytes()))
        return FALSE;

    BITMAPINFOHEADER& header = lock.Header();
    const DWORD bitsAt = header.biSize + PaletteSize(lock.Bytes());
    const bool runLengths = header.biCompression == kRunLengths8 || header.biCompression == kRunLengths4;
    const std::uint64_t imageBytes =
        runLengths ? header.biSizeImage : ImageBytes(header.biWidth, header.biHeight, header.biBitCount);
    const std::uint64_t dibBytes = bitsAt + imageBytes;
    // A header can claim more bytes than the block holds. The file must not contain memory behind the block.
    if (dibBytes > blockBytes || dibBytes > MAXDWORD - kFileHeaderBytes)
        return FALSE;
    header.biSizeImage = static_cast<DWORD>(imageBytes);

    const auto fileHeader =
        BitmapFileHeader(static_cast<DWORD>(dibBytes) + kFileHeaderBytes, bitsAt + kFileHeaderBytes);
    file.Write(fileHeader.data(), static_cast<UINT>(fileHeader.size()));
    file.Write(lock.Bytes(), static_cast<UINT>(dibBytes));
    return TRUE;
}
