// SPDX-License-Identifier: MIT
// MeasuredTexts: widths of texts, kept from one layout of a chart to the next.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <vector>

#include "gdi/Text.h"

namespace kavlix {

/// The widths of a list of texts, and the texts shortened to a room. Measuring a text is slow, so a text is
/// measured again only when the text, the font or the room changes. Widths include some slack: drawn texts can be
/// a little wider than measured ones, and on a printer more than on the screen.
class MeasuredTexts {
public:
    /// Tells the font that the texts are measured in. `pixels` is its height.
    void SetFont(int pixels, const CString& face) {
        if (pixels != m_pixels || face != m_face)
            m_entries.clear();
        m_pixels = pixels;
        m_face = face;
    }
    /// Width in pixels of `text`, the text at `index` in the list, in the font that is selected into `dc`.
    int Width(const CDC& dc, std::size_t index, const CString& text) { return Find(dc, index, text).width; }
    /// `text` shortened to `room` pixels.
    const CString& ShortenedTo(const CDC& dc, std::size_t index, const CString& text, int room) {
        Entry& entry = Find(dc, index, text);
        if (entry.width <= room)
            return entry.text;
        if (entry.room != room)
            entry.shortened = Shortened(dc, text, room - Slack(room));
        entry.room = room;
        return entry.shortened;
    }

private:
    struct Entry {
        CString text;
        int width = -1; ///< -1: not measured yet
        int room = -1;  ///< to which `shortened` is shortened, -1 for none
        CString shortened;
    };

    Entry& Find(const CDC& dc, std::size_t index, const CString& text) {
        if (index >= m_entries.size())
            m_entries.resize(index + 1);
        Entry& entry = m_entries[index];
        if (entry.width < 0 || entry.text != text) {
            const int width = static_cast<int>(MeasureText(dc, text).cx);
            entry = {text, width + Slack(width), -1, CString()};
        }
        return entry;
    }
    static int Slack(int width) { return (width + 49) / 50; } ///< 2 percent

    std::vector<Entry> m_entries;
    int m_pixels = 0;
    CString m_face;
};

} // namespace kavlix
