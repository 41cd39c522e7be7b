// SPDX-License-Identifier: MIT
// Pixels of memory pictures: reading, counting and comparing them.
#include "tests/support/DibSurface.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace testkit {
namespace {

COLORREF FromPixel(DWORD pixel) {
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

RECT Cut(const RECT& area, int width, int height) {
    return {std::max<LONG>(area.left, 0), std::max<LONG>(area.top, 0), std::min<LONG>(area.right, width),
            std::min<LONG>(area.bottom, height)};
}

} // namespace

DibSurface::DibSurface(int width, int height, COLORREF fill) : m_width(width), m_height(height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    m_dc = CreateCompatibleDC(nullptr);
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_dc == nullptr || m_bitmap == nullptr)
        throw std::runtime_error("no memory picture could be made");
    m_bits = static_cast<DWORD*>(bits);
    m_oldBitmap = SelectObject(m_dc, m_bitmap);
    const DWORD pixel = (DWORD(GetRValue(fill)) << 16) | (DWORD(GetGValue(fill)) << 8) | GetBValue(fill);
    std::fill_n(m_bits, static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel);
}

DibSurface::~DibSurface() {
    SelectObject(m_dc, m_oldBitmap);
    DeleteObject(m_bitmap);
    DeleteDC(m_dc);
}

COLORREF DibSurface::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    GdiFlush();
    return FromPixel(m_bits[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                            static_cast<std::size_t>(x)]);
}

bool DibSurface::IsSameAs(const DibSurface& other) const {
    GdiFlush();
    return m_width == other.m_width && m_height == other.m_height &&
           std::equal(m_bits, m_bits + m_width * m_height, other.m_bits,
                      [](DWORD a, DWORD b) { return FromPixel(a) == FromPixel(b); });
}

int DibSurface::Count(COLORREF colour, const RECT& area) const {
    const RECT cut = Cut(area, m_width, m_height);
    GdiFlush();
    int count = 0;
    for (LONG y = cut.top; y < cut.bottom; ++y)
        for (LONG x = cut.left; x < cut.right; ++x)
            count += FromPixel(m_bits[y * m_width + x]) == colour;
    return count;
}

int DibSurface::Count(COLORREF colour) const {
    return Count(colour, {0, 0, m_width, m_height});
}

RECT DibSurface::Bounds(COLORREF colour) const {
    RECT bounds = {m_width, m_height, 0, 0};
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            if (At(x, y) == colour)
                bounds = {std::min<LONG>(bounds.left, x), std::min<LONG>(bounds.top, y),
                          std::max<LONG>(bounds.right, x + 1), std::max<LONG>(bounds.bottom, y + 1)};
    return bounds.right == 0 ? RECT{0, 0, 0, 0} : bounds;
}

void DibSurface::Copy(HDC source) {
    const int saved = SaveDC(m_dc);
    SetMapMode(m_dc, MM_TEXT);
    SetViewportOrgEx(m_dc, 0, 0, nullptr);
    SetWindowOrgEx(m_dc, 0, 0, nullptr);
    BitBlt(m_dc, 0, 0, m_width, m_height, source, 0, 0, SRCCOPY);
    RestoreDC(m_dc, saved);
}

void DibSurface::Grab(HWND window) {
    const HDC source = GetDC(window);
    Copy(source);
    ReleaseDC(window, source);
}

bool DibSurface::Load(const char* path) {
    const HANDLE bitmap = LoadImageA(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
    if (bitmap == nullptr)
        return false;
    const HDC source = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(source, bitmap);
    Copy(source);
    SelectObject(source, old);
    DeleteDC(source);
    DeleteObject(bitmap);
    return true;
}

std::string Difference(const DibSurface& a, const DibSurface& b, const RECT& area) {
    int count = 0;
    RECT bounds = {LONG_MAX, LONG_MAX, 0, 0};
    std::ostringstream first;
    for (LONG y = area.top; y < area.bottom; ++y) {
        for (LONG x = area.left; x < area.right; ++x) {
            if (a.At(x, y) == b.At(x, y))
                continue;
            if (count++ == 0)
                first << "first at (" << x << "," << y << "): " << std::hex << a.At(x, y) << " against "
                      << b.At(x, y);
            bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                      std::max(bounds.bottom, y + 1)};
        }
    }
    if (count == 0)
        return {};
    std::ostringstream text;
    text << count << " pixels differ inside (" << bounds.left << "," << bounds.top << ")-(" << bounds.right
         << "," << bounds.bottom << "); " << first.str();
    return text.str();
}

int Displaced(const DibSurface& a, const DibSurface& b, const RECT& area, int distance) {
    int count = 0;
    for (LONG y = area.top; y < area.bottom; ++y) {
        for (LONG x = area.left; x < area.right; ++x) {
            if (a.At(x, y) == b.At(x, y))
                continue;
            const RECT around = {x - distance, y - distance, x + distance + 1, y + distance + 1};
            count += b.Count(a.At(x, y), around) == 0;
            count += a.Count(b.At(x, y), around) == 0;
        }
    }
    return count;
}

std::string Difference(const DibSurface& a, const DibSurface& b) {
    if (a.Width() != b.Width() || a.Height() != b.Height())
        return "the pictures have different sizes";
    if (a.IsSameAs(b))
        return {};
    return Difference(a, b, {0, 0, a.Width(), a.Height()});
}

} // namespace testkit
