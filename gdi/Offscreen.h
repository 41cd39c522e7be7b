// SPDX-License-Identifier: MIT
// The off-screen surface that a control paints on before it copies the picture to the screen.
#pragma once

#include <afxwin.h>

#include <memory>

namespace kavlix {

/// A memory DC with a bitmap. A control paints into it and copies the finished picture to the screen, which
/// avoids flicker. The first content of the bitmap is undefined. A control that paints often keeps its
/// surface while the size stays the same: making a bitmap, and selecting fonts into a new DC, takes longer
/// than the painting. When the colour depth of the screen changes, the kept surface stays usable: GDI
/// converts the pixels while it copies them.
class Offscreen {
public:
    /// `size` in pixels. The bitmap has the colour depth of `target`. With 32 bits it is a DIB section if GDI
    /// can make one, so that DirectRaster can give access to its pixels.
    Offscreen(CDC& target, CSize size);
    ~Offscreen();
    Offscreen(const Offscreen&) = delete;
    Offscreen& operator=(const Offscreen&) = delete;

    /// False when GDI could not make the DC or a bitmap of this size. The caller then paints into the target
    /// itself.
    bool IsReady() const { return m_previous != nullptr; }
    CSize Size() const { return m_size; }
    CDC& Dc() { return m_dc; }

private:
    CSize m_size;
    CBitmap m_bitmap;
    CDC m_dc;
    HGDIOBJ m_previous = nullptr;
};

/// Takes the surface out of `kept`, or makes a new one when `kept` has none of this size. Null when GDI
/// cannot make it. The caller moves the surface back into `kept` after painting. If painting causes another
/// paint of the same control, `kept` is empty and the inner paint gets its own surface.
std::unique_ptr<Offscreen> TakeOffscreen(std::unique_ptr<Offscreen>& kept, CDC& target, CSize size);

} // namespace kavlix
