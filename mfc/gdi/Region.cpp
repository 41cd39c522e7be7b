// SPDX-License-Identifier: MIT
// CRgn.

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    ThreadGdiMaps* const maps = GdiMaps();
    return maps != nullptr && ::GetObjectType(hRgn) == OBJ_REGION ? maps->objects.Find<CRgn>(hRgn) : nullptr;
}

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return AttachNew(::PathToRegion(SafeHandle(pDC)));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, RegionHandle(pRgn1), RegionHandle(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) {
    return ::CombineRgn(*this, RegionHandle(pRgnSrc), nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const {
    return ::EqualRgn(*this, RegionHandle(pRgn));
}
