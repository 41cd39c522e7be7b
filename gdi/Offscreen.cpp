// SPDX-License-Identifier: MIT
// Makes the bitmap of an off-screen surface.
#include "gdi/Offscreen.h"

#include <utility>

#include "gdi/Bitmap.h"

namespace kavlix {
namespace {

constexpr int kDirectBits = 32;

} // namespace

Offscreen::Offscreen(CDC& target, CSize size) : m_size(size) {
    if (size.cx <= 0 || size.cy <= 0 || !m_dc.CreateCompatibleDC(&target))
        return;
    const int bits = target.GetDeviceCaps(BITSPIXEL) * target.GetDeviceCaps(PLANES);
    if ((bits == kDirectBits && MakeDirectBitmap(m_bitmap, target.GetSafeHdc(), size)) ||
        Own(m_bitmap, ::CreateCompatibleBitmap(target.GetSafeHdc(), size.cx, size.cy)))
        m_previous = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
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
