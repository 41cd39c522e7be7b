// SPDX-License-Identifier: MIT
// A small picture on which GDI paints trial strokes, so that their pixels can be read.
#pragma once

#include <afxwin.h>

#include <cstdint>

#include "gdi/Bitmap.h"

namespace kavlix {

/// A square picture of 32-bit pixels in memory, black at first. GDI paints into it through Dc.
class Scratch {
public:
    explicit Scratch(int side) : m_side(side) {
        void* memory = nullptr;
        if (!m_dc.CreateCompatibleDC(nullptr) ||
            !MakeDirectBitmap(m_bitmap, nullptr, CSize(side, side), &memory))
            return;
        m_previous = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
        m_pixels = static_cast<const std::uint32_t*>(memory);
    }
    ~Scratch() {
        if (m_previous != nullptr)
            ::SelectObject(m_dc.GetSafeHdc(), m_previous);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    /// False when GDI could not make the picture; the other members must not be used then.
    bool IsReady() const { return m_pixels != nullptr; }
    CDC& Dc() { return m_dc; }
    /// Whether the picture has a pixel at `x`, `y`.
    bool Has(int x, int y) const { return x >= 0 && x < m_side && y >= 0 && y < m_side; }
    /// The pixels, row by row from the top. Call GdiFlush after painting and before reading.
    const std::uint32_t* Pixels() const { return m_pixels; }
    /// One pixel, for which Has must be true.
    std::uint32_t Pixel(int x, int y) const { return m_pixels[y * m_side + x]; }

private:
    int m_side;
    CBitmap m_bitmap;
    CDC m_dc;
    HGDIOBJ m_previous = nullptr;
    const std::uint32_t* m_pixels = nullptr;
};

} // namespace kavlix
