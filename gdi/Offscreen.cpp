#include "gdi/Offscreen.h"

namespace kavlix {

Offscreen::Offscreen(CDC& target, CSize size) {
    if (size.cx <= 0 || size.cy <= 0 || !m_dc.CreateCompatibleDC(&target))
        return;
    if (m_bitmap.CreateCompatibleBitmap(&target, size.cx, size.cy))
        m_previous = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap.GetSafeHandle());
}

Offscreen::~Offscreen() {
    if (m_previous != nullptr)
        ::SelectObject(m_dc.GetSafeHdc(), m_previous);
}

} // namespace kavlix
