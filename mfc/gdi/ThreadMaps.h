#pragma once

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "afx/HandleMap.h"
#include "afx/Menu.h"

#include <array>
#include <memory>

/// Wraps a DC, menu or GDI object for as long as the thread is busy, and forgets it without destroying it.
struct DCTraits {
    static std::unique_ptr<CDC> Wrap(HDC handle);
    static void Unwrap(CDC& dc);
};

struct MenuTraits {
    static std::unique_ptr<CMenu> Wrap(HMENU handle);
    static void Unwrap(CMenu& menu);
};

template <class Object> struct GdiTraits {
    static std::unique_ptr<CGdiObject> Wrap(HGDIOBJ handle) {
        std::unique_ptr<CGdiObject> object = std::make_unique<Object>();
        object->m_hObject = handle;
        return object;
    }
    static void Unwrap(CGdiObject& object) { object.m_hObject = nullptr; }
};

/// The wrappers of one thread's GDI handles.
///
/// Temporaries are kept by class, so that a handle that was deleted and came back as another kind of object
/// within the same message never meets the wrapper of its former life.
class GdiObjectMap {
public:
    CGdiObject* Permanent(HGDIOBJ handle) const { return m_permanent.Permanent(handle); }
    void SetPermanent(HGDIOBJ handle, CGdiObject* object) { m_permanent.SetPermanent(handle, object); }
    /// Forgets the entry only if it is `object`'s: the handle may have found another owner meanwhile.
    void Remove(HGDIOBJ handle, const CGdiObject* object);

    /// The wrapper of class `Object` for a handle of that kind; the permanent one if it is of that class.
    template <class Object> Object* Find(HGDIOBJ handle) {
        if (auto* const permanent = dynamic_cast<Object*>(Permanent(handle)))
            return permanent;
        return static_cast<Object*>(Temporary(TemporariesOf(static_cast<Object*>(nullptr)), handle));
    }

    void DeleteTemporaries();

private:
    template <class Object> using Temporaries = HandleMap<CGdiObject, HGDIOBJ, GdiTraits<Object>>;

    template <class Map> static CGdiObject* Temporary(Map& map, HGDIOBJ handle) {
        CGdiObject* const object = map.FromHandle(handle);
        if (object != nullptr)
            object->m_hObject = handle; // a program may have detached or deleted through the wrapper
        return object;
    }
    Temporaries<CPen>& TemporariesOf(const CPen*) { return m_pens; }
    Temporaries<CBrush>& TemporariesOf(const CBrush*) { return m_brushes; }
    Temporaries<CFont>& TemporariesOf(const CFont*) { return m_fonts; }
    Temporaries<CBitmap>& TemporariesOf(const CBitmap*) { return m_bitmaps; }
    Temporaries<CPalette>& TemporariesOf(const CPalette*) { return m_palettes; }
    Temporaries<CRgn>& TemporariesOf(const CRgn*) { return m_regions; }
    Temporaries<CGdiObject>& TemporariesOf(const CGdiObject*) { return m_others; }

    Temporaries<CGdiObject> m_permanent; // its temporary half stays empty
    Temporaries<CPen> m_pens;
    Temporaries<CBrush> m_brushes;
    Temporaries<CFont> m_fonts;
    Temporaries<CBitmap> m_bitmaps;
    Temporaries<CPalette> m_palettes;
    Temporaries<CRgn> m_regions;
    Temporaries<CGdiObject> m_others;
};

/// All maps of the calling thread.
struct ThreadGdiMaps {
    GdiObjectMap objects;
    HandleMap<CDC, HDC, DCTraits> dcs;
    HandleMap<CMenu, HMENU, MenuTraits> menus;
};

/// The calling thread's maps, made at first use. NULL once the thread has begun to end: global objects that
/// own handles may be destroyed after the maps.
ThreadGdiMaps* GdiMaps();
/// The same, and NULL where none have been made: what only takes an entry out must not ask for memory.
ThreadGdiMaps* MadeGdiMaps();
