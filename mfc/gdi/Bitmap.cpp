// SPDX-License-Identifier: MIT
// CBitmap.

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "afx/Module.h"
#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    ThreadGdiMaps* const maps = GdiMaps();
    return maps != nullptr && ::GetObjectType(hBitmap) == OBJ_BITMAP ? maps->objects.Find<CBitmap>(hBitmap)
                                                                     : nullptr;
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return AttachNew(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return AttachNew(::CreateCompatibleBitmap(SafeHandle(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return AttachNew(::CreateDiscardableBitmap(SafeHandle(pDC), nWidth, nHeight));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

CSize CBitmap::GetBitmapDimension() const {
    SIZE size{};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    SIZE former{};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &former);
    return former;
}
