// SPDX-License-Identifier: MIT
// Creation and deletion of the handle maps of a thread.

#include "mfc/gdi/ThreadMaps.h"

namespace {

// Variables without destructors, so that code can read them after the thread's objects are destroyed.
thread_local ThreadGdiMaps* t_maps = nullptr;
thread_local bool t_ended = false;

struct MapsEnd {
    bool armed = false;
    ~MapsEnd() {
        ThreadGdiMaps* const maps = t_maps;
        t_maps = nullptr;
        t_ended = true;
        delete maps;
    }
};
thread_local MapsEnd t_end;

} // namespace

ThreadGdiMaps* GdiMaps() {
    if (t_maps == nullptr && !t_ended) {
        t_end.armed = true; // the first access registers the destructor for the end of the thread
        t_maps = new ThreadGdiMaps;
    }
    return t_maps;
}

ThreadGdiMaps* MadeGdiMaps() {
    return t_maps;
}

void GdiObjectMap::Remove(HGDIOBJ handle, const CGdiObject* object) {
    if (Permanent(handle) == object)
        m_permanent.Remove(handle);
}

void GdiObjectMap::DeleteTemporaries() {
    m_pens.DeleteTemporaries();
    m_brushes.DeleteTemporaries();
    m_fonts.DeleteTemporaries();
    m_bitmaps.DeleteTemporaries();
    m_palettes.DeleteTemporaries();
    m_regions.DeleteTemporaries();
    m_others.DeleteTemporaries();
}

void AfxDeleteTempGdiMaps() {
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
}
