#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

namespace {

/// Selects into both DCs; the handle that was selected before, NULL on failure.
HGDIOBJ SelectBoth(const CDC& dc, const CGdiObject* object) {
    const HGDIOBJ handle = SafeHandle(object);
    return ForBoth(dc, [handle](HDC target) { return ::SelectObject(target, handle); });
}

/// Every second pixel of an 8 x 8 pattern; rows are WORD aligned.
constexpr WORD kHalftoneRows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};

} // namespace

CGdiObject* CDC::SelectStockObject(int nIndex) {
    const HGDIOBJ stock = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(
        ForBoth(*this, [stock](HDC target) { return ::SelectObject(target, stock); }));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(static_cast<HPEN>(SelectBoth(*this, pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectBoth(*this, pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(static_cast<HFONT>(SelectBoth(*this, pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, SafeHandle(pBitmap))));
}

int CDC::SelectObject(CRgn* pRgn) {
    return SelectClipRgn(pRgn);
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    switch (::GetObjectType(SafeHandle(pObject))) {
    case OBJ_REGION:
        ForBoth(*this, [pObject](HDC target) {
            return ::SelectClipRgn(target, static_cast<HRGN>(pObject->m_hObject));
        });
        return nullptr;
    case OBJ_BITMAP:
        return CGdiObject::FromHandle(::SelectObject(m_hDC, pObject->m_hObject));
    default:
        return CGdiObject::FromHandle(SelectBoth(*this, pObject));
    }
}

CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(SafeHandle(pPalette)), bForceBackground));
}

CPoint CDC::GetBrushOrg() const {
    POINT origin{};
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    POINT former{};
    ::SetBrushOrgEx(m_hDC, x, y, &former);
    return former;
}

CBrush* PASCAL CDC::GetHalftoneBrush() {
    static CBrush brush;
    if (brush.m_hObject == nullptr) {
        CBitmap pattern;
        if (pattern.CreateBitmap(8, 8, 1, 1, kHalftoneRows))
            brush.CreatePatternBrush(&pattern);
    }
    return CBrush::FromHandle(brush);
}
