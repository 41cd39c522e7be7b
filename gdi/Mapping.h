#pragma once

#include <afxwin.h>

namespace kavlix {

inline constexpr int kUnitsPerPixel = 30;

/// The controls' own mapping: 30 logical units per pixel, y downwards, all origins 0.
inline void SetControlMapping(CDC& dc) {
    constexpr int kViewportExtent = 500;
    constexpr int kWindowExtent = kViewportExtent * kUnitsPerPixel;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(kWindowExtent, kWindowExtent);
    dc.SetWindowOrg(0, 0);
    dc.SetViewportExt(kViewportExtent, kViewportExtent);
    dc.SetViewportOrg(0, 0);
}

inline CRect ToLogical(const CDC& dc, CRect device) {
    dc.DPtoLP(&device);
    return device;
}

inline CRect ToDevice(const CDC& dc, CRect logical) {
    dc.LPtoDP(&logical);
    return logical;
}

/// A rectangle in logical units as the device rectangle that holds all its pixels, its right and bottom edge
/// included.
inline CRect ToDeviceWithEdges(const CDC& dc, const CRect& logical) {
    CRect device = ToDevice(dc, logical);
    ++device.right;
    ++device.bottom;
    return device;
}

} // namespace kavlix
