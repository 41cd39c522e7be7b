// SPDX-License-Identifier: MIT
// Charts in mirrored windows (WS_EX_LAYOUTRTL): picture and mouse positions keep their direction.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// Ends the mirroring of a control's window, which a mirrored parent hands down to its children. Without mirroring,
/// client coordinates, DCs and mouse positions run from left to right.
inline void StopMirroring(CWnd& window) {
    if (window.GetExStyle() & WS_EX_LAYOUTRTL)
        window.ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
}

/// Draws unmirrored on a mirrored DC until the end of the scope.
class UnmirroredGuard {
public:
    explicit UnmirroredGuard(CDC& dc) : m_dc(dc.GetSafeHdc()), m_layout(::GetLayout(m_dc)) {
        if (IsMirrored())
            ::SetLayout(m_dc, 0);
    }
    ~UnmirroredGuard() {
        if (IsMirrored())
            ::SetLayout(m_dc, m_layout);
    }
    UnmirroredGuard(const UnmirroredGuard&) = delete;
    UnmirroredGuard& operator=(const UnmirroredGuard&) = delete;

private:
    bool IsMirrored() const { return m_layout != GDI_ERROR && (m_layout & LAYOUT_RTL) != 0; }

    HDC m_dc;
    DWORD m_layout;
};

} // namespace kavlix
