// SPDX-License-Identifier: MIT
// Handles of objects that may be NULL, calls that may run out of memory, and settings of both DCs of a CDC.
#pragma once

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "afx/Wnd.h"

#include <new>

/// The handle of an object; NULL for a NULL object.
inline HDC SafeHandle(const CDC* dc) {
    return dc == nullptr ? nullptr : dc->m_hDC;
}
inline HGDIOBJ SafeHandle(const CGdiObject* object) {
    return object == nullptr ? nullptr : object->m_hObject;
}
inline HWND SafeHandle(const CWnd* window) {
    return window == nullptr ? nullptr : window->m_hWnd;
}
inline HBRUSH BrushHandle(const CBrush* brush) {
    return static_cast<HBRUSH>(SafeHandle(brush));
}
inline HRGN RegionHandle(const CRgn* region) {
    return static_cast<HRGN>(SafeHandle(region));
}

/// Runs `work`. Returns false if memory runs out.
template <class Work> bool HasMemoryFor(Work work) {
    try {
        work();
        return true;
    } catch (CMemoryException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    }
    return false;
}

/// Attaches a new handle to `owner`. If memory runs out, calls `destroy` for the handle and returns FALSE.
template <class Owner, class Handle, class Destroy>
BOOL AttachNew(Owner& owner, Handle handle, Destroy destroy) {
    BOOL attached = FALSE;
    if (!HasMemoryFor([&] { attached = owner.Attach(handle); }))
        destroy(handle);
    return attached;
}

/// Applies a setting to the output DC and to the attribute DC. Returns the result of the attribute DC, or of
/// the output DC if there is no attribute DC.
template <class Set> auto ForBoth(const CDC& dc, Set set) -> decltype(set(HDC())) {
    decltype(set(HDC())) answer{};
    if (dc.m_hDC != nullptr && dc.m_hDC != dc.m_hAttribDC)
        answer = set(dc.m_hDC);
    if (dc.m_hAttribDC != nullptr)
        answer = set(dc.m_hAttribDC);
    return answer;
}
