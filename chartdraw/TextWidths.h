// SPDX-License-Identifier: MIT
// The widths of a chart's texts, kept from layout to layout.
#pragma once

#include <afxwin.h>

#include <map>

#include "gdi/Text.h"

namespace kavlix {

/// Measuring a text takes longer than drawing its tick, and most labels stay from paint to paint.
class TextWidths {
public:
    /// Forgets the widths when the font has changed. Whether it has.
    bool UseFont(int pixels, const CString& face) {
        if (pixels == m_pixels && face == m_face)
            return false;
        m_widths.clear();
        m_face = face;
        m_pixels = pixels;
        return true;
    }
    /// Width in pixels of a text in the font that is selected into `dc`.
    int Of(const CDC& dc, const CString& text) {
        const auto known = m_widths.find(text);
        if (known != m_widths.end())
            return known->second;
        constexpr std::size_t kMost = 500;
        if (m_widths.size() >= kMost)
            m_widths.clear();
        const int width = static_cast<int>(MeasureText(dc, text).cx);
        m_widths.emplace(text, width);
        return width;
    }

private:
    int m_pixels = 0;
    CString m_face;
    std::map<CString, int> m_widths;
};

} // namespace kavlix
