// SPDX-License-Identifier: MIT
// The handle maps of DCs, menus and GDI objects, one set for each thread.
#pragma once

#include "afx/DC.h"
#include "afx/GdiObject.h"
#include "afx/HandleMap.h"
#include "afx/Menu.h"

#include <array>
#include <memory>

/// Wrap() creates a temporary wrapper for a handle. Unwrap() clears the wrapper's handle; the DC, menu or GDI
/// object stays valid.
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

/// The wrappers of a thread's GDI handles.
///
/// Each class has its own map of temporary wrappers. GDI may reuse the number of a deleted handle for an
/// object of another kind, and the new object must not get the old wrapper.
class GdiObjectMap {
public:
    CGdiObject* Permanent(HGDIOBJ handle) const { return m_permanent.Permanent(handle); }
    void SetPermanent(HGDIOBJ handle, CGdiObject* object) { m_permanent.SetPermanent(handle, object); }
    /// Removes the permanent entry of `handle` if the entry is `object`. By now, another object may have
    /// attached the same handle.
    void Remove(HGDIOBJ handle, const CGdiObject* object);

    /// The object of class `Object` for a handle of the same kind: the attached object if it has the class
    /// `Object`, else a temporary one.
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
            object->m_hObject = handle; // a program may have called Detach() on the wrapper
        return object;
    }
    Temporaries<CPen>& TemporariesOf(const CPen*) { return m_pens; }
    Temporaries<CBrush>& TemporariesOf(const CBrush*) { return m_brushes; }
    Temporaries<CFont>& TemporariesOf(const CFont*) { return m_fonts; }
    Temporaries<CBitmap>& TemporariesOf(const CBitmap*) { return m_bitmaps; }
    Temporaries<CPalette>& TemporariesOf(const CPalette*) { return m_palettes; }
    Temporaries<CRgn>& TemporariesOf(const CRgn*) { return m_regions; }
    Temporaries<CGdiObject>& TemporariesOf(const CGdiObject*) { return m_others; }

    Temporaries<CGdiObject> m_permanent; // permanent entries of all classes; no temporary ones
    Temporaries<CPen> m_pens;
    Temporaries<CBrush> m_brushes;
    Temporaries<CFont> m_fonts;
    Temporaries<CBitmap> m_bitmaps;
    Temporaries<CPalette> m_palettes;
    Temporaries<CRgn> m_regions;
    Temporaries<CGdiObject> m_others;
};

/// All maps of a thread.
struct ThreadGdiMaps {
    GdiObjectMap objects;
    HandleMap<CDC, HDC, DCTraits> dcs;
    HandleMap<CMenu, HMENU, MenuTraits> menus;
};

/// The maps of the calling thread. The first call creates them. NULL at the end of the thread, because global
/// objects that own handles may be destroyed after the maps.
ThreadGdiMaps* GdiMaps();
/// The maps of the calling thread if they exist, else NULL. For code that only removes entries, and so must
/// not allocate memory.
ThreadGdiMaps* MadeGdiMaps();
