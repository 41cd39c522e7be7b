// SPDX-License-Identifier: MIT
// CDC: lines, fills and pictures.

#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

namespace {

/// Copies the current position of the output DC, which drawing has moved, to the attribute DC, which
/// GetCurrentPosition() asks. Returns `drawn`.
BOOL WithPosition(const CDC& dc, BOOL drawn) {
    POINT position{};
    if (dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC &&
        ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, nullptr);
    return drawn;
}

} // namespace

CPoint CDC::GetCurrentPosition() const {
    POINT position{};
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    POINT former{};
    ForBoth(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &former); });
    return former;
}

BOOL CDC::LineTo(int x, int y) {
    return WithPosition(*this, ::LineTo(m_hDC, x, y));
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return WithPosition(*this, ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4));
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle) {
    return WithPosition(*this,
                        ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle));
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount) {
    return WithPosition(*this, ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount)));
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount) {
    return WithPosition(*this, ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount));
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount) {
    return WithPosition(*this, ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount)));
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, BrushHandle(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, BrushHandle(pBrush));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, RegionHandle(pRgn), BrushHandle(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, RegionHandle(pRgn), BrushHandle(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, RegionHandle(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, RegionHandle(pRgn));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y, size.cx,
                       size.cy, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, static_cast<HBITMAP>(SafeHandle(pBitmap)), nFlags, BrushHandle(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y, size.cx,
                       size.cy, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, hIcon, nFlags, BrushHandle(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                       static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy,
                       nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, BrushHandle(pBrush));
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop) {
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, SafeHandle(pSrcDC), xSrc, ySrc, maskBitmap, xMask, yMask,
                     dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                 CBitmap& maskBitmap, int xMask, int yMask) {
    return ::PlgBlt(m_hDC, lpPoint, SafeHandle(pSrcDC), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask,
                    yMask);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate) {
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, RegionHandle(pRgnUpdate), lpRectUpdate);
}
