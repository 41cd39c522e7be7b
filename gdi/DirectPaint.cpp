// SPDX-License-Identifier: MIT
// Finds the pixels in memory that a DC paints into, and checks once that PixelRaster paints as GDI does.
#include "gdi/DirectPaint.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Scratch.h"
#include "plot/ThinLine.h"

namespace kavlix {
namespace {

constexpr int kBits = 32;
constexpr COLORREF kColourBits = 0x00FFFFFF; // the red, green and blue bits of a COLORREF or pixel

struct Pixels {
    std::uint32_t* memory; ///< first pixel of the row that comes first in memory
    std::ptrdiff_t stride; ///< pixels from one row to the next one in memory
    Rect bounds;
};

std::optional<Pixels> PixelsOf(HBITMAP bitmap) {
    DIBSECTION section = {};
    if (::GetObject(bitmap, sizeof section, &section) != sizeof section || section.dsBm.bmBits == nullptr ||
        section.dsBm.bmBitsPixel != kBits || section.dsBm.bmPlanes != 1 ||
        section.dsBmih.biCompression != BI_RGB)
        return std::nullopt;
    return Pixels{static_cast<std::uint32_t*>(section.dsBm.bmBits),
                  section.dsBm.bmWidthBytes / static_cast<int>(sizeof(std::uint32_t)),
                  {0, 0, static_cast<int>(section.dsBm.bmWidth), static_cast<int>(section.dsBm.bmHeight)}};
}

/// The address of the pixel (0, 0), the top left one; null when it cannot be found. GDI does not tell whether
/// the top or the bottom row comes first in memory. So this function changes a pixel in memory, reads it
/// through GDI, and restores it.
std::uint32_t* FindOrigin(HDC dc, const Pixels& pixels, const Rect& clip) {
    // With an odd number of rows, the middle row has the same place in memory in both orders of rows. So use
    // another row if the clip has one.
    const bool isMiddle = 2 * clip.top + 1 == pixels.bounds.Height();
    const POINT probe = {clip.left, isMiddle && clip.top + 1 < clip.bottom ? clip.top + 1 : clip.top};
    POINT logical = probe;
    ::DPtoLP(dc, &logical, 1);
    POINT back = logical;
    ::LPtoDP(dc, &back, 1);
    const COLORREF before = ::GetPixel(dc, logical.x, logical.y);
    if (back.x != probe.x || back.y != probe.y || before == CLR_INVALID)
        return nullptr;
    std::uint32_t& pixel = pixels.memory[pixels.stride * probe.y + probe.x];
    pixel ^= kColourBits;
    const bool isTopFirst = ::GetPixel(dc, logical.x, logical.y) != before;
    pixel ^= kColourBits;
    return isTopFirst ? pixels.memory : pixels.memory + pixels.stride * (pixels.bounds.Height() - 1);
}

/// Limits `clip`, in device pixels, to the DC's clip region. False when this region is not a rectangle or
/// cannot be read, and when the DC has a meta region.
bool IntersectWithClip(HDC dc, Rect& clip) {
    CRgn region;
    if (!region.CreateRectRgn(0, 0, 0, 0) || ::GetMetaRgn(dc, region) == 1)
        return false;
    const int found = ::GetClipRgn(dc, region);
    if (found <= 0)
        return found == 0;
    CRect box;
    if (region.GetRgnBox(&box) == COMPLEXREGION)
        return false;
    clip = {std::max<int>(clip.left, box.left), std::max<int>(clip.top, box.top),
            std::min<int>(clip.right, box.right), std::min<int>(clip.bottom, box.bottom)};
    return true;
}

/// Paints the same strokes and rectangles by GDI and by PixelRaster, and compares the pixels. GDI's rounding
/// differs between systems, so direct painting is used only where this comparison succeeds.
class Comparison {
public:
    bool PaintsAlike() {
        Scratch scratch(kSide);
        // GDI draws pens of width 0, 2/3 of a pixel and 4/3 of a pixel all one pixel wide.
        CPen pens[kPens];
        CBrush brush;
        for (int i = 0; i < kPens; ++i)
            if (!pens[i].CreatePen(PS_SOLID, i * kUnitsPerPixel * 2 / 3, kColour))
                return false;
        if (!scratch.IsReady() || !brush.CreateSolidBrush(kColour))
            return false;
        SelectGuard penSelected(scratch.Dc(), pens[0]);
        SelectGuard brushSelected(scratch.Dc(), brush);
        SetControlMapping(scratch.Dc());
        return Compare(scratch.Dc(), pens, scratch.Pixels());
    }

private:
    static constexpr int kSide = 48;
    static constexpr int kPens = 3;
    static constexpr COLORREF kColour = RGB(1, 2, 3);

    bool Compare(CDC& dc, CPen* pens, const std::uint32_t* platform) {
        std::vector<std::uint32_t> own(kSide * kSide);
        PixelRaster raster(own.data(), kSide, {0, 0, kSide, kSide});
        const std::uint32_t colour = *DirectColour(kColour);
        // Strokes in all directions, with ends inside and outside the picture, on and between pixel
        // positions.
        for (int i = 0; i < 96; ++i) {
            POINT ends[2] = {{kUnitsPerPixel * 24 + i % 5 * 4, kUnitsPerPixel * 24 - i % 7 * 3},
                             {kUnitsPerPixel * (24 + (i * 37 + 5) % 61 - 30) + i % 3 * 7,
                              kUnitsPerPixel * (24 + (i * 23 + 11) % 59 - 29) - i % 4 * 6}};
            Select(dc, pens[i % kPens]);
            dc.MoveTo(ends[0]);
            dc.LineTo(ends[1]);
            dc.LPtoDP(ends, 2);
            ThinLine strokes(raster, colour);
            for (const POINT& end : ends)
                strokes.To(static_cast<int>(end.x), static_cast<int>(end.y));
            strokes.End();
            if (i % 8 == 7 && !Agree(platform, own))
                return false;
        }
        dc.SelectStockObject(NULL_PEN);
        for (int i = 0; i < 32; ++i) {
            POINT corners[2] = {{i * 40, i * 35 % 900}, {i * 40 + i % 7 * 17 - 20, 900 + i % 5 * 9}};
            dc.Rectangle(corners[0].x, corners[0].y, corners[1].x, corners[1].y);
            dc.LPtoDP(corners, 2);
            raster.Fill(FilledByRectangle(corners[0], corners[1]), colour);
        }
        return Agree(platform, own);
    }
    static bool Agree(const std::uint32_t* platform, const std::vector<std::uint32_t>& own) {
        ::GdiFlush();
        return std::memcmp(platform, own.data(), own.size() * sizeof own[0]) == 0;
    }
};

} // namespace

StrokeKind KindOfStrokes(const CDC& dc) {
    if (::GetROP2(dc.GetSafeHdc()) != R2_COPYPEN || ::GetGraphicsMode(dc.GetSafeHdc()) != GM_COMPATIBLE)
        return StrokeKind::Mixed;
    return PaintsPixels(dc) ? StrokeKind::Pixels : StrokeKind::Recorded;
}

bool PaintsPixels(const CDC& dc) {
    const DWORD type = ::GetObjectType(dc.GetSafeHdc());
    return dc.m_hAttribDC == dc.m_hDC && ::GetGraphicsMode(dc.GetSafeHdc()) == GM_COMPATIBLE &&
           (type == OBJ_DC || type == OBJ_MEMDC) && dc.GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY;
}

std::optional<PixelRaster> DirectRaster(const CDC& dc) {
    static const bool isTrusted = Comparison().PaintsAlike();
    const HDC handle = dc.GetSafeHdc();
    if (!isTrusted || ::GetObjectType(handle) != OBJ_MEMDC || ::GetLayout(handle) != 0 ||
        KindOfStrokes(dc) != StrokeKind::Pixels)
        return std::nullopt;
    std::optional<Pixels> pixels = PixelsOf(static_cast<HBITMAP>(::GetCurrentObject(handle, OBJ_BITMAP)));
    if (!pixels)
        return std::nullopt;
    Rect clip = pixels->bounds;
    if (!IntersectWithClip(handle, clip))
        return std::nullopt;
    if (clip.left >= clip.right || clip.top >= clip.bottom)
        return PixelRaster(pixels->memory, pixels->stride, {0, 0, 0, 0});
    ::GdiFlush(); // GDI may have queued earlier calls: they must reach the memory first
    std::uint32_t* origin = FindOrigin(handle, *pixels, clip);
    if (origin == nullptr)
        return std::nullopt;
    return PixelRaster(origin, origin == pixels->memory ? pixels->stride : -pixels->stride, clip);
}

std::optional<std::uint32_t> DirectColour(COLORREF colour) {
    if ((colour & ~kColourBits) != 0)
        return std::nullopt;
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 |
           static_cast<std::uint32_t>(GetGValue(colour)) << 8 | GetBValue(colour);
}

bool FindPixelEdges(const CDC& dc, const CRect& device, PixelEdges& columns, PixelEdges& rows) {
    // GDI rounds a position to the nearest pixel, so the positions of a pixel begin half a pixel before the
    // pixel's own position. The rounding may move this border by one logical unit in either direction, so
    // three candidates are converted for each border.
    constexpr int kCandidates = 3;
    const CPoint origin = dc.GetViewportOrg();
    const int count = std::max(device.Width(), device.Height()) + 1;
    if (device.Width() < 1 || device.Height() < 1)
        return false;
    std::vector<POINT> candidates;
    candidates.reserve(static_cast<std::size_t>(count) * kCandidates);
    for (int k = 0; k < count; ++k) {
        const int x = kUnitsPerPixel * (device.left + k - origin.x) - kUnitsPerPixel / 2;
        const int y = kUnitsPerPixel * (device.top + k - origin.y) - kUnitsPerPixel / 2;
        for (int c = -1; c < kCandidates - 1; ++c)
            candidates.push_back({x + c, y + c});
    }
    std::vector<POINT> pixels = candidates;
    dc.LPtoDP(pixels.data(), static_cast<int>(pixels.size()));

    const auto gather = [&](int size, LONG POINT::*axis, LONG firstPixel, std::vector<int>& edges) {
        for (int k = 0; k <= size; ++k) {
            const std::size_t at = static_cast<std::size_t>(k) * kCandidates;
            std::size_t begin = at;
            while (begin < at + kCandidates && pixels[begin].*axis == firstPixel + k - 1)
                ++begin;
            if (begin == at || begin == at + kCandidates || pixels[begin].*axis != firstPixel + k)
                return false;
            edges.push_back(static_cast<int>(candidates[begin].*axis));
        }
        return true;
    };
    std::vector<int> columnEdges;
    std::vector<int> rowEdges;
    if (!gather(device.Width(), &POINT::x, device.left, columnEdges) ||
        !gather(device.Height(), &POINT::y, device.top, rowEdges))
        return false;
    columns = PixelEdges(static_cast<int>(device.left), std::move(columnEdges));
    rows = PixelEdges(static_cast<int>(device.top), std::move(rowEdges));
    return true;
}

Rect FilledByRectangle(const POINT& corner, const POINT& opposite) {
    // GDI leaves out the column and the row of the right and bottom coordinates. The column and the row
    // before them belong to the outline, which the null pen does not draw.
    return {static_cast<int>(std::min(corner.x, opposite.x)),
            static_cast<int>(std::min(corner.y, opposite.y)),
            static_cast<int>(std::max(corner.x, opposite.x)) - 1,
            static_cast<int>(std::max(corner.y, opposite.y)) - 1};
}

} // namespace kavlix
