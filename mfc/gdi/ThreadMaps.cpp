#include "mfc/gdi/ThreadMaps.h"

namespace {

// Plain thread-local variables: they can still be read when the thread's objects are gone.
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
        t_end.armed = true; // the first use makes its destructor run at the thread's end
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
