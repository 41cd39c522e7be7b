#pragma once

#include <afxwin.h>

#include <memory>

namespace kavlix {

/// Makes a picture of `bits` (24 or 32) a pixel in memory, rows from the top. False when it cannot be made.
/// `pixels` receives where they lie, if it is not null.
bool MakeDirectBitmap(CBitmap& bitmap, HDC dc, CSize size, void** pixels = nullptr, WORD bits = 32);
/// Gives `object` a handle that was just made; null is refused. When that takes memory and there is none, the
/// handle is deleted.
bool Own(CGdiObject& object, HGDIOBJ made);

/// A memory DC with a bitmap, for a picture that is composed unseen and copied at once. What the bitmap holds
/// at first is undefined. A control that paints often keeps one as long as its size stays: making the bitmap
/// and having its fonts ready costs more than painting. On a screen whose colours have changed since, copying
/// converts.
class Offscreen {
public:
    /// `size` in pixels; the bitmap has the colours of `target` and is a DIB section where these take 32
    /// bits.
    Offscreen(CDC& target, CSize size);
    ~Offscreen();
    Offscreen(const Offscreen&) = delete;
    Offscreen& operator=(const Offscreen&) = delete;

    /// False when the DC or a bitmap of that size cannot be made: paint into the target itself then.
    bool IsReady() const { return m_previous != nullptr; }
    CSize Size() const { return m_size; }
    CDC& Dc() { return m_dc; }

private:
    CSize m_size;
    CBitmap m_bitmap;
    CDC m_dc;
    HGDIOBJ m_previous = nullptr;
};

/// Takes the surface that a control keeps from paint to paint, made anew where there is none of that size;
/// null when it cannot be made. Give it back after the paint. While it is taken, a paint within the paint
/// gets its own.
std::unique_ptr<Offscreen> TakeOffscreen(std::unique_ptr<Offscreen>& kept, CDC& target, CSize size);

} // namespace kavlix
