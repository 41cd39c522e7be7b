// The off-screen surface that a control paints on before it copies the picture to the screen.
#pragma once

#include <afxwin.h>

#include <memory>

namespace kavlix {

/// Makes a DIB section with `bits` (24 or 32) per pixel and the top row first. False when GDI cannot make it.
/// `pixels` receives the address of the pixels if it is not null.
bool MakeDirectBitmap(CBitmap& bitmap, HDC dc, CSize size, void** pixels = nullptr, WORD bits = 32);
/// Attaches the new handle `made` to `object`. False when `made` is null. When attaching throws because
/// memory runs out, the handle is deleted and the exception leaves.
bool Own(CGdiObject& object, HGDIOBJ made);

/// A memory DC with a bitmap. A control paints into it and copies the finished picture to the screen, which
/// avoids flicker. The first content of the bitmap is undefined. A control that paints often keeps its
/// surface while the size stays the same: a new bitmap and the fonts of a new DC take longer than the
/// painting. When the colour depth of the screen changes, the copy converts the pixels.
class Offscreen {
public:
    /// `size` in pixels. The bitmap has the colour depth of `target`; with 32 bits it is a DIB section, which
    /// allows direct painting.
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
