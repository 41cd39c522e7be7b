// SPDX-License-Identifier: MIT
// CGdiObject.

#include "afx/GdiObject.h"

#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

CGdiObject::~CGdiObject() {
    if (m_hObject != nullptr)
        DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    ThreadGdiMaps* const maps = GdiMaps();
    if (hObject == nullptr || maps == nullptr)
        return nullptr;
    if (CGdiObject* const permanent = maps->objects.Permanent(hObject))
        return permanent;
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return maps->objects.Find<CPen>(hObject);
    case OBJ_BRUSH:
        return maps->objects.Find<CBrush>(hObject);
    case OBJ_FONT:
        return maps->objects.Find<CFont>(hObject);
    case OBJ_BITMAP:
        return maps->objects.Find<CBitmap>(hObject);
    case OBJ_PAL:
        return maps->objects.Find<CPalette>(hObject);
    case OBJ_REGION:
        return maps->objects.Find<CRgn>(hObject);
    default:
        return maps->objects.Find<CGdiObject>(hObject);
    }
}

void PASCAL CGdiObject::DeleteTempMap() {
    if (ThreadGdiMaps* const maps = MadeGdiMaps())
        maps->objects.DeleteTemporaries();
}

HGDIOBJ CGdiObject::GetSafeHandle() const {
    // The call is allowed on a NULL object. `volatile` keeps the compiler from removing the test.
    const CGdiObject* volatile self = this;
    return self == nullptr ? nullptr : m_hObject;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    ASSERT(m_hObject == nullptr);
    if (hObject == nullptr)
        return FALSE;
    if (ThreadGdiMaps* const maps = GdiMaps())
        maps->objects.SetPermanent(hObject, this);
    m_hObject = hObject;
    return TRUE;
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject) {
    return ::AttachNew(*this, hObject, ::DeleteObject);
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ handle = m_hObject;
    m_hObject = nullptr;
    if (handle != nullptr)
        if (ThreadGdiMaps* const maps = MadeGdiMaps())
            maps->objects.Remove(handle, this);
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ handle = Detach();
    return handle != nullptr && ::DeleteObject(handle);
}
