#pragma once

#include <afxwin.h>

/// Scope guards: each makes one change to a DC and takes it back at the end of the scope, also when something
/// throws. Declare a guard after the objects it selects, so that nothing is deleted while it is selected.
namespace kavlix {

/// Selects an object into `dc`; a null object is passed over. A CDC is two DCs where its host has set an
/// attribute DC (a print preview, a metafile): one is drawn on, the other answers questions. Both get the
/// object, as CDC::SelectObject does, so that texts are measured with the font that they are drawn with.
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

/// Selects an object; the one selected before comes back at the end. A null object leaves the DC as it is, so
/// that painting goes on with what is there when GDI runs out of objects.
class SelectGuard {
public:
    SelectGuard(CDC& dc, HGDIOBJ object)
        : m_output(dc.m_hDC, object),
          m_attributes(dc.m_hAttribDC != dc.m_hDC ? dc.m_hAttribDC : nullptr, object) {}
    SelectGuard(const SelectGuard&) = delete;
    SelectGuard& operator=(const SelectGuard&) = delete;

private:
    /// The selection in one of a CDC's two DCs.
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

/// Selects a stock object at the end of the scope, in place of whatever was selected meanwhile.
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

/// Lets a DC without attribute DC, such as CMetaFileDC makes, answer questions through its output DC.
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

/// Saves the whole state of a DC and restores it.
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

/// Brings background mode, text colour and text alignment back.
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

/// Clips to what `outer` holds of a rectangle in device units; at the end to `outer` again.
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
