// SPDX-License-Identifier: MIT
// Charts in mirrored windows (WS_EX_LAYOUTRTL): picture and mouse positions keep their direction.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// Ends the mirroring of a control's window, which a mirrored parent hands down to its children. Without
/// mirroring, client coordinates, DCs and mouse positions run from left to right.
inline void StopMirroring(CWnd& window) {
    if (window.GetExStyle() & WS_EX_LAYOUTRTL)
        window.ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
}

/// Keeps a host from mirroring the control: for the parameters of WM_STYLECHANGING.
inline void RefuseMirroring(WPARAM kind, LPARAM styles) {
    if (static_cast<int>(kind) == GWL_EXSTYLE)
        reinterpret_cast<STYLESTRUCT*>(styles)->styleNew &= ~static_cast<DWORD>(WS_EX_LAYOUTRTL);
}

/// Draws unmirrored on a mirrored DC until the end of the scope. A picture of `width` logical units keeps its
/// place: its left edge is where the mirrored DC has the right edge.
class UnmirroredGuard {
public:
    UnmirroredGuard(CDC& dc, int width) : m_dc(dc.GetSafeHdc()), m_layout(::GetLayout(m_dc)) {
        if (!IsMirrored())
            return;
        POINT corner = {width - 1, 0};
        ::LPtoDP(m_dc, &corner, 1);
        ::GetViewportOrgEx(m_dc, &m_origin);
        ::SetLayout(m_dc, 0);
        ::SetViewportOrgEx(m_dc, corner.x, corner.y, nullptr);
    }
    ~UnmirroredGuard() {
        if (!IsMirrored())
            return;
        ::SetLayout(m_dc, m_layout);
        ::SetViewportOrgEx(m_dc, m_origin.x, m_origin.y, nullptr);
    }
    UnmirroredGuard(const UnmirroredGuard&) = delete;
    UnmirroredGuard& operator=(const UnmirroredGuard&) = delete;

private:
    bool IsMirrored() const { return m_layout != GDI_ERROR && (m_layout & LAYOUT_RTL) != 0; }

    HDC m_dc;
    DWORD m_layout;
    POINT m_origin = {0, 0};
};

} // namespace kavlix
