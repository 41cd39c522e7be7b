// SPDX-License-Identifier: MIT
// CDC: drawing attributes and clips.

#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}

int CDC::SetBkMode(int nBkMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}

int CDC::SetArcDirection(int nArcDirection) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetTextJustification(dc, nBreakExtra, nBreakCount); });
}

int CDC::SetTextCharacterExtra(int nCharExtra) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}

DWORD CDC::SetMapperFlags(DWORD dwFlag) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SetMapperFlags(dc, dwFlag); });
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    return ForBoth(
        *this, [=](HDC dc) { return ::SelectClipRgn(dc, RegionHandle(pRgn)); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ForBoth(
        *this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, RegionHandle(pRgn), nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return ForBoth(
        *this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, SafeHandle(pWnd));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ForBoth(
        *this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y) {
    return ForBoth(
        *this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags) {
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

BOOL CDC::SelectClipPath(int nMode) {
    if (m_hAttribDC == nullptr || m_hAttribDC == m_hDC)
        return ::SelectClipPath(m_hDC, nMode);
    // The path exists in the output DC only. The attribute DC gets the path as a region, so that both DCs
    // have the same clip. Converting the path discards it, so the code converts between SaveDC() and
    // RestoreDC().
    ::SaveDC(m_hDC);
    CRgn region;
    const BOOL known = region.CreateFromPath(this);
    ::RestoreDC(m_hDC, -1);
    return ::SelectClipPath(m_hDC, nMode) && known && ::ExtSelectClipRgn(m_hAttribDC, region, nMode) != ERROR;
}
