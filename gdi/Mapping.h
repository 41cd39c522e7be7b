// SPDX-License-Identifier: MIT
// The controls' own mapping mode, and conversions between logical units and device pixels.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// Logical units per pixel in the controls' own mapping.
inline constexpr int kUnitsPerPixel = 30;

/// Sets the controls' own mapping: kUnitsPerPixel logical units per pixel, y downwards, all origins 0.
inline void SetControlMapping(CDC& dc) {
    constexpr int kViewportExtent = 500;
    constexpr int kWindowExtent = kViewportExtent * kUnitsPerPixel;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(kWindowExtent, kWindowExtent);
    dc.SetWindowOrg(0, 0);
    dc.SetViewportExt(kViewportExtent, kViewportExtent);
    dc.SetViewportOrg(0, 0);
}

/// Converts between device pixels and logical units with a window's DC in the controls' own mapping. This
/// class allocates no memory, so an operation that only causes a repaint cannot run out of memory here.
class WindowUnits {
public:
    explicit WindowUnits(HWND window) : m_window(window), m_dc(::GetDC(window)) {
        ::SetMapMode(m_dc, MM_ANISOTROPIC);
        ::SetWindowExtEx(m_dc, kUnitsPerPixel, kUnitsPerPixel, nullptr);
        ::SetViewportExtEx(m_dc, 1, 1, nullptr);
    }
    ~WindowUnits() {
        if (m_dc != nullptr)
            ::ReleaseDC(m_window, m_dc);
    }
    WindowUnits(const WindowUnits&) = delete;
    WindowUnits& operator=(const WindowUnits&) = delete;

    /// False without a DC: the conversions return their argument then.
    bool IsReady() const { return m_dc != nullptr; }
    CPoint ToLogical(CPoint device) const {
        ::DPtoLP(m_dc, &device, 1);
        return device;
    }
    CPoint ToDevice(CPoint logical) const {
        ::LPtoDP(m_dc, &logical, 1);
        return logical;
    }

private:
    HWND m_window;
    HDC m_dc;
};

inline CRect ToLogical(const CDC& dc, CRect device) {
    dc.DPtoLP(&device);
    return device;
}

inline CRect ToDevice(const CDC& dc, CRect logical) {
    dc.LPtoDP(&logical);
    return logical;
}

/// The smallest device rectangle that contains all pixels of a rectangle in logical units, including the
/// pixels of the right and bottom edges.
inline CRect ToDeviceWithEdges(const CDC& dc, const CRect& logical) {
    CRect device = ToDevice(dc, logical);
    ++device.right;
    ++device.bottom;
    return device;
}

/// The first position to the right of `x`, in logical units, that lies in another pixel column. If the next
/// kUnitsPerPixel positions lie in the column of `x`, because the DC has larger pixels, the result is `x` +
/// kUnitsPerPixel + 1.
inline int NextColumn(const CDC& dc, int x) {
    POINT places[kUnitsPerPixel + 2];
    int count = 0;
    for (POINT& place : places)
        place = {x + count++, 0};
    dc.LPtoDP(places, count);
    int next = 1;
    while (next < count - 1 && places[next].x == places[0].x)
        ++next;
    return x + next;
}

/// The bounding box of the selected clip region, in logical units; a very large box when there is none or GDI
/// cannot return it.
inline CRect ClipBounds(const CDC& dc) {
    constexpr int kFar = 1 << 29;
    CRgn region;
    CRect device;
    if (!region.CreateRectRgn(0, 0, 0, 0) || ::GetClipRgn(dc.m_hAttribDC, region) != 1)
        return CRect(-kFar, -kFar, kFar, kFar);
    region.GetRgnBox(&device);
    CRect logical = ToLogical(dc, device);
    logical.NormalizeRect();
    return logical;
}

/// The part of a rectangle, in logical units, that lies inside ClipBounds.
inline CRect ClippedPart(const CDC& dc, const CRect& logical) {
    CRect part;
    part.IntersectRect(logical, ClipBounds(dc));
    return part;
}

} // namespace kavlix
