// SPDX-License-Identifier: MIT
// Scope guards for the state of a DC.
#pragma once

#include <afxwin.h>

/// Each guard restores a part of a DC's state at the end of the scope, also after an exception; only
/// StockAfterGuard selects a stock object instead. Declare a guard after the objects that are selected: then
/// no object is deleted while it is selected.
namespace kavlix {

/// Selects an object into `dc`; does nothing for a null object. A CDC can hold two DCs: for print previews
/// and metafiles the host sets a separate attribute DC, which answers queries such as the size of a text. The
/// object is selected into both, as CDC::SelectObject does, so that texts are measured with the font that
/// draws them.
inline void Select(CDC& dc, HGDIOBJ object) {
    if (object == nullptr)
        return;
    ::SelectObject(dc.m_hDC, object);
    if (dc.m_hAttribDC != dc.m_hDC)
        ::SelectObject(dc.m_hAttribDC, object);
}

inline void Select(CDC& dc, const CGdiObject& object) {
    Select(dc, object.GetSafeHandle());
}

/// Selects an object, and at the end of the scope the previous object again. A null object changes nothing:
/// when GDI cannot make a pen or font, painting continues with the previous one.
class SelectGuard {
public:
    SelectGuard(CDC& dc, HGDIOBJ object)
        : m_output(dc.m_hDC, object),
          m_attributes(dc.m_hAttribDC != dc.m_hDC ? dc.m_hAttribDC : nullptr, object) {}
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    /// The selection in one of the two DCs of a CDC.
    class Selected {
    public:
        Selected(HDC dc, HGDIOBJ object)
            : m_dc(dc),
              m_previous(dc != nullptr && object != nullptr ? ::SelectObject(dc, object) : nullptr) {}
        ~Selected() {
            if (m_previous != nullptr)
                ::SelectObject(m_dc, m_previous);
        }
        Selected(const Selected&) = delete;
        Selected& operator=(const Selected&) = delete;

    private:
        HDC m_dc;
        HGDIOBJ m_previous;
    };

    Selected m_output;
    Selected m_attributes;
};

/// Selects a stock object at the end of the scope, so that objects selected in between can be deleted.
class StockAfterGuard {
public:
    StockAfterGuard(CDC& dc, int stockObject) : m_dc(dc), m_stockObject(stockObject) {}
    ~StockAfterGuard() { Select(m_dc, ::GetStockObject(m_stockObject)); }
    StockAfterGuard(const StockAfterGuard&) = delete;
    StockAfterGuard& operator=(const StockAfterGuard&) = delete;

private:
    CDC& m_dc;
    int m_stockObject;
};

/// Gives a CDC without an attribute DC, such as a CMetaFileDC, its output DC as attribute DC until the end of
/// the scope.
class AttribDcGuard {
public:
    explicit AttribDcGuard(CDC& dc) : m_dc(dc), m_isAdded(dc.m_hAttribDC == nullptr) {
        if (m_isAdded)
            m_dc.SetAttribDC(m_dc.m_hDC);
    }
    ~AttribDcGuard() {
        if (m_isAdded)
            m_dc.ReleaseAttribDC();
    }
    AttribDcGuard(const AttribDcGuard&) = delete;
    AttribDcGuard& operator=(const AttribDcGuard&) = delete;

private:
    CDC& m_dc;
    bool m_isAdded;
};

/// Saves the whole state of a DC, and restores it at the end of the scope.
class SavedDcGuard {
public:
    explicit SavedDcGuard(CDC& dc) : m_dc(dc), m_state(dc.SaveDC()) {}
    ~SavedDcGuard() {
        if (m_state != 0)
            m_dc.RestoreDC(m_state);
    }
    SavedDcGuard(const SavedDcGuard&) = delete;
    SavedDcGuard& operator=(const SavedDcGuard&) = delete;

private:
    CDC& m_dc;
    int m_state;
};

/// Restores background mode, text colour and text alignment at the end of the scope.
class TextSettingsGuard {
public:
    explicit TextSettingsGuard(CDC& dc)
        : m_dc(dc), m_bkMode(dc.GetBkMode()), m_color(dc.GetTextColor()), m_align(dc.GetTextAlign()) {}
    ~TextSettingsGuard() {
        m_dc.SetTextAlign(m_align);
        m_dc.SetTextColor(m_color);
        m_dc.SetBkMode(m_bkMode);
    }
    TextSettingsGuard(const TextSettingsGuard&) = delete;
    TextSettingsGuard& operator=(const TextSettingsGuard&) = delete;

private:
    CDC& m_dc;
    int m_bkMode;
    COLORREF m_color;
    UINT m_align;
};

/// Clips to the part of `device`, in device pixels, that lies inside `outer`, and at the end of the scope to
/// `outer` again. A region object without a handle stands for no clip region.
class ClipGuard {
public:
    ClipGuard(CDC& dc, const CRect& device, CRgn& outer) : m_dc(dc), m_outer(outer) {
        CRgn region;
        if (region.CreateRectRgnIndirect(&device) &&
            (outer.GetSafeHandle() == nullptr || region.CombineRgn(&region, &outer, RGN_AND) != ERROR))
            m_dc.SelectClipRgn(&region);
    }
    ~ClipGuard() { m_dc.SelectClipRgn(&m_outer); }
    ClipGuard(const ClipGuard&) = delete;
    ClipGuard& operator=(const ClipGuard&) = delete;

private:
    CDC& m_dc;
    CRgn& m_outer;
};

} // namespace kavlix
