// SPDX-License-Identifier: MIT
// CPen, CBrush, CFont and CPalette.

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

namespace {

constexpr int kTenthsOfPointPerInch = 720;

/// The object of class `Object` for a handle. An attached object of another class, such as a plain
/// CGdiObject, does not count.
template <class Object> Object* FromHandleOf(HGDIOBJ handle, bool isOfKind) {
    ThreadGdiMaps* const maps = GdiMaps();
    return handle != nullptr && isOfKind && maps != nullptr ? maps->objects.Find<Object>(handle) : nullptr;
}

} // namespace

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    const DWORD type = ::GetObjectType(hPen);
    return FromHandleOf<CPen>(hPen, type == OBJ_PEN || type == OBJ_EXTPEN);
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return AttachNew(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                    static_cast<DWORD>(nStyleCount), lpStyle));
}

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap) {
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return FromHandleOf<CBrush>(hBrush, ::GetObjectType(hBrush) == OBJ_BRUSH);
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return AttachNew(::CreatePatternBrush(static_cast<HBITMAP>(SafeHandle(pBitmap))));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    const void* const packed = ::GlobalLock(hPackedDIB);
    if (packed == nullptr)
        return FALSE;
    const BOOL made = CreateDIBPatternBrush(packed, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return made;
}

CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return FromHandleOf<CFont>(hFont, ::GetObjectType(hFont) == OBJ_FONT);
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return AttachNew(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                                  cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality,
                                  nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    HDC const screen = pDC == nullptr ? ::GetDC(nullptr) : nullptr;
    HDC const device = pDC == nullptr ? screen : pDC->m_hAttribDC;
    const int pixels =
        ::MulDiv(::GetDeviceCaps(device, LOGPIXELSY), lpLogFont->lfHeight, kTenthsOfPointPerInch);
    POINT ends[2] = {{0, 0}, {0, pixels}};
    ::DPtoLP(device, ends, 2);
    if (screen != nullptr)
        ::ReleaseDC(nullptr, screen);
    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(ends[1].y - ends[0].y);
    return CreateFontIndirect(&font);
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return FromHandleOf<CPalette>(hPalette, ::GetObjectType(hPalette) == OBJ_PAL);
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return AttachNew(::CreateHalftonePalette(SafeHandle(pDC)));
}

int CPalette::GetEntryCount() const {
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}
