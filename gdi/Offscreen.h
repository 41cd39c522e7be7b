#pragma once

#include <afxwin.h>

namespace kavlix {

/// A memory DC with a bitmap of its own, for a picture that is composed unseen and copied at once. The
/// bitmap's contents are undefined at first.
class Offscreen {
public:
    /// `size` in pixels; the bitmap has the colours of `target`.
    Offscreen(CDC& target, CSize size);
    ~Offscreen();
    Offscreen(const Offscreen&) = delete;
    Offscreen& operator=(const Offscreen&) = delete;

    /// False when the DC or a bitmap of that size cannot be made: paint into the target itself then.
    bool IsReady() const { return m_previous != nullptr; }
    CDC& Dc() { return m_dc; }

private:
    CBitmap m_bitmap;
    CDC m_dc;
    HGDIOBJ m_previous = nullptr;
};

} // namespace kavlix
