// SPDX-License-Identifier: MIT
// CDC: mapping modes, and conversions between units.

#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

#include <cstdlib>

namespace {

constexpr int kHimetricPerInch = 2540; // one HIMETRIC unit is 0.01 mm

/// Whether a unit of the mode has a fixed physical length (metric, English and twips modes).
bool HasFixedUnits(int mapMode) {
    return mapMode != 0 && mapMode != MM_TEXT && mapMode != MM_ISOTROPIC && mapMode != MM_ANISOTROPIC;
}

int Scale(int value, int numerator, int denominator) {
    return denominator == 0 ? value : ::MulDiv(value, numerator, denominator);
}

} // namespace

CPoint CDC::GetViewportOrg() const {
    POINT origin{};
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetViewportExt() const {
    SIZE extent{};
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CPoint CDC::GetWindowOrg() const {
    POINT origin{};
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetWindowExt() const {
    SIZE extent{};
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

int CDC::SetMapMode(int nMapMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y) {
    POINT former{};
    ForBoth(*this, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    POINT former{};
    ForBoth(*this, [&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &former); });
    return former;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    SIZE former{};
    ForBoth(*this, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &former); });
    return former;
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    SIZE former{};
    ForBoth(*this, [&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &former); });
    return former;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    POINT former{};
    ForBoth(*this, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &former); });
    return former;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    POINT former{};
    ForBoth(*this, [&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &former); });
    return former;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    SIZE former{};
    ForBoth(*this, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &former); });
    return former;
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    SIZE former{};
    ForBoth(*this, [&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &former); });
    return former;
}

void CDC::DPtoLP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scale(lpSize->cx, std::abs(window.cx), std::abs(viewport.cx));
    lpSize->cy = Scale(lpSize->cy, std::abs(window.cy), std::abs(viewport.cy));
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scale(lpSize->cx, std::abs(viewport.cx), std::abs(window.cx));
    lpSize->cy = Scale(lpSize->cy, std::abs(viewport.cy), std::abs(window.cy));
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const {
    const int mode = GetMapMode();
    if (HasFixedUnits(mode)) {
        // ::SetMapMode() instead of the virtual SetMapMode(): the mode changes only for the conversion, in
        // the attribute DC.
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        DPtoLP(lpSize);
        ::SetMapMode(m_hAttribDC, mode);
        return;
    }
    lpSize->cx = Scale(lpSize->cx, kHimetricPerInch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = Scale(lpSize->cy, kHimetricPerInch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const {
    const int mode = GetMapMode();
    if (HasFixedUnits(mode)) {
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        LPtoDP(lpSize);
        ::SetMapMode(m_hAttribDC, mode);
        return;
    }
    lpSize->cx = Scale(lpSize->cx, GetDeviceCaps(LOGPIXELSX), kHimetricPerInch);
    lpSize->cy = Scale(lpSize->cy, GetDeviceCaps(LOGPIXELSY), kHimetricPerInch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const {
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const {
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}
