// SPDX-License-Identifier: MIT
// CGdiObject and the classes of pens, brushes, fonts, bitmaps, palettes and regions.
#pragma once

#include "afx/Export.h"
#include <afx.h>

class CDC;
class CBitmap;

/// A GDI object and the handle that it owns.
///
/// The destructor deletes the handle, unless Detach() was called before. FromHandle() returns a temporary
/// object for a handle that no CGdiObject owns. The message loop deletes temporary objects while no message
/// waits and no message handler runs; their handles stay valid.
class MFC_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

public:
    /// The handle, or NULL. Programs may read the member; only Attach() and Detach() change it.
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    /// Deletes the handle that the object owns.
    ~CGdiObject() override;

    /// The attached object of `hObject`, else a temporary one of the handle's class (CPen for a pen, and so
    /// on). NULL for a NULL handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    /// Deletes the temporary objects of the calling thread. The handles stay valid.
    static void PASCAL DeleteTempMap();

    operator HGDIOBJ() const { return m_hObject; }
    /// The handle. The call is allowed on a NULL object and then returns NULL.
    HGDIOBJ GetSafeHandle() const;

    /// Takes ownership of `hObject`. The object must not own a handle yet. FALSE for a NULL handle. Throws
    /// CMemoryException* if memory runs out; the caller then keeps the handle.
    BOOL Attach(HGDIOBJ hObject);
    /// Releases ownership: the caller deletes the handle.
    HGDIOBJ Detach();
    /// Deletes the handle, which must not be selected into a DC. FALSE if the object has no handle, or if
    /// GDI refuses.
    BOOL DeleteObject();

    /// Copies the object's record (LOGPEN, LOGBRUSH, LOGFONT, BITMAP ...). Returns the number of bytes, 0
    /// on failure.
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    /// OBJ_PEN, OBJ_BRUSH and so on; 0 if the handle is invalid.
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// Attaches a stock object (WHITE_PEN, SYSTEM_FONT ...). GDI ignores a later deletion.
    BOOL CreateStockObject(int nIndex) { return AttachNew(::GetStockObject(nIndex)); }
    /// Resets the origin of a brush, or makes the system realise a palette again.
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    /// Two objects are equal if their handles are equal.
    BOOL operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }

protected:
    /// Attaches a handle that a creator function has just made. If memory runs out, deletes the handle and
    /// returns FALSE.
    BOOL AttachNew(HGDIOBJ hObject);
};

/// A pen. Widths are in logical units.
class MFC_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    /// Creates the pen. Throws CResourceException* on failure.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = nullptr);

    /// NULL if the handle is NULL or is no pen.
    static CPen* PASCAL FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return AttachNew(::CreatePenIndirect(lpLogPen)); }
    /// Fails for pens that were made with a LOGBRUSH; use GetExtLogPen() for them.
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) const { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

/// A brush.
class MFC_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    /// Creates the brush. Throws CResourceException* on failure.
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    /// NULL if the handle is NULL or is no brush.
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) {
        return AttachNew(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
        return AttachNew(::CreateBrushIndirect(lpLogBrush));
    }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
        return AttachNew(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
    }
    /// Attaches the brush of a system colour (COLOR_WINDOW ...). GDI ignores a later deletion.
    BOOL CreateSysColorBrush(int nIndex) { return AttachNew(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

/// A font.
class MFC_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;

    /// NULL if the handle is NULL or is no font.
    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return AttachNew(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// Creates a font of `nPointSize` tenths of a point. The height is converted to the logical units of
    /// `pDC` in its present mapping; without a DC, to pixels of the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// Like CreatePointFont(); `lpLogFont->lfHeight` is the size in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

/// A bitmap.
class MFC_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;

    /// NULL if the handle is NULL or is no bitmap.
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

    /// Loads the bitmap from the first module of the resource chain that contains it.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    /// Loads a bitmap of the system (OBM_CLOSE ...).
    BOOL LoadOEMBitmap(UINT nIDBitmap) {
        return AttachNew(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
    }

    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return AttachNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return AttachNew(::CreateBitmapIndirect(lpBitmap)); }
    /// Creates a bitmap that is compatible with the output DC of `pDC`.
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    /// Copy at most `dwCount` bytes of device-dependent bits. Return the number of bytes.
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    /// The size from SetBitmapDimension(), in tenths of a millimetre; (0, 0) before the first call.
    CSize GetBitmapDimension() const;
    /// Stores a size for the program's use. Returns the former size.
    CSize SetBitmapDimension(int nWidth, int nHeight);
};

/// A colour palette.
class MFC_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette() = default;

    /// NULL if the handle is NULL or is no palette.
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette) { return AttachNew(::CreatePalette(lpLogPalette)); }
    BOOL CreateHalftonePalette(CDC* pDC);

    int GetEntryCount() const;
    /// Return the number of copied entries, 0 on failure.
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const {
        return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT GetNearestPaletteIndex(COLORREF crColor) const { return ::GetNearestPaletteIndex(*this, crColor); }
    BOOL ResizePalette(UINT nNumEntries) { return ::ResizePalette(*this, nNumEntries); }
};

/// A region. Its coordinates are device units when a DC uses it as clip. Members that combine or measure
/// regions return ERROR, NULLREGION, SIMPLEREGION or COMPLEXREGION.
class MFC_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() = default;

    /// NULL if the handle is NULL or is no region.
    static CRgn* PASCAL FromHandle(HRGN hRgn);
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }

    /// The creator functions return FALSE on failure. Right and bottom edges do not belong to the region.
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return AttachNew(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return AttachNew(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return AttachNew(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return AttachNew(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode) {
        return AttachNew(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode) {
        return AttachNew(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return AttachNew(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    /// Converts the closed path of `pDC` to a region. The call discards the path.
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData) {
        return AttachNew(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
    }

    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) {
        ::SetRectRgn(*this, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    /// Replaces this region, which must exist, with the combination of two regions.
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc);
    BOOL EqualRgn(const CRgn* pRgn) const;
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return ::OffsetRgn(*this, point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
    /// With a NULL buffer, returns the needed number of bytes. Otherwise returns the number of copied bytes,
    /// 0 if `nCount` is too small.
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nCount), lpRgnData));
    }
};
