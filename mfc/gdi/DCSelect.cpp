// SPDX-License-Identifier: MIT
// CDC: selected objects and the halftone brush.

#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

#include <initializer_list>

namespace {

/// Calls `select` with the handle for each DC that is not NULL. Returns `wrap` of the handle that was
/// selected into the last DC before, or into the first DC if the last one gave none. If memory runs out,
/// selects the former handles again and returns NULL.
template <class Select, class Wrap> auto SelectInto(std::initializer_list<HDC> dcs, HGDIOBJ handle,
                                                    Select select, Wrap wrap) -> decltype(wrap(handle)) {
    HGDIOBJ formers[2] = {};
    HGDIOBJ* former = formers;
    for (HDC const dc : dcs)
        *former++ = dc != nullptr ? select(dc, handle) : nullptr;
    decltype(wrap(handle)) result = nullptr;
    if (HasMemoryFor([&] { result = wrap(former[-1] != nullptr ? former[-1] : formers[0]); }))
        return result;
    former = formers;
    for (HDC const dc : dcs)
        if (HGDIOBJ const one = *former++)
            select(dc, one);
    return nullptr;
}

template <class Wrap> auto SelectBoth(const CDC& dc, HGDIOBJ handle, Wrap wrap) -> decltype(wrap(handle)) {
    HDC const output = dc.m_hDC != dc.m_hAttribDC ? dc.m_hDC : nullptr;
    return SelectInto({output, dc.m_hAttribDC}, handle, ::SelectObject, wrap);
}

template <class Object, class Handle> Object* ObjectOf(HGDIOBJ handle) {
    return Object::FromHandle(static_cast<Handle>(handle));
}

/// A pattern of 8 x 8 pixels with every second pixel set. Rows are aligned to WORD.
constexpr WORD kHalftoneRows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};

} // namespace

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return SelectBoth(*this, ::GetStockObject(nIndex), CGdiObject::FromHandle);
}

CPen* CDC::SelectObject(CPen* pPen) {
    return SelectBoth(*this, SafeHandle(pPen), ObjectOf<CPen, HPEN>);
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return SelectBoth(*this, SafeHandle(pBrush), ObjectOf<CBrush, HBRUSH>);
}

CFont* CDC::SelectObject(CFont* pFont) {
    return SelectBoth(*this, SafeHandle(pFont), ObjectOf<CFont, HFONT>);
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return SelectInto({m_hDC}, SafeHandle(pBitmap), ::SelectObject, ObjectOf<CBitmap, HBITMAP>);
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
        return SelectInto({m_hDC}, pObject->m_hObject, ::SelectObject, CGdiObject::FromHandle);
    default:
        return SelectBoth(*this, SafeHandle(pObject), CGdiObject::FromHandle);
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
    const auto select = [bForceBackground](HDC dc, HGDIOBJ handle) {
        return ::SelectPalette(dc, static_cast<HPALETTE>(handle), bForceBackground);
    };
    return SelectInto({m_hDC}, SafeHandle(pPalette), select, ObjectOf<CPalette, HPALETTE>);
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
