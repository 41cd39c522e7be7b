// SPDX-License-Identifier: MIT
// Pictures in memory whose pixels tests read and compare.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace testkit {

/// A picture in memory: a 32-bit DIB section that is selected into a memory DC.
class DibSurface {
public:
    /// `width` and `height` in pixels, at least 1 each. Every pixel starts as `fill`.
    DibSurface(int width, int height, COLORREF fill = RGB(255, 255, 255));
    DibSurface(const DibSurface&) = delete;
    DibSurface& operator=(const DibSurface&) = delete;
    ~DibSurface();

    /// The DC that draws here. Owned by the surface; its mapping is the caller's to set.
    HDC Dc() const { return m_dc; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    /// The colour of a pixel; CLR_INVALID outside the picture.
    COLORREF At(int x, int y) const;
    /// Whether both pictures have the same size and the same pixels.
    bool IsSameAs(const DibSurface& other) const;
    /// How many pixels of `area` (device units, right and bottom not included) have exactly this colour.
    int Count(COLORREF colour, const RECT& area) const;
    int Count(COLORREF colour) const;
    /// The smallest rectangle that holds every pixel of the colour; empty when there is none.
    RECT Bounds(COLORREF colour) const;

    /// Copies what a window's DC shows into this picture, from (0, 0) on.
    void Grab(HWND window);
    /// Copies the picture of a .bmp file into this one, from (0, 0) on. False when it cannot be read.
    bool Load(const char* path);

private:
    void Copy(HDC source);

    int m_width;
    int m_height;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_oldBitmap = nullptr;
    DWORD* m_bits = nullptr;
};

/// Compares two pictures inside `area`. Empty when all pixels are equal; otherwise a sentence with the number
/// of different pixels, their bounding box and the first of them.
std::string Difference(const DibSurface& a, const DibSurface& b, const RECT& area);
std::string Difference(const DibSurface& a, const DibSurface& b);

/// The number of pixels inside `area` whose colour the other picture does not show within `distance` pixels
/// of the same place, counted in both directions. 0 for pictures that differ only in the rounding of
/// positions.
int Displaced(const DibSurface& a, const DibSurface& b, const RECT& area, int distance);

} // namespace testkit
