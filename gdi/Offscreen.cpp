#include "gdi/Offscreen.h"

#include <utility>

namespace kavlix {

namespace {

constexpr int kDirectBits = 32;

} // namespace

HBITMAP MakeDirectBitmap(HDC dc, CSize size, void** pixels) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // row 0 on top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = kDirectBits;
    info.bmiHeader.biCompression = BI_RGB;
    void* memory = nullptr;
    const HBITMAP made = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    if (pixels != nullptr)
        *pixels = memory;
    return made;
}

Offscreen::Offscreen(CDC& target, CSize size) : m_size(size) {
    if (size.cx <= 0 || size.cy <= 0 || !m_dc.CreateCompatibleDC(&target))
        return;
    const int bits = target.GetDeviceCaps(BITSPIXEL) * target.GetDeviceCaps(PLANES);
    HBITMAP made = bits == kDirectBits ? MakeDirectBitmap(target.GetSafeHdc(), size) : nullptr;
    if (made == nullptr)
        made = ::CreateCompatibleBitmap(target.GetSafeHdc(), size.cx, size.cy);
    if (made != nullptr && m_bitmap.Attach(made))
        m_previous = ::SelectObject(m_dc.GetSafeHdc(), made);
}

Offscreen::~Offscreen() {
    if (m_previous != nullptr)
        ::SelectObject(m_dc.GetSafeHdc(), m_previous);
}

std::unique_ptr<Offscreen> TakeOffscreen(std::unique_ptr<Offscreen>& kept, CDC& target, CSize size) {
    std::unique_ptr<Offscreen> taken = std::move(kept);
    if (!taken || taken->Size() != size)
        taken = std::make_unique<Offscreen>(target, size);
    if (!taken->IsReady())
        taken.reset();
    return taken;
}

} // namespace kavlix
